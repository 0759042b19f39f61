#pragma once

#include "panel/PanelContext.h"

#include <QAbstractButton>
#include <QVariantAnimation>

namespace cuebright {

/// A small button of the panel, reached by Tab only, drawn in the chrome style.
class ChromeButton final : public QAbstractButton {
public:
    enum class Kind {
        Title, ///< words, as wide as they need
        Arrow, ///< one character in a fixed frame
    };

    ChromeButton(const PanelContext& context, Kind kind, const QString& text, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void animatePress(bool isDown);

    const PanelContext& m_context;
    Kind m_kind;
    QVariantAnimation m_press;
};

} // namespace cuebright
