#pragma once

#include "app/AppDelegate.h"
#include "store/UndoManager.h"
#include "support/FakePlatform.h"
#include "ui/editor/MarkdownEditor.h"
#include "ui/panel/NotesPanel.h"

#include <QAbstractButton>

#include <memory>

namespace cuebright::soak {

/// The real program with its windows, on surroundings in memory whose time stands still until it is moved.
class Program {
public:
    Program() { start(); }

    void start();
    void end();
    /// Lets the views take in what has happened.
    void settle();

    [[nodiscard]] CardStore& store() { return m_delegate->store(); }
    [[nodiscard]] NotesPanel& panel() { return m_delegate->panelWindow(); }
    [[nodiscard]] MarkdownEditor* editor(); ///< null while none is on screen
    [[nodiscard]] QAbstractButton* button(const char* accessibleNameStart); ///< null while none is on screen
    [[nodiscard]] QDialog* sheet(); ///< that is open
    [[nodiscard]] bool isTimerRunning() { return button("Pause timer"); }

    void key(int key, Qt::KeyboardModifiers modifiers = {});
    void type(const QString& text);
    /// Triggers the item of the main menu whose title begins so.
    void trigger(const char* title);
    void answer(const char* buttonText);

    test::FakePlatform fake;

private:
    void activate();

    std::unique_ptr<AppDelegate> m_delegate;
};

} // namespace cuebright::soak
