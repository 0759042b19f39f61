#include "Program.h"

#include "store/CardStore.h"
#include "store/PreferenceKeys.h"

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QWindow>

#include <algorithm>

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

QAbstractButton* Program::button(const char* accessibleNameStart)
{
    for (const auto candidate : panel().findChildren<QAbstractButton*>()) {
        if (candidate->isVisibleTo(&panel())
            && candidate->accessibleName().startsWith(QLatin1String(accessibleNameStart)))
            return candidate;
    }
    return nullptr;
}

QDialog* Program::sheet()
{
    const auto sheets = panel().findChildren<QDialog*>();
    const auto open = std::find_if(sheets.begin(), sheets.end(), [](auto sheet) { return sheet->isVisible(); });
    return open == sheets.end() ? nullptr : *open;
}

/// Qt's offscreen platform takes a window that comes back for the one with the keyboard, and then does not give it any:
/// another one must have had it in between.
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
        qFatal("the panel gets no keyboard");
    settle(); // the menus follow the keyboard
}

void Program::key(int key, Qt::KeyboardModifiers modifiers)
{
    activate();
    QTest::keyClick(panel().windowHandle(), static_cast<Qt::Key>(key), modifiers);
}

void Program::type(const QString& text)
{
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, text);
    QApplication::sendEvent(editor(), &press);
}

void Program::trigger(const char* title)
{
    if (panel().isVisible() && !sheet())
        activate();
    for (const auto action : panel().actions()) {
        if (action->text().startsWith(QString::fromUtf8(title)))
            return action->trigger();
    }
    qFatal("no such item in the menus");
}

void Program::answer(const char* buttonText)
{
    for (const auto candidate : sheet()->findChildren<QAbstractButton*>()) {
        if (candidate->text() == QLatin1String(buttonText))
            return candidate->click();
    }
    qFatal("no such button on the sheet");
}

} // namespace cuebright::soak
