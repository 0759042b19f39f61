#include "ui/panel/PanelController.h"

#include "ui/base/Notifications.h"

#include "foundation/NotificationCenter.h"
#include "platform/Accessibility.h"
#include "platform/CaptureExclusion.h"
#include "platform/Log.h"
#include "platform/WindowSystem.h"
#include "platform/qt/TextConversion.h"
#include "store/CardStore.h"
#include "ui/base/ShareStatus.h"
#include "ui/panel/CardContentView.h"
#include "ui/panel/GlobalHotKey.h"
#include "ui/panel/NotesPanel.h"

#include <QVBoxLayout>

#include <utility>

namespace cuebright {

namespace {

constexpr QSize kDefaultSize {720, 560};
constexpr QSize kMinimumSize {480, 360};
constexpr Seconds kStoreDebounce {0.2};
constexpr Seconds kAbsence {60};

AnimatedValue::Motion motion(const UiContext& context)
{
    return context.platform.accessibility.reduceMotion() ? AnimatedValue::Motion::AtOnce
                                                         : AnimatedValue::Motion::Animated;
}

} // namespace

PanelController::PanelController(const UiContext& context)
    : m_context(context)
    , m_panel(std::make_unique<NotesPanel>(context))
    , m_content(new CardContentView(context, m_panel.get()))
    , m_frameMemory(context, *m_panel, kDefaultSize)
    , m_showHideAnimation(*m_panel, *m_content, [this] { m_panel->orderOut(); })
{
    m_panel->setMinimumSize(kMinimumSize);
    updateTitle();
    m_frameMemory.restore();
    configureContent();
    observeStore();
    m_panelSubscription = m_panel->isOnScreenChanged.subscribe([this] { followPanel(); });
    m_minimisedSubscription =
        context.desktop.windowSystem.minimisedWithFullScreen.subscribe([this](WindowSystem::WindowId window) {
            if (window == m_panel->winId())
                showPanel();
        });
    m_toggleSubscription =
        context.notifications.observe(kTogglePanelNotification, [this] { handleHotkeyNotification(); });
    m_hotkeyRef = context.desktop.hotKeys.registerHotKey(
        kTogglePanelHotKey, [&notifications = context.notifications] { hotkeyHandler(notifications); });
    installArrowKeyMonitor();
    context.store.setUndoManager(m_panel->undoManager());
}

PanelController::~PanelController()
{
    m_storeUpdate.cancel();
    m_context.desktop.windowSystem.release(m_panel->winId());
}

void PanelController::configureContent()
{
    const auto layout = new QVBoxLayout(m_panel.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_content);
    m_content->takeFocus();
    applyOpacity();
}

bool PanelController::isPanelVisible() const { return m_isMeantToShow && m_panel->isOnScreen(); }

void PanelController::togglePanel()
{
    if (isPanelVisible())
        hidePanel();
    else
        showPanel();
}

void PanelController::showPanel()
{
    reapplyCaptureExclusion();
    m_isMeantToShow = true;
    m_frameMemory.prepareToShow();
    m_showHideAnimation.setOpacity(m_context.store.opacity()); // it may have changed a moment ago
    m_context.desktop.windowSystem.keepAboveFullScreen(m_panel->winId());
    m_showHideAnimation.show(motion(m_context));
    if (!m_panel->isOnScreen() && !m_isContentCovered)
        m_content->takeFocus();
    m_panel->orderFront();
    tellWhatTheAudienceSees();
    endAbsence();
}

void PanelController::hidePanel()
{
    if (!isPanelVisible())
        return;
    m_isMeantToShow = false;
    m_lastHideTime = m_context.platform.clock.uptime();
    m_panel->dismissMenusAndSheets();
    m_showHideAnimation.hide(motion(m_context));
}

/// The window's own buttons and the window manager hide and show the panel too.
void PanelController::followPanel()
{
    if (m_panel->isOnScreen()) {
        if (!m_isMeantToShow)
            showPanel();
        return;
    }
    if (std::exchange(m_isMeantToShow, false))
        m_lastHideTime = m_context.platform.clock.uptime();
    m_panel->dismissMenusAndSheets();
    m_showHideAnimation.reset();
}

void PanelController::reapplyCaptureExclusion()
{
    m_context.desktop.captureExclusion.reapplyIfLost(m_weakTarget.guard([this] {
        m_context.platform.log.writeLine("[Cuebright] WARNING: sharingType was reset — re-applied .none");
        m_context.store.showFeedback("Protection re-applied");
    }));
}

void PanelController::setContentCovered(bool isCovered)
{
    m_isContentCovered = isCovered;
    tellWhatTheAudienceSees();
}

/// Once after launch, as soon as it is known and can be read; and again if what was hidden has come to light.
void PanelController::tellWhatTheAudienceSees()
{
    auto& exclusion = m_context.desktop.captureExclusion;
    if (!exclusion.isSettled())
        return;
    if (exclusion.state() == CaptureExclusion::State::Excluded)
        m_isShareNoticeDue = true;
    if (!m_isShareNoticeDue || !isPanelVisible() || m_isContentCovered)
        return;
    if (const auto feedback = shareFeedback(exclusion.state())) {
        m_isShareNoticeDue = false;
        m_context.store.showFeedback(std::string(*feedback));
    }
}

void PanelController::endAbsence()
{
    const auto hiddenAt = std::exchange(m_lastHideTime, std::nullopt);
    if (hiddenAt && m_context.platform.clock.uptime() - *hiddenAt > kAbsence)
        m_context.notifications.post(kReturnAfterAbsenceNotification);
}

/// The plain arrow keys; and ⌘⇧S, which comes by here only where the system has not taken it for us. Once the panel is
/// on its way off the screen, it takes no key any more: the user is with another program already.
void PanelController::installArrowKeyMonitor()
{
    m_arrowKeyMonitor =
        std::make_unique<KeyMonitor>(*m_panel, [this](const QKeyEvent& event) { return actionFor(event); });
}

KeyMonitor::Action PanelController::actionFor(const QKeyEvent& event)
{
    const auto stroke = KeyStroke::of(event);
    if (isTogglePanelKey(stroke) && !event.isAutoRepeat())
        return [this] { togglePanel(); };
    if (!isPanelVisible())
        return [] {};
    const auto action = arrowKeyAction(stroke, m_context.store.isEditing());
    if (!action)
        return {};
    return [&store = m_context.store, isForward = action->command == PanelCommand::NextCard] {
        isForward ? store.nextCard() : store.prevCard();
    };
}

void PanelController::observeStore()
{
    // Any change restarts the delay, also one that the window does not show.
    m_storeSubscription = m_context.store.willChange.subscribe([this](const Change&) {
        m_storeUpdate.cancel();
        m_storeUpdate =
            m_context.platform.mainQueue.after(kStoreDebounce, m_weakTarget.guard([this] { followStore(); }));
    });
    m_accessibilitySubscription = m_context.platform.accessibility.changed.subscribe([this] { applyOpacity(); });
    m_exclusionSubscription =
        m_context.desktop.captureExclusion.changed.subscribe([this] { tellWhatTheAudienceSees(); });
}

void PanelController::followStore()
{
    updateTitle();
    applyOpacity();
}

void PanelController::updateTitle()
{
    const auto title = toWindowTitle("Cuebright — " + m_context.store.deckName());
    if (m_panel->windowTitle() != title)
        m_panel->setWindowTitle(title);
}

/// Opaque, the panel has nothing behind it that could be blurred.
void PanelController::applyOpacity()
{
    const double opacity = m_context.store.opacity();
    const bool blursBehind = opacity < 1 && !m_context.platform.accessibility.reduceTransparency();
    m_context.desktop.windowSystem.setBlurBehind(m_panel->winId(), blursBehind);
    m_showHideAnimation.setOpacity(opacity);
}

} // namespace cuebright
