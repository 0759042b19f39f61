#include "ui/panel/PanelController.h"

#include "foundation/NotificationCenter.h"
#include "platform/Accessibility.h"
#include "platform/CaptureExclusion.h"
#include "platform/Log.h"
#include "platform/WindowSystem.h"
#include "platform/qt/TextConversion.h"
#include "store/CardStore.h"
#include "ui/base/Notifications.h"
#include "ui/base/ShareStatus.h"
#include "ui/panel/CardContentView.h"
#include "ui/panel/GlobalHotKey.h"
#include "ui/panel/KeyMonitor.h"
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

PanelController::~PanelController() { m_context.desktop.windowSystem.release(m_panel->winId()); }

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
    m_context.desktop.captureExclusion.reapplyIfLost(); // before anything can be seen
    m_isMeantToShow = true; // followPanel() runs during orderFront() and must see it set
    prepareToShow();
    m_panel->orderFront();
    // Both need the panel on the screen.
    reportShareStatus();
    reportReturnAfterAbsence();
}

/// What has to be set while the window is still unmapped, or the user would see it change.
void PanelController::prepareToShow()
{
    m_frameMemory.prepareToShow();
    m_context.desktop.windowSystem.keepAboveFullScreen(m_panel->winId());
    m_showHideAnimation.setOpacity(m_context.store.opacity()); // the store's change may still be pending
    m_showHideAnimation.show(motion(m_context)); // starts from that opacity
    if (!m_panel->isOnScreen() && !m_isContentCovered)
        m_content->takeFocus();
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

/// The title bar's buttons and the window manager show and hide the panel, too.
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

void PanelController::setContentCovered(bool isCovered)
{
    m_isContentCovered = isCovered;
    reportShareStatus();
}

/// Once after launch, when the status is known and the user can read it; again each time the exclusion is lost.
void PanelController::reportShareStatus()
{
    auto& exclusion = m_context.desktop.captureExclusion;
    if (!exclusion.isSettled())
        return;
    if (exclusion.state() == CaptureExclusion::State::Excluded)
        m_isShareStatusDue = true;
    if (!m_isShareStatusDue || !isPanelVisible() || m_isContentCovered)
        return;
    if (const auto feedback = shareFeedback(exclusion.state())) {
        m_isShareStatusDue = false;
        m_context.store.showFeedback(std::string(*feedback));
    }
}

void PanelController::reportReturnAfterAbsence()
{
    const auto hiddenAt = std::exchange(m_lastHideTime, std::nullopt);
    if (hiddenAt && m_context.platform.clock.uptime() - *hiddenAt > kAbsence)
        m_context.notifications.post(kReturnAfterAbsenceNotification);
}

void PanelController::installArrowKeyMonitor()
{
    m_arrowKeyMonitor = std::make_unique<KeyMonitor>(m_context, *m_panel, [this] { return isPanelVisible(); });
}

void PanelController::observeStore()
{
    // Any change restarts the delay, even one that title and opacity do not depend on.
    m_storeSubscription = m_context.store.willChange.subscribe([this](const Change&) {
        m_storeUpdate = m_context.platform.mainQueue.after(kStoreDebounce, [this] { followStore(); });
    });
    m_accessibilitySubscription = m_context.platform.accessibility.changed.subscribe([this] { applyOpacity(); });
    m_exclusionSubscription = m_context.desktop.captureExclusion.changed.subscribe([this] { reportShareStatus(); });
    m_reappliedSubscription = m_context.desktop.captureExclusion.reapplied.subscribe([this] {
        m_context.platform.log.writeLine("[Cuebright] WARNING: sharingType was reset — re-applied .none");
        m_context.store.showFeedback("Protection re-applied");
    });
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

void PanelController::applyOpacity()
{
    const double opacity = m_context.store.opacity();
    const bool blursBehind = opacity < 1 && !m_context.platform.accessibility.reduceTransparency();
    m_context.desktop.windowSystem.setBlurBehind(m_panel->winId(), blursBehind);
    m_showHideAnimation.setOpacity(opacity);
}

} // namespace cuebright
