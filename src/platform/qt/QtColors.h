#pragma once

#include "theme/Palette.h"

#include <QColor>

namespace cuebright {

[[nodiscard]] inline QColor toQColor(const Color& color)
{
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
        static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

} // namespace cuebright
