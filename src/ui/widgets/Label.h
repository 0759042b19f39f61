#pragma once

#include "ui/animation/AnimatedValue.h"
#include "ui/base/ColorRole.h"
#include "ui/base/UiContext.h"

#include <QLabel>

namespace cuebright {

/// Plain text in one of the panel's colours. A screen reader always gets the whole of it, however little room there is.
class Label final : public QLabel {
public:
    enum class WhenNarrow {
        Keep,
        Elide, ///< cut with an ellipsis; the tool tip shows the whole
        Wrap,
    };

    Label(const UiContext& context, const QFont& font, ColorRole ink, WhenNarrow whenNarrow, QWidget* parent);

    [[nodiscard]] ColorRole ink() const { return m_ink; }

    /// From 0 to 1.
    void setInkOpacity(double opacity);

    /// The new text is there at once; on the screen it fades in while the one before fades out, for so long.
    void crossFadeTo(const QString& text, ColorRole ink, Seconds time);

    /// Has a screen reader read the text now, as a message.
    void announce();
    [[nodiscard]] bool isMessage() const { return m_isMessage; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    struct Look {
        QString text;
        ColorRole ink;
    };

    void showCrossFade();
    void draw(QPainter& painter, const Look& look, double opacity) const;
    [[nodiscard]] double widthOf(const QString& text) const;
    [[nodiscard]] bool isCut() const;

    const UiContext& m_context;
    ColorRole m_ink;
    WhenNarrow m_whenNarrow;
    double m_opacity = 1;
    bool m_isMessage = false;
    bool m_isNewlyShown = false; ///< since the last announcement
    Look m_former; ///< what fades out
    AnimatedValue m_crossFade;
};

} // namespace cuebright
