#pragma once

#include "foundation/Signal.h"
#include "ui/base/CoalescedCall.h"
#include "ui/base/UiContext.h"
#include "ui/menu/Command.h"

#include <QAction>
#include <QMenu>

#include <functional>
#include <map>
#include <memory>
#include <vector>

class QMenuBar;

namespace cuebright {

class EditCommands;
class NotesPanel;
struct MenuItem;

/// The main menu's menus and actions, made once. What is enabled, what carries a check mark, and what Undo and Redo are
/// called follows the store and the keyboard once per turn of the event loop, whether a menu opens or not: keys and
/// screen readers go by it too.
///
/// A key works in every window that has the actions.
class MainMenu final {
public:
    /// `perform` gets every command but those that `edit` performs. While a sheet on the panel waits for an answer,
    /// none that changes cards can be had. All that is passed in must outlive this.
    MainMenu(const UiContext& context, EditCommands& edit, NotesPanel& panel, std::function<void(Command)> perform);
    MainMenu(const MainMenu&) = delete;
    MainMenu& operator=(const MainMenu&) = delete;

    void addMenusTo(QMenuBar& bar) const;
    /// Has the keys work while this window has the keyboard, be its menu bar on the screen or not.
    void addActionsTo(QWidget& window) const;

    [[nodiscard]] QAction& action(Command command) const { return *m_actions.at(command); }
    void refresh();

private:
    void addItems(QMenu& menu, const std::vector<MenuItem>& items);
    void addCommand(QMenu& menu, const MenuItem& item);
    void trigger(Command command);

    const UiContext& m_context;
    EditCommands& m_edit;
    const NotesPanel& m_panel;
    std::function<void(Command)> m_perform;
    std::vector<std::unique_ptr<QMenu>> m_menus;
    std::map<Command, QAction*> m_actions; ///< owned by their menus
    CoalescedCall m_refresh;
    Subscription m_storeSubscription;
    Subscription m_undoSubscription;
    Subscription m_panelSubscription;
    Subscription m_editSubscription;
};

} // namespace cuebright
