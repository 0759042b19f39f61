#pragma once

#include "ui/base/ColorRole.h"
#include "ui/base/UiContext.h"
#include "ui/onboarding/OnboardingPages.h"

#include <QWidget>

#include <vector>

namespace cuebright {

class Label;

/// `gap` times `scale`, rounded to whole pixels.
[[nodiscard]] int scaledGap(int gap, double scale);

/// A page of the introduction: icon, title, texts and shortcut rows, from top to bottom.
class OnboardingPageView final : public QWidget {
public:
    OnboardingPageView(const UiContext& context, const OnboardingPage& page, QWidget* parent);

    /// The height needed for `width`, with gaps scaled by `gapScale` to fit into low panels.
    [[nodiscard]] int heightFor(int width, double gapScale) const;
    void layOut(double gapScale);

    /// The title and the texts.
    [[nodiscard]] QString spokenText() const { return m_spokenText; }
    /// Makes screen readers read the page.
    void announce();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Item {
        QWidget* widget;
        int gapAbove;
    };

    void add(QWidget* widget, int gapAbove);
    Label* makeText(const QString& text, const QFont& font, ColorRole color);

    const UiContext& m_context;
    Icon m_icon;
    std::vector<Item> m_items;
    QString m_spokenText;
    Label* m_title;
};

} // namespace cuebright
