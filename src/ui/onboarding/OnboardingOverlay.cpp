#include "ui/onboarding/OnboardingOverlay.h"

#include "platform/CaptureExclusion.h"
#include "platform/Preferences.h"
#include "platform/qt/QtColors.h"
#include "store/PreferenceKeys.h"
#include "ui/animation/FadingSnapshot.h"
#include "ui/base/ShareStatus.h"
#include "ui/onboarding/OnboardingPageView.h"
#include "ui/widgets/ChromeButton.h"
#include "ui/widgets/CuebrightChromeStyle.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace cuebright {

namespace {

constexpr int kCardWidth = 440;
constexpr int kCardMargin = 12; ///< minimum distance from the panel's edges
constexpr int kPadding = 32;
constexpr int kDotSize = 8;
constexpr int kDotGap = 8;
constexpr int kDotsGap = 22; ///< above the dots
constexpr int kButtonGap = 18; ///< above the button
constexpr double kLeastGapScale = 0.3;
constexpr double kCornerRadius = 14;
constexpr int kShadowReach = 24;
constexpr int kShadowDrop = 6;
constexpr Animation kPageTurn {Animation::Curve::EaseInOut, Seconds(0.2)};

OnboardingOverlay* overlayOn(const QWidget* widget)
{
    const auto overlay = widget->findChild<OnboardingOverlay*>(QString(), Qt::FindDirectChildrenOnly);
    return overlay && !overlay->isHidden() ? overlay : nullptr;
}

/// Hides a widget's children from screen readers while the overlay covers them.
class CoveredInterface final : public QAccessibleWidget {
public:
    explicit CoveredInterface(QWidget* widget)
        : QAccessibleWidget(widget, QAccessible::Client)
    {
    }

    int childCount() const override { return overlay() ? 1 : QAccessibleWidget::childCount(); }
    QAccessibleInterface* child(int index) const override
    {
        const auto up = overlay();
        if (!up)
            return QAccessibleWidget::child(index);
        return index == 0 ? QAccessible::queryAccessibleInterface(up) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto up = overlay();
        if (!up)
            return QAccessibleWidget::indexOfChild(child);
        return child && child->object() == up ? 0 : -1;
    }

private:
    [[nodiscard]] OnboardingOverlay* overlay() const { return overlayOn(widget()); }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    const auto widget = qobject_cast<QWidget*>(object);
    return widget && overlayOn(widget) ? new CoveredInterface(widget) : nullptr;
}

void coverForScreenReaders(QWidget* widget)
{
    QAccessible::installFactory(makeInterface);
    // Qt keeps an interface that was created before.
    if (const auto former = QAccessible::queryAccessibleInterface(widget))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(former));
}

} // namespace

/// One dot for each page.
class OnboardingOverlay::Dots final : public QWidget {
public:
    explicit Dots(OnboardingOverlay& overlay)
        : QWidget(&overlay)
        , m_overlay(overlay)
    {
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        return {m_overlay.pageCount() * (kDotSize + kDotGap) - kDotGap, kDotSize};
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        const auto colors = m_overlay.m_context.colors();
        for (int i = 0; i < m_overlay.pageCount(); ++i) {
            painter.setBrush(toQColor(i == m_overlay.m_currentPage ? colors.accent() : colors.sep()));
            painter.drawEllipse(QRectF(i * (kDotSize + kDotGap), 0, kDotSize, kDotSize));
        }
    }

private:
    OnboardingOverlay& m_overlay;
};

OnboardingOverlay::OnboardingOverlay(const UiContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_dots(new Dots(*this))
    , m_advance(new ChromeButton(context, QStringLiteral("NEXT"), this))
{
    setAccessibleName(QStringLiteral("Introduction"));
    connect(m_advance, &QAbstractButton::clicked, this, &OnboardingOverlay::advance);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* focused) { keepFocus(focused); });
    parent->installEventFilter(this);
    buildPages();
    setGeometry(parent->rect());
    raise();
    coverForScreenReaders(parent);
    m_advance->setFocus();
    m_exclusionSubscription = context.desktop.captureExclusion.changed.subscribe([this] { buildPages(); });
}

OnboardingOverlay::~OnboardingOverlay() = default;

bool OnboardingOverlay::isDue(const UiContext& context)
{
    return !context.platform.preferences.boolean(preferenceKeys::kOnboardingDone).value_or(false);
}

void OnboardingOverlay::buildPages()
{
    m_pages.clear();
    for (const auto& page : onboardingPages(shareAdvice(m_context.desktop.captureExclusion)))
        m_pages.push_back(std::make_unique<OnboardingPageView>(m_context, page, this));
    m_dots->raise(); // screen readers read in stacking order
    m_advance->raise();
    showPage();
}

