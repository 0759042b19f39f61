#include "platform/windows/WindowsAccessibility.h"

#include "platform/windows/MessageWindow.h"
#include "platform/windows/Personalization.h"

#include <utility>

#include "platform/windows/Win32.h"

namespace cuebright {

WindowsAccessibility::WindowsAccessibility(MessageWindow& messages)
    : m_last(readAll())
    , m_subscription(messages.settingsChanged.subscribe([this] { update(); }))
{
}

bool WindowsAccessibility::reduceMotion()
{
    BOOL areAnimated = TRUE;
    return SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &areAnimated, 0) && !areAnimated;
}

bool WindowsAccessibility::reduceTransparency() { return transparencyIsOff(); }

bool WindowsAccessibility::increaseContrast()
{
    HIGHCONTRASTW contrast {};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0)
        && (contrast.dwFlags & HCF_HIGHCONTRASTON);
}

std::array<bool, 3> WindowsAccessibility::readAll()
{
    return {reduceMotion(), reduceTransparency(), increaseContrast()};
}

void WindowsAccessibility::update()
{
    const auto now = readAll();
    if (std::exchange(m_last, now) != now)
        changed.notify();
}

} // namespace cuebright
