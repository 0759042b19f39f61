#include "app/MainMenu.h"

#include <QAction>
#include <QWidget>

namespace cuebright {

std::vector<MenuItem> mainMenuItems()
{
    // Many desktops take Ctrl+Alt+Up and Down for themselves, so moving a card has a second key.
    return {
        {QStringLiteral("New Card"), Command::NewCard, {Qt::CTRL | Qt::Key_N}},
        {QStringLiteral("New Deck"), Command::NewDeck, {Qt::CTRL | Qt::SHIFT | Qt::Key_N}},
        {QStringLiteral("Move Card Up"), Command::MoveCardUp,
            {Qt::CTRL | Qt::ALT | Qt::Key_Up, Qt::CTRL | Qt::SHIFT | Qt::Key_Up}},
        {QStringLiteral("Move Card Down"), Command::MoveCardDown,
            {Qt::CTRL | Qt::ALT | Qt::Key_Down, Qt::CTRL | Qt::SHIFT | Qt::Key_Down}},
        {QStringLiteral("Quit Cuebright"), Command::Quit, {Qt::CTRL | Qt::Key_Q}},
    };
}

void addCommandActions(QWidget& window, const std::function<void(Command)>& perform)
{
    for (const auto& item : mainMenuItems()) {
        const auto action = new QAction(item.title, &window);
        action->setShortcuts(item.keys);
        action->setShortcutContext(Qt::ApplicationShortcut);
        QObject::connect(action, &QAction::triggered, &window, [perform, command = item.command] { perform(command); });
        window.addAction(action);
    }
}

} // namespace cuebright
