#pragma once

#include "foundation/Signal.h"
#include "ui/base/UiContext.h"
#include "ui/onboarding/OnboardingPages.h"

#include <QWidget>

#include <vector>

namespace cuebright {

class ChromeButton;
class OnboardingPageView;

/// The introduction at the first run, over the whole of its parent: four pages, forward only. While it is up, keyboard
/// focus stays on it and a screen reader sees nothing else of the parent.
class OnboardingOverlay final : public QWidget {
    Q_OBJECT

public:
    OnboardingOverlay(const UiContext& context, QWidget* parent);
    ~OnboardingOverlay() override;

    /// Whether it has not been gone through to its end yet.
    [[nodiscard]] static bool isDue(const UiContext& context);

    /// From 0 to 3.
    [[nodiscard]] int currentPage() const { return m_currentPage; }

    /// Goes to the next page; on the last one notes that it is done, and vanishes.
    void advance();

Q_SIGNALS:
    /// The overlay is hidden; a listener may delete it with `deleteLater`.
    void finished();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Dots;

    void buildPages();
    void showPage();
    void layOut();
    void finish();
    void keepFocus(QWidget* focused);
    void paintCard(QPainter& painter) const;

    const UiContext& m_context;
    std::vector<OnboardingPageView*> m_pages;
    int m_currentPage = 0;
    QRect m_card;
    Dots* m_dots;
    ChromeButton* m_advance;
    Subscription m_exclusionSubscription;
};

} // namespace cuebright