void OnboardingOverlay::showPage()
{
    for (const auto& each : m_pages)
        each->setVisible(each.get() == &page());
    const bool isLast = m_currentPage + 1 == pageCount();
    m_advance->setText(isLast ? QStringLiteral("GET STARTED") : QStringLiteral("NEXT"));
    m_advance->setAccessibleName(isLast ? QStringLiteral("Get started") : QStringLiteral("Next page"));
    m_advance->setAccessibleDescription(page().spokenText());
    m_dots->setAccessibleName(QStringLiteral("Page %1 of %2").arg(m_currentPage + 1).arg(pageCount()));
    layOut();
    update();
}

void OnboardingOverlay::advance()
{
    if (isHidden())
        return;
    if (m_currentPage + 1 == pageCount())
        return finish();
    if (isVisible())
        new FadingSnapshot(grab(m_card), m_card, kPageTurn, this);
    ++m_currentPage;
    showPage();
    page().announce();
}

void OnboardingOverlay::finish()
{
    m_context.platform.preferences.setBoolean(preferenceKeys::kOnboardingDone, true);
    if (isVisible())
        new FadingSnapshot(grab(), geometry(), kPageTurn, parentWidget());
    hide();
    QAccessibleEvent reordered(parentWidget(), QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&reordered);
    Q_EMIT finished();
}

/// The card is as high as the highest page, so that the button stays under the pointer. In low panels the gaps shrink.
void OnboardingOverlay::layOut()
{
    const int cardWidth = std::min(kCardWidth, width() - 2 * kCardMargin);
    const int textWidth = cardWidth - 2 * kPadding;
    const auto highestPage = [&](double gapScale) {
        int highest = 0;
        for (const auto& each : m_pages)
            highest = std::max(highest, each->heightFor(textWidth, gapScale));
        return highest;
    };
    const auto heightAt = [&](double gapScale) {
        const int gaps =
            2 * scaledGap(kPadding, gapScale) + scaledGap(kDotsGap, gapScale) + scaledGap(kButtonGap, gapScale);
        return highestPage(gapScale) + kDotSize + m_advance->sizeHint().height() + gaps;
    };
    double gapScale = 1;
    while (gapScale > kLeastGapScale && heightAt(gapScale) > height() - 2 * kCardMargin)
        gapScale -= 0.05;

    m_card = QRect(0, 0, cardWidth, heightAt(gapScale));
    m_card.moveCenter(rect().center());
    const int pageHeight = page().heightFor(textWidth, gapScale);
    page().setGeometry(m_card.x() + kPadding,
        m_card.y() + scaledGap(kPadding, gapScale) + (highestPage(gapScale) - pageHeight) / 2, textWidth, pageHeight);
    page().layOut(gapScale);

    const auto putCentred = [this](QWidget* widget, int bottom) {
        const auto size = widget->sizeHint();
        widget->setGeometry(
            m_card.x() + (m_card.width() - size.width()) / 2, bottom - size.height(), size.width(), size.height());
        return bottom - size.height();
    };
    const int buttonTop = putCentred(m_advance, m_card.bottom() + 1 - scaledGap(kPadding, gapScale));
    putCentred(m_dots, buttonTop - scaledGap(kButtonGap, gapScale));
}

bool OnboardingOverlay::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return false;
}

/// Takes the focus back when a command moves it to a covered widget.
void OnboardingOverlay::keepFocus(QWidget* focused)
{
    if (!isHidden() && focused && parentWidget()->isAncestorOf(focused) && !isAncestorOf(focused))
        m_advance->setFocus();
}

bool OnboardingOverlay::focusNextPrevChild(bool)
{
    m_advance->setFocus(Qt::TabFocusReason);
    return true;
}

void OnboardingOverlay::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return QWidget::keyPressEvent(event);
    if (!event->isAutoRepeat())
        m_advance->click();
}

void OnboardingOverlay::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), toQColor(m_context.colors().warmBg()));
    paintCard(painter);
}

void OnboardingOverlay::paintCard(QPainter& painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    const auto colors = m_context.colors();
    painter.setPen(Qt::NoPen);
    // The layers add up to a soft shadow.
    painter.setBrush(QColor(0, 0, 0, colors.isDark() ? 8 : 2));
    for (int reach = kShadowReach; reach > 0; reach -= 2) {
        const QRectF layer = QRectF(m_card).adjusted(-reach, -reach, reach, reach).translated(0, kShadowDrop);
        painter.drawRoundedRect(layer, kCornerRadius + reach, kCornerRadius + reach);
    }
    const auto shape = continuousRoundedRect(QRectF(m_card).adjusted(0.5, 0.5, -0.5, -0.5), kCornerRadius);
    auto paper = toQColor(colors.warmBg());
    painter.fillPath(shape, paper.lighter(colors.isDark() ? 125 : 103));
    painter.strokePath(shape, QPen(toQColor(colors.sep()), colors.borderWidth()));
}

void OnboardingOverlay::resizeEvent(QResizeEvent*) { layOut(); }

} // namespace cuebright
