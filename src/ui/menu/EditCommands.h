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

/// Undo, Redo, Cut, Copy, Paste and Select All. They act on the text that has focus. Without one, Undo and Redo act on
/// the store's undo stack, and Copy and Select All on a focused label.
///
/// The two stacks never mix: if a text has nothing left to undo, Undo does nothing. The store's stack is blocked while
/// a card is being edited (the edit would be saved into another card) and while a sheet on the panel is open.
class EditCommands final : public QObject {
public:
    EditCommands(const CardStore& store, const NotesPanel& panel);

    /// False if the command is none of the six.
    bool perform(Command command);

    /// "Undo Add Card"; just "Undo" while a text has focus. UTF-8, without mnemonics.
    [[nodiscard]] std::string title(Command undoOrRedo) const;
    [[nodiscard]] bool isEnabled(Command undoOrRedo) const;

    /// Emitted when the focus moves or Undo or Redo becomes available or unavailable in the focused text.
    Signal<> targetChanged;

private:
    [[nodiscard]] QWidget* focusedText() const;
    void notify();
    [[nodiscard]] bool isStoreUndoBlocked() const;

    const CardStore& m_store;
    const NotesPanel& m_panel;
    std::shared_ptr<UndoManager> m_undoManager;
    QPointer<QWidget> m_focusBeforeMenus; ///< had focus before a menu bar
};

} // namespace cuebright
