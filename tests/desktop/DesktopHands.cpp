#include "desktop/DesktopDisplay.h"

#include <map>

namespace cuebright::test {

namespace {

KeySym keyNamed(std::string_view name)
{
    const std::map<std::string_view, const char*> modifiers {
        {"ctrl", "Control_L"}, {"alt", "Alt_L"}, {"shift", "Shift_L"}};
    const auto modifier = modifiers.find(name);
    const KeySym key = XStringToKeysym(modifier == modifiers.end() ? std::string(name).c_str() : modifier->second);
    if (key == NoSymbol)
        throw std::runtime_error("no key is called " + std::string(name));
    return key;
}

} // namespace

void Desktop::click(int x, int y)
{
    XTestFakeMotionEvent(m_display->connection, -1, x, y, CurrentTime);
    XTestFakeButtonEvent(m_display->connection, Button1, True, CurrentTime);
    XTestFakeButtonEvent(m_display->connection, Button1, False, CurrentTime);
    XSync(m_display->connection, False);
}

void Desktop::drag(int fromX, int fromY, int toX, int toY)
{
    constexpr int kSteps = 20;
    XTestFakeMotionEvent(m_display->connection, -1, fromX, fromY, CurrentTime);
    XTestFakeButtonEvent(m_display->connection, Button1, True, CurrentTime);
    for (int step = 1; step <= kSteps; ++step) {
        XTestFakeMotionEvent(m_display->connection, -1, fromX + (toX - fromX) * step / kSteps,
            fromY + (toY - fromY) * step / kSteps, 10); // the pace of a hand, in milliseconds
    }
    XTestFakeButtonEvent(m_display->connection, Button1, False, 50);
    XSync(m_display->connection, False);
}

void Desktop::press(std::string_view chord)
{
    std::vector<KeySym> keys;
    for (auto plus = chord.find('+'); plus != std::string_view::npos; plus = chord.find('+')) {
        keys.push_back(keyNamed(chord.substr(0, plus)));
        chord.remove_prefix(plus + 1);
    }
    keys.push_back(keyNamed(chord));
    m_display->tap(keys);
}

void Desktop::type(std::string_view text)
{
    for (const char letter : text)
        m_display->tap({letter == '\n' ? keyNamed("Return") : static_cast<unsigned char>(letter)});
}

} // namespace cuebright::test
