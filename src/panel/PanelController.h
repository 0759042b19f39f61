#pragma once

#include "foundation/Signal.h"
#include "foundation/WeakTarget.h"
#include "panel/PanelContext.h"
#include "platform/MainQueue.h"

#include <QString>

#include <memory>

namespace cuebright {

class CardContentView;
class NotesPanel;

/// Makes the panel, fills it and keeps its title in step with the store.
class PanelController final {
public:
    explicit PanelController(const PanelContext& context);
    PanelController(const PanelController&) = delete;
    PanelController& operator=(const PanelController&) = delete;
    ~PanelController();

    [[nodiscard]] NotesPanel& panelWindow() const { return *m_panel; }
    /// All that the panel shows.
    [[nodiscard]] CardContentView& content() const { return *m_content; }
    void showPanel();

private:
    void observeStore();
    void updateTitle();

    const PanelContext& m_context;
    std::unique_ptr<NotesPanel> m_panel;
    CardContentView* m_content;
    PendingTask m_titleUpdate;
    WeakTarget m_weakTarget;
    Subscription m_storeSubscription;
};

} // namespace cuebright
