#pragma once

#include "panel/Icon.h"
#include "panel/PanelButton.h"

#include <QVariantAnimation>

#include <optional>

namespace cuebright {

/// A small button of the panel, drawn in the chrome style.
class ChromeButton final : public PanelButton {
public:
    enum class Kind {
        Title, ///< words, as wide as they need
        Arrow, ///< one character in a fixed frame
        Symbol, ///< an icon in the same frame
    };

    ChromeButton(const PanelContext& context, Kind kind, const QString& text, QWidget* parent);
    /// A symbol that is called `name`, on the screen and to a screen reader.
    ChromeButton(const PanelContext& context, Icon icon, const QString& name, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void animatePress(bool isDown);

    Kind m_kind;
    std::optional<Icon> m_icon;
    QVariantAnimation m_press;
};

} // namespace cuebright
