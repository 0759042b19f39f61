#pragma once

#include "app/AppDelegate.h"
#include "store/CardStore.h"
#include "store/UndoManager.h"
#include "support/FakePlatform.h"
#include "ui/editor/MarkdownEditor.h"
#include "ui/panel/NotesPanel.h"

#include <QDialog>

#include <memory>

namespace cuebright::soak {

/// The real program with its windows, on a fake platform whose time stands still until it is advanced.
class Program {
public:
    Program() { start(); }

    void start();
    void end();
    /// Runs what is posted, so that the views show the latest state.
    void settle();

    [[nodiscard]] CardStore& store() { return m_delegate->store(); }
    [[nodiscard]] NotesPanel& panel() { return m_delegate->panelWindow(); }
    [[nodiscard]] UndoManager& undoManager() { return *panel().undoManager(); }
    [[nodiscard]] MarkdownEditor* editor(); ///< null while none is visible
    [[nodiscard]] QDialog* sheet(); ///< the open one, or null
    /// On screen, with no sheet open.
    [[nodiscard]] bool isFree() { return panel().isVisible() && !sheet(); }
    [[nodiscard]] bool isWriting() { return isFree() && editor() && panel().focusWidget() == editor(); }

    void key(int key, Qt::KeyboardModifiers modifiers = {});
    /// Triggers the main menu's item whose title begins with `title`.
    void trigger(const char* title);
    /// Clicks a button of `window`, by its text or its accessible name.
    static void click(QWidget& window, const char* name);

    test::FakePlatform fake;

private:
    void activate();

    std::unique_ptr<AppDelegate> m_delegate;
};

} // namespace cuebright::soak
