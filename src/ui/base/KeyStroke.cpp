#include "ui/base/KeyStroke.h"

#include "platform/system/DigitRowKeys.h"

#include <algorithm>
#include <array>

namespace cuebright {

namespace {

constexpr auto kCountingModifiers = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

/// The characters of the menus' shortcuts. A key of the digit row that types one of them is no digit.
bool isMenuSign(int key)
{
    constexpr std::array signs {Qt::Key_Minus, Qt::Key_Equal, Qt::Key_Plus, Qt::Key_BracketLeft, Qt::Key_BracketRight,
        Qt::Key_Comma, Qt::Key_Period};
    return std::ranges::find(signs, key) != signs.end();
}

} // namespace

KeyStroke KeyStroke::of(const QKeyEvent& event)
{
    KeyStroke stroke {event.modifiers() & kCountingModifiers, event.key()};
    if (event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9)
        stroke.digit = event.key() - Qt::Key_0;
    else if (!isMenuSign(event.key()))
        stroke.digit = digitRowKey(event.nativeScanCode()).value_or(stroke.digit);
    return stroke;
}

} // namespace cuebright
