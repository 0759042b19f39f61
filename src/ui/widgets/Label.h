#pragma once

#include "ui/animation/AnimatedValue.h"
#include "ui/base/ColorRole.h"
#include "ui/base/UiContext.h"

#include <QLabel>

namespace cuebright {

/// Plain text in one of the panel's colours. Its accessible name is always the whole text.
class Label final : public QLabel {
public:
    enum class WhenNarrow {
        Keep,
        Elide, ///< the tool tip then shows the whole text
        Wrap,
    };

    Label(const UiContext& context, const QFont& font, ColorRole color, WhenNarrow whenNarrow, QWidget* parent);

    [[nodiscard]] ColorRole color() const { return m_color; }

    /// From 0 to 1.
    void setInkOpacity(double opacity);

    /// Sets text and colour immediately; on the screen they fade in while the former ones fade out.
    void crossFadeTo(const QString& text, ColorRole color, Seconds time);

    /// Has screen readers announce the text now, as an alert.
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
        ColorRole color;
    };

    void showCrossFade();
    void draw(QPainter& painter, const Look& look, double opacity) const;
    [[nodiscard]] double widthOf(const QString& text) const;
    [[nodiscard]] bool isCut() const;

    const UiContext& m_context;
    ColorRole m_color;
    WhenNarrow m_whenNarrow;
    double m_opacity = 1;
    bool m_isMessage = false;
    bool m_isNewlyShown = false; ///< since the last announcement
    Look m_former; ///< fades out
    AnimatedValue m_crossFade;
};

} // namespace cuebright
