#include "ui/menu/MainMenu.h"

#include "platform/qt/TextConversion.h"
#include "store/CardStore.h"
#include "store/UndoManager.h"
#include "ui/base/ModalSheets.h"
#include "ui/editor/MarkdownEditor.h"
#include "ui/menu/EditCommands.h"
#include "ui/menu/MenuTree.h"
#include "ui/panel/NotesPanel.h"

#include <QApplication>
#include <QMenuBar>

#include <utility>

namespace cuebright {

namespace {

/// Where the item goes on systems with an application menu.
QAction::MenuRole roleOf(Command command)
{
    switch (command) {
    case Command::ShowAbout:
        return QAction::AboutRole;
    case Command::OpenSettings:
        return QAction::PreferencesRole;
    case Command::CheckForUpdates:
        return QAction::ApplicationSpecificRole;
    case Command::Quit:
        return QAction::QuitRole;
    default:
        return QAction::NoRole;
    }
}

} // namespace

MainMenu::MainMenu(
    const UiContext& context, EditCommands& edit, NotesPanel& panel, std::function<void(Command)> perform)
    : m_context(context)
    , m_edit(edit)
    , m_panel(panel)
    , m_perform(std::move(perform))
    , m_refresh(context.platform.mainQueue, [this] { refresh(); })
{
    for (const auto& tree : mainMenuTree()) {
        // The first letters are the mnemonics: no two titles begin with the same one.
        const auto& menu = m_menus.emplace_back(std::make_unique<QMenu>(QLatin1Char('&') + toActionText(tree.title)));
        addItems(*menu, tree.items);
        QObject::connect(menu.get(), &QMenu::aboutToShow, menu.get(), [this] { refresh(); });
    }
    refresh();
    m_storeSubscription = context.store.willChange.subscribe([this](const Change& change) {
        using enum Change::Property;
        if (change.isOneOf({Decks, ActiveDeckIndex, ActiveCardIndex, IsEditing, Theme}))
            m_refresh.request();
    });
    m_undoSubscription = panel.undoManager()->changed.subscribe([this] { m_refresh.request(); });
    m_panelSubscription = panel.isBlockedChanged.subscribe([this] { m_refresh.request(); });
    m_editSubscription = edit.targetChanged.subscribe([this] { m_refresh.request(); });
}

void MainMenu::addItems(QMenu& menu, const std::vector<MenuItem>& items)
{
    for (const auto& item : items) {
        if (!item.title)
            menu.addSeparator();
        else if (item.command)
            addCommand(menu, item);
        else
            addItems(*menu.addMenu(toActionText(item.title)), item.items);
    }
}

void MainMenu::addCommand(QMenu& menu, const MenuItem& item)
{
    const auto command = *item.command;
    const auto action = menu.addAction(toActionText(item.title));
    action->setMenuRole(roleOf(command));
    action->setShortcuts(item.keys);
    action->setShortcutContext(Qt::ApplicationShortcut);
    action->setAutoRepeat(isCommandRepeatable(command));
    action->setCheckable(themeOf(command));
    QObject::connect(action, &QAction::triggered, action, [this, command] { trigger(command); });
    m_actions.emplace(command, action);
}

void MainMenu::trigger(Command command)
{
    m_refresh.request(); // Qt has toggled the check mark
    // Qt blocks shortcuts only in the window that the sheet belongs to.
    if (isCardCommand(command) && isWaitingForAnswer(m_panel))
        return;
    MarkdownEditor::commitComposition(); // the command may end the edit
    if (!m_edit.perform(command))
        m_perform(command);
}

void MainMenu::addMenusTo(QMenuBar& bar) const
{
    for (const auto& menu : m_menus)
        bar.addMenu(menu.get());
}

void MainMenu::addActionsTo(QWidget& window) const
{
    for (const auto& [command, action] : m_actions)
        window.addAction(action);
}

void MainMenu::refresh()
{
    const bool isWaiting = isWaitingForAnswer(m_panel);
    for (const auto& [command, action] : m_actions) {
        if (command == Command::Undo || command == Command::Redo) {
            action->setText(toActionText(m_edit.title(command)));
            action->setEnabled(m_edit.isEnabled(command));
        } else {
            action->setEnabled(isCommandEnabled(command, m_context.store) && !(isWaiting && isCardCommand(command)));
            action->setChecked(action->isCheckable() && m_context.store.theme() == themeOf(command));
        }
    }
}

} // namespace cuebright
