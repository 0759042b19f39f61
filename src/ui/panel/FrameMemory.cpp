#include "ui/panel/FrameMemory.h"

#include "platform/Preferences.h"
#include "store/PreferenceKeys.h"
#include "ui/base/UiContext.h"
#include "ui/panel/WindowFrame.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace cuebright {

namespace {

constexpr Seconds kSaveDelay {0.5};

QRect primaryScreen()
{
    const auto screen = QGuiApplication::primaryScreen();
    return screen ? screen->geometry() : QRect();
}

QList<QRect> availableScreens()
{
    QList<QRect> areas;
    for (const auto screen : QGuiApplication::screens())
        areas << screen->availableGeometry();
    return areas;
}

QRect centred(const QSize& size)
{
    QRect frame({0, 0}, size);
    if (const auto screen = QGuiApplication::primaryScreen())
        frame.moveCenter(screen->availableGeometry().center());
    return frame;
}

} // namespace

FrameMemory::FrameMemory(const UiContext& context, QWidget& window, const QSize& defaultSize)
    : m_context(context)
    , m_window(window)
    , m_defaultSize(defaultSize)
{
    window.installEventFilter(this);
    // Qt removes screens one by one; queued, the check runs after the last.
    connect(
        qGuiApp, &QGuiApplication::screenRemoved, this, [this] { centreIfOffScreen(); }, Qt::QueuedConnection);
}

FrameMemory::~FrameMemory()
{
    if (m_isSavePending)
        save();
}

void FrameMemory::restore()
{
    const auto stored = m_context.platform.preferences.numbers(preferenceKeys::kWindowFrame);
    const auto frame = restoredFrame(stored, primaryScreen(), m_window.minimumSize(), availableScreens());
    place(frame.value_or(centred(m_defaultSize)));
}

void FrameMemory::prepareToShow()
{
    if (!m_window.isVisible())
        place(m_knownFrame);
    centreIfOffScreen();
}

void FrameMemory::centreIfOffScreen()
{
    const auto screens = availableScreens();
    if (!screens.isEmpty() && !isSeen(m_knownFrame, screens)) // with no screen at all, wait for one
        place(centred(m_defaultSize));
}

void FrameMemory::place(const QRect& frame)
{
    m_window.setGeometry(frame);
    m_knownFrame = frame;
}

void FrameMemory::cancelPendingSave()
{
    m_save.cancel();
    m_isSavePending = false;
}

bool FrameMemory::eventFilter(QObject*, QEvent* event)
{
    const bool isMove = event->type() == QEvent::Move || event->type() == QEvent::Resize;
    const bool isOrdinary = m_window.isVisible() && !m_window.isMaximized() && !m_window.isFullScreen();
    if (!isMove || !event->spontaneous() || !isOrdinary || m_window.geometry() == m_knownFrame)
        return false;
    m_knownFrame = m_window.geometry();
    m_isSavePending = true;
    m_save = m_context.platform.mainQueue.after(kSaveDelay, [this] { save(); });
    return false;
}

void FrameMemory::save()
{
    cancelPendingSave();
    m_context.platform.preferences.setNumbers(preferenceKeys::kWindowFrame, storedFrame(m_knownFrame, primaryScreen()));
}

} // namespace cuebright
