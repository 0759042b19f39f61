#pragma once

#include "foundation/Signal.h"
#include "ui/base/UiContext.h"
#include "ui/onboarding/OnboardingPages.h"

#include <QWidget>

#include <memory>
#include <vector>

namespace cuebright {

class ChromeButton;
class OnboardingPageView;

/// The introduction at the first run: four pages, forward only. It covers its parent, keeps the keyboard focus, and
/// hides the parent's other children from screen readers.
class OnboardingOverlay final : public QWidget {
    Q_OBJECT

public:
    OnboardingOverlay(const UiContext& context, QWidget* parent);
    ~OnboardingOverlay() override;

    /// Whether the user has not finished the introduction yet.
    [[nodiscard]] static bool isDue(const UiContext& context);

    /// From 0 to 3.
    [[nodiscard]] int currentPage() const { return m_currentPage; }

    /// Shows the next page; on the last one stores that the introduction is done, hides the overlay and calls
    /// `finished`.
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
    [[nodiscard]] OnboardingPageView& page() const { return *m_pages[static_cast<std::size_t>(m_currentPage)]; }
    [[nodiscard]] int pageCount() const { return static_cast<int>(m_pages.size()); }
    void showPage();
    void layOut();
    void finish();
    void keepFocus(QWidget* focused);
    void paintCard(QPainter& painter) const;

    const UiContext& m_context;
    std::vector<std::unique_ptr<OnboardingPageView>> m_pages;
    int m_currentPage = 0;
    QRect m_card;
    Dots* m_dots;
    ChromeButton* m_advance;
    Subscription m_exclusionSubscription;
};

} // namespace cuebright
