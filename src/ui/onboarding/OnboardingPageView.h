#pragma once

#include "ui/base/Ink.h"
#include "ui/base/PanelContext.h"
#include "ui/onboarding/OnboardingPages.h"

#include <QWidget>

#include <vector>

namespace cuebright {

class PanelLabel;

/// A gap of the introduction in a panel that has room for so much of it. Logical pixels.
[[nodiscard]] int scaledGap(int gap, double scale);

/// One page of the introduction: icon, title, texts and shortcut rows, one below the other.
class OnboardingPageView final : public QWidget {
public:
    OnboardingPageView(const PanelContext& context, const OnboardingPage& page, QWidget* parent);

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
    PanelLabel* makeText(const QString& text, const QFont& font, Ink ink);

    const PanelContext& m_context;
    Icon m_icon;
    std::vector<Item> m_items;
    QString m_spokenText;
    PanelLabel* m_title;
};

} // namespace cuebright
