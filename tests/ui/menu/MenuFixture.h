#pragma once

#include "store/UndoManager.h"
#include "support/EventLoop.h"
#include "ui/menu/EditCommands.h"
#include "ui/menu/MainMenu.h"
#include "ui/menu/MenuBarStrip.h"
#include "ui/panel/NotesPanel.h"
#include "ui/panel/PanelController.h"
#include "ui/panel/PanelFixture.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QTest>
#include <QWindow>

namespace cuebright::test {

/// The real panel with the main menu, on screen and active.
class MenuFixture : public PanelFixture {
protected:
    MenuFixture()
    {
        fake.accessibility.motionReduced = true;
        mainMenu.addMenusTo(strip);
        mainMenu.addActionsTo(panel);
        setCards({"one", "two", "three"});
    }

    void SetUp() override
    {
        controller.showPanel();
        focusWindow(panel);
    }

    void focusWindow(QWidget& window)
    {
        activate(window);
        refresh();
    }
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, QWidget* window = nullptr)
    {
        QTest::keyClick((window ? window : &panel)->windowHandle(), static_cast<Qt::Key>(key), modifiers);
        refresh();
    }
    void trigger(Command command)
    {
        mainMenu.action(command).trigger();
        refresh();
    }
    /// The editor of a new edit of the active card.
    QPlainTextEdit& editor()
    {
        store.beginEditing();
        refresh();
        const auto focused = qobject_cast<QPlainTextEdit*>(QApplication::focusWidget());
        EXPECT_TRUE(focused);
        return *focused;
    }

    std::vector<Command> performed;
    PanelController controller {context};
    NotesPanel& panel = controller.panelWindow();
    EditCommands edit {store, panel};
    MainMenu mainMenu {context, edit, panel, [this](Command command) { performed.push_back(command); }};
    MenuBarStrip& strip = *new MenuBarStrip(context, &panel);
};

} // namespace cuebright::test
