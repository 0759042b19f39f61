#include "Program.h"

#include "store/PreferenceKeys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QWindow>

namespace cuebright::soak {

void Program::start()
{
    fake.accessibility.motionReduced = true;
    fake.preferences.setBoolean(preferenceKeys::kOnboardingDone, true);
    m_delegate = std::make_unique<AppDelegate>(fake.platform(), fake.desktop());
    m_delegate->applicationDidFinishLaunching();
    settle();
}

void Program::end()
{
    m_delegate->applicationWillTerminate();
    m_delegate.reset();
}

void Program::settle()
{
    fake.mainQueue.runPosted();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    fake.mainQueue.runPosted();
}

MarkdownEditor* Program::editor()
{
    const auto text = panel().findChild<QPlainTextEdit*>();
    return text && text->isVisibleTo(&panel()) ? dynamic_cast<MarkdownEditor*>(text) : nullptr;
}

QDialog* Program::sheet()
{
    for (const auto dialog : panel().findChildren<QDialog*>()) {
        if (dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

/// Qt's offscreen platform takes a window that is shown again for the active one and then does not activate it, unless
/// another one was active in between.
void Program::activate()
{
    if (panel().isActiveWindow())
        return;
    QWidget other;
    for (const auto window : {&other, static_cast<QWidget*>(&panel())}) {
        window->show();
        window->activateWindow();
        QCoreApplication::processEvents();
    }
    if (!panel().isActiveWindow())
        qFatal("the panel cannot be activated");
    settle(); // the menus follow the focus
}

void Program::key(int key, Qt::KeyboardModifiers modifiers)
{
    activate();
    QTest::keyClick(panel().windowHandle(), static_cast<Qt::Key>(key), modifiers);
}

void Program::trigger(const char* title)
{
    if (isFree())
        activate();
    for (const auto action : panel().actions()) {
        if (action->text().startsWith(QString::fromUtf8(title)))
            return action->trigger();
    }
    qFatal("no menu item %s", title);
}

void Program::click(QWidget& window, const char* name)
{
    for (const auto button : window.findChildren<QAbstractButton*>()) {
        const QLatin1String wanted(name);
        if (button->isVisibleTo(&window) && (button->text() == wanted || button->accessibleName() == wanted))
            return button->click();
    }
    qFatal("no button %s", name);
}

} // namespace cuebright::soak
