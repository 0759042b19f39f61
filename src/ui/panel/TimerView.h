#pragma once

#include "foundation/Signal.h"
#include "timer/TimerManager.h"
#include "ui/base/CoalescedCall.h"
#include "ui/base/ColorRole.h"
#include "ui/base/UiContext.h"

#include <QMenu>
#include <QWidget>

#include <optional>
#include <vector>

namespace cuebright {

/// A row of the timer's menu.
struct TimerMenuItem {
    enum class Choice { Stopwatch, Countdown, Reset };

    Choice choice;
    std::int64_t minutes = 0; ///< of the countdown
    bool isChecked = false;
};

[[nodiscard]] std::vector<TimerMenuItem> timerMenuItems(const TimerManager& timer);
[[nodiscard]] QString textOf(const TimerMenuItem& item);
void choose(const TimerMenuItem& item, TimerManager& timer);

[[nodiscard]] ColorRole timerColor(TimerManager::Urgency urgency);
/// The play button warns only at the very end.
[[nodiscard]] ColorRole playButtonInk(TimerManager::Urgency urgency);
/// Background of the time.
[[nodiscard]] Color timerFill(TimerManager::Urgency urgency, const Colors& colors);

class ChromeButton;
class TimeButton;

/// The talk timer: a button that starts and pauses it, and the time with a menu of durations.
class TimerView final : public QWidget {
public:
    TimerView(const UiContext& context, TimerManager& timer, QWidget* parent);

    void refresh();

private:
    struct Shown {
        std::string time;
        TimerManager::Urgency urgency;
        bool isRunning;

        bool operator==(const Shown&) const = default;
    };

    void openMenu();

    const UiContext& m_context;
    TimerManager& m_timer;
    ChromeButton* m_play;
    TimeButton* m_time;
    QMenu m_menu;
    std::optional<Shown> m_shown;
    CoalescedCall m_refresh;
    Subscription m_timerSubscription;
};

} // namespace cuebright
