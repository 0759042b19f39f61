#pragma once

#include "foundation/Signal.h"
#include "ui/menu/Command.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <string>

class QWidget;

namespace cuebright {

class CardStore;
class NotesPanel;
class UndoManager;

/// Undo, Redo, Cut, Copy, Paste and Select All. They act on the text that has the keyboard; while none has, Undo and
/// Redo act on the store's stack and the others do nothing.
///
/// The two stacks never mix: with nothing left to undo in a text, Undo does nothing; and while a card is being edited
/// the store's stack rests, or the edit would be saved into the card that takes its place. It also rests while a sheet
/// on the panel waits for an answer.
class EditCommands final : public QObject {
public:
    EditCommands(const CardStore& store, const NotesPanel& panel);

    /// False where the command is not one of the six.
    bool perform(Command command);

    /// "Undo Add Card"; plain "Undo" while a text has the keyboard. UTF-8 as it shows.
    [[nodiscard]] std::string title(Command undoOrRedo) const;
    [[nodiscard]] bool isEnabled(Command undoOrRedo) const;

    /// Another widget has the focus, or Undo or Redo has become available or unavailable in the focused text.
    Signal<> targetChanged;

private:
    [[nodiscard]] QWidget* focusedText() const;
    void notify();
    [[nodiscard]] bool isStoreUndoBlocked() const;

    const CardStore& m_store;
    const NotesPanel& m_panel;
    std::shared_ptr<UndoManager> m_undoManager;
    QPointer<QWidget> m_focusBeforeMenus; ///< had the keyboard before a menu bar took it
};

} // namespace cuebright
