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

/// The main menu's menus and actions. Enabled states, check marks and the titles of Undo and Redo follow the store and
/// the focus even while no menu is open, since shortcuts and screen readers depend on them.
///
/// Shortcuts work in every window that has the actions.
class MainMenu final {
public:
    /// `perform` gets the commands that `edit` does not perform. Commands that change cards are disabled while a sheet
    /// on the panel is open. All arguments must outlive this.
    MainMenu(const UiContext& context, EditCommands& edit, NotesPanel& panel, std::function<void(Command)> perform);
    MainMenu(const MainMenu&) = delete;
    MainMenu& operator=(const MainMenu&) = delete;

    void addMenusTo(QMenuBar& bar) const;
    /// Makes the shortcuts work in `window`, whether its menu bar is visible or not.
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
