#include "ui/panel/TimerView.h"

#include "platform/qt/QtColors.h"
#include "platform/qt/TextConversion.h"
#include "ui/accessibility/MenuAccessibility.h"
#include "ui/base/Fonts.h"
#include "ui/widgets/ButtonBase.h"
#include "ui/widgets/ChromeButton.h"
#include "ui/widgets/CuebrightChromeStyle.h"

#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QPainter>

#include <array>
#include <cmath>

namespace cuebright {

namespace {

constexpr std::array<std::int64_t, 7> kPresets {5, 10, 15, 20, 30, 45, 60};
constexpr int kPartGap = 4;
constexpr int kPlayWidth = 20;
constexpr int kPlaySymbolSize = 12; ///< the symbol's square; the triangle itself is two thirds of it
constexpr int kTimePaddingX = 6;
constexpr int kTimePaddingY = 4;
constexpr double kTimeSpacing = 0.5;
constexpr double kTimeCornerRadius = 5;
constexpr double kOutlineOpacity = 0.5;

} // namespace

std::vector<TimerMenuItem> timerMenuItems(const TimerManager& timer)
{
    using enum TimerMenuItem::Choice;
    std::vector<TimerMenuItem> items {{Stopwatch, 0, timer.mode() == TimerManager::Mode::Stopwatch}};
    for (const auto minutes : kPresets)
        items.push_back({Countdown, minutes, timer.isCountdownOf(minutes)});
    items.push_back({Reset});
    return items;
}

QString textOf(const TimerMenuItem& item)
{
    switch (item.choice) {
    case TimerMenuItem::Choice::Stopwatch:
        return QStringLiteral("Stopwatch");
    case TimerMenuItem::Choice::Countdown:
        return QStringLiteral("%1 minutes").arg(item.minutes);
    case TimerMenuItem::Choice::Reset:
        return QStringLiteral("Reset");
    }
    return {};
}

void choose(const TimerMenuItem& item, TimerManager& timer)
{
    switch (item.choice) {
    case TimerMenuItem::Choice::Stopwatch:
        return timer.setStopwatch();
    case TimerMenuItem::Choice::Countdown:
        return timer.setCountdown(item.minutes);
    case TimerMenuItem::Choice::Reset:
        return timer.reset();
    }
}

ColorRole timerColor(TimerManager::Urgency urgency)
{
    return urgency == TimerManager::Urgency::Warning ? ColorRole::Orange : playButtonInk(urgency);
}

ColorRole playButtonInk(TimerManager::Urgency urgency)
{
    using enum TimerManager::Urgency;
    return urgency == Critical || urgency == Expired ? ColorRole::Red : ColorRole::Muted;
}

Color timerFill(TimerManager::Urgency urgency, const Colors& colors)
{
    switch (urgency) {
    case TimerManager::Urgency::Critical:
        return colorFor(ColorRole::Red, colors).withAlpha(0.05);
    case TimerManager::Urgency::Expired:
        return colorFor(ColorRole::Red, colors).withAlpha(0.08);
    case TimerManager::Urgency::Normal:
    case TimerManager::Urgency::Warning:
        break;
    }
    return colors.sep().withAlpha(0.08);
}

class TimeButton final : public ButtonBase {
public:
    TimeButton(const UiContext& context, QWidget* parent)
        : ButtonBase(context, parent)
    {
        setFont(letterSpaced(monospacedFont(11, QFont::DemiBold), kTimeSpacing));
        setToolTip(QStringLiteral("Click to set timer duration"));
    }

    /// A tick repaints only the digits: Qt rasterises the rounded shape on several threads.
    void show(const QString& time, TimerManager::Urgency urgency)
    {
        const bool isSameShape = time.size() == m_time.size() && urgency == m_urgency;
        m_time = time;
        m_urgency = urgency;
        setAccessibleName(QStringLiteral("Timer: ") + time);
        if (isSameShape)
            return update(rect().adjusted(kTimePaddingX, kTimePaddingY, -kTimePaddingX, -kTimePaddingY));
        updateGeometry();
        update();
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        const QFontMetricsF metrics(font());
        const double textWidth = metrics.horizontalAdvance(m_time) - kTimeSpacing;
        return {static_cast<int>(std::ceil(textWidth)) + 2 * kTimePaddingX,
            static_cast<int>(std::ceil(metrics.height())) + 2 * kTimePaddingY};
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const auto colors = m_context.colors();
        const auto shape = continuousRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kTimeCornerRadius);
        painter.fillPath(shape, toQColor(timerFill(m_urgency, colors)));
        painter.strokePath(shape, QPen(toQColor(colors.sep().withAlpha(kOutlineOpacity)), 1));
        painter.setFont(font());
        painter.setPen(toQColor(colorFor(timerColor(m_urgency), colors)));
        const QRectF room = QRectF(rect()).adjusted(kTimePaddingX, 0, 0, 0);
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, m_time);
        drawFocusRing(painter, kTimeCornerRadius);
    }

private:
    QString m_time;
    TimerManager::Urgency m_urgency = TimerManager::Urgency::Normal;
};

TimerView::TimerView(const UiContext& context, TimerManager& timer, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_timer(timer)
    , m_play(new ChromeButton(context, Icon::Play, kPlaySymbolSize, QStringLiteral("Start timer"), this))
    , m_time(new TimeButton(context, this))
    , m_menu(this)
    , m_refresh(context.platform.mainQueue, [this] { refresh(); })
{
    const auto row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kPartGap);
    row->addWidget(m_play, 0, Qt::AlignVCenter);
    row->addWidget(m_time, 0, Qt::AlignVCenter);
    m_play->setFrameWidth(kPlayWidth);
    connect(m_play, &QAbstractButton::clicked, this, [this] { m_timer.toggle(); });
    connect(m_time, &QAbstractButton::clicked, this, &TimerView::openMenu);
    offerOpenMenusToScreenReaders(*this);
    refresh();
    m_timerSubscription = timer.willChange.subscribe([this] { m_refresh.request(); });
}

void TimerView::refresh()
{
    const Shown now {m_timer.displayString(), m_timer.urgency(), m_timer.isRunning()};
    if (m_shown == now)
        return;
    m_shown = now;
    m_play->setSymbol(now.isRunning ? Icon::Pause : Icon::Play, playButtonInk(now.urgency),
        now.isRunning ? QStringLiteral("Pause timer") : QStringLiteral("Start timer"));
    m_time->show(toQString(now.time), now.urgency);
}

void TimerView::openMenu()
{
    m_menu.clear();
    QAction* chosen = nullptr;
    for (const auto& item : timerMenuItems(m_timer)) {
        if (item.choice == TimerMenuItem::Choice::Reset)
            m_menu.addSeparator();
        const auto action = m_menu.addAction(textOf(item), this, [this, item] { choose(item, m_timer); });
        action->setCheckable(item.choice != TimerMenuItem::Choice::Reset);
        action->setChecked(item.isChecked);
        if (item.isChecked)
            chosen = action;
        if (item.choice == TimerMenuItem::Choice::Stopwatch)
            m_menu.addSeparator();
    }
    m_menu.popup(m_time->mapToGlobal(QPoint(0, -m_menu.sizeHint().height() - kPartGap)));
    m_menu.setActiveAction(chosen);
}

} // namespace cuebright
