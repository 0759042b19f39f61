#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>

#include <functional>
#include <vector>

class QWidget;

namespace cuebright {

/// The application's commands.
enum class Command { NewCard, NewDeck, MoveCardUp, MoveCardDown, Quit };

struct MenuItem {
    QString title;
    Command command;
    QList<QKeySequence> keys; ///< the first is the one shown
};

[[nodiscard]] std::vector<MenuItem> mainMenuItems();

/// Gives `window` an action for every item, with its keys; `perform` is called with the command chosen.
void addCommandActions(QWidget& window, const std::function<void(Command)>& perform);

} // namespace cuebright
