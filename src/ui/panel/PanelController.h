#pragma once

#include "foundation/Signal.h"
#include "foundation/WeakTarget.h"
#include "platform/Clock.h"
#include "platform/MainQueue.h"
#include "ui/base/UiContext.h"
#include "ui/panel/FrameMemory.h"
#include "ui/panel/KeyMonitor.h"
#include "ui/panel/ShowHideAnimation.h"

#include <memory>
#include <optional>

class QKeyEvent;

namespace cuebright {

class CardContentView;
class HotKeyRegistration;
class NotesPanel;

/// Owns the panel: makes and fills it, shows and hides it, remembers where it stood, and keeps its title and opacity
/// in step with the store.
class PanelController final {
public:
    explicit PanelController(const UiContext& context);
    PanelController(const PanelController&) = delete;
    PanelController& operator=(const PanelController&) = delete;
    ~PanelController();

    [[nodiscard]] NotesPanel& panelWindow() const { return *m_panel; }
    /// All that the panel shows.
    [[nodiscard]] CardContentView& content() const { return *m_content; }
    /// On the screen and not on its way out.
    [[nodiscard]] bool isPanelVisible() const;

    void togglePanel();
    /// Puts the panel above everything; leaves the keyboard where it is.
    void showPanel();
    void hidePanel();
    /// Says that something lies over the content and has the keyboard: what is told there waits until it has gone.
    void setContentCovered(bool isCovered);
    /// Where the panel stands now is not kept, until the user moves it again.
    void forgetFrame() { m_frameMemory.cancelPendingSave(); }

private:
    void configureContent();
    void installArrowKeyMonitor();
    [[nodiscard]] KeyMonitor::Action actionFor(const QKeyEvent& event);
    void handleHotkeyNotification() { togglePanel(); }

    void observeStore();
    void followStore();
    void updateTitle();
    void applyOpacity();

    void followPanel();
    void reapplyCaptureExclusion();
    void tellWhatTheAudienceSees();
    void endAbsence();

    const UiContext& m_context;
    std::unique_ptr<NotesPanel> m_panel;
    CardContentView* m_content;
    FrameMemory m_frameMemory;
    ShowHideAnimation m_showHideAnimation;
    std::unique_ptr<HotKeyRegistration> m_hotkeyRef;
    std::unique_ptr<KeyMonitor> m_arrowKeyMonitor;
    std::optional<Seconds> m_lastHideTime; ///< by `Clock::uptime`
    bool m_isMeantToShow = false;
    bool m_isShareNoticeDue = true;
    bool m_isContentCovered = false;
    PendingTask m_storeUpdate;
    WeakTarget m_weakTarget;
    Subscription m_storeSubscription;
    Subscription m_accessibilitySubscription;
    Subscription m_exclusionSubscription;
    Subscription m_panelSubscription;
    Subscription m_minimisedSubscription;
    Subscription m_toggleSubscription;
};

} // namespace cuebright
