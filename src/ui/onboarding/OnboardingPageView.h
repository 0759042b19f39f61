#pragma once

#include "ui/base/ColorRole.h"
#include "ui/base/UiContext.h"
#include "ui/onboarding/OnboardingPages.h"

#include <QWidget>

#include <vector>

namespace cuebright {

class Label;

/// A gap of the introduction in a panel that has room for so much of it. Logical pixels.
[[nodiscard]] int scaledGap(int gap, double scale);

/// One page of the introduction: icon, title, texts and shortcut rows, one below the other.
class OnboardingPageView final : public QWidget {
public:
    OnboardingPageView(const UiContext& context, const OnboardingPage& page, QWidget* parent);

    /// How high it is in a column of `width`, with its gaps at `gapScale` of what they would like to be.
    [[nodiscard]] int heightFor(int width, double gapScale) const;
    void layOut(double gapScale);

    /// Title and texts, one after the other.
    [[nodiscard]] QString spokenText() const { return m_spokenText; }
    /// Has a screen reader read the page now.
    void announce();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Item {
        QWidget* widget;
        int gapAbove;
    };

    void add(QWidget* widget, int gapAbove);
    Label* makeText(const QString& text, const QFont& font, ColorRole ink);

    const UiContext& m_context;
    Icon m_icon;
    std::vector<Item> m_items;
    QString m_spokenText;
    Label* m_title;
};

} // namespace cuebright
