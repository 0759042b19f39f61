#pragma once

#include "foundation/Signal.h"
#include "platform/Clock.h"
#include "platform/MainQueue.h"
#include "ui/base/UiContext.h"
#include "ui/panel/FrameMemory.h"
#include "ui/panel/ShowHideAnimation.h"

#include <memory>
#include <optional>

namespace cuebright {

class CardContentView;
class HotKeyRegistration;
class KeyMonitor;
class NotesPanel;

/// Owns the panel: fills it, shows and hides it, remembers its geometry, handles its keys, and keeps its title and
/// opacity in step with the store.
class PanelController final {
public:
    explicit PanelController(const UiContext& context);
    PanelController(const PanelController&) = delete;
    PanelController& operator=(const PanelController&) = delete;
    ~PanelController();

    [[nodiscard]] NotesPanel& panelWindow() const { return *m_panel; }
    [[nodiscard]] CardContentView& content() const { return *m_content; }
    /// False as soon as the panel begins to hide.
    [[nodiscard]] bool isPanelVisible() const;

    void togglePanel();
    /// Shows the panel above all windows without giving it focus.
    void showPanel();
    void hidePanel();
    /// While an overlay covers the content, it keeps the focus, and messages about screen sharing wait.
    void setContentCovered(bool isCovered);
    /// Drops a geometry that is not saved yet.
    void forgetFrame() { m_frameMemory.cancelPendingSave(); }

private:
    void configureContent();
    void installArrowKeyMonitor();
    void handleHotkeyNotification() { togglePanel(); }

    void observeStore();
    void followStore();
    void updateTitle();
    void applyOpacity();

    void followPanel();
    void prepareToShow();
    void reportShareStatus();
    void reportReturnAfterAbsence();

    const UiContext& m_context;
    std::unique_ptr<NotesPanel> m_panel;
    CardContentView* m_content;
    FrameMemory m_frameMemory;
    ShowHideAnimation m_showHideAnimation;
    std::unique_ptr<HotKeyRegistration> m_hotkeyRef;
    std::unique_ptr<KeyMonitor> m_arrowKeyMonitor; ///< filters all keys of the panel
    std::optional<Seconds> m_lastHideTime; ///< by `Clock::uptime`
    bool m_isMeantToShow = false;
    bool m_isShareStatusDue = true;
    bool m_isContentCovered = false;
    PendingTask m_storeUpdate;
    Subscription m_storeSubscription;
    Subscription m_accessibilitySubscription;
    Subscription m_exclusionSubscription;
    Subscription m_reappliedSubscription;
    Subscription m_panelSubscription;
    Subscription m_minimisedSubscription;
    Subscription m_toggleSubscription;
};

} // namespace cuebright
