#include "platform/system/TrayAvailability.h"

#include <QTimer>

#include <utility>

namespace cuebright {

/// The system always has a tray.
struct TrayAvailability::System {
    QTimer available {};
};

TrayAvailability::TrayAvailability(std::function<void()> available)
    : m_system(std::make_unique<System>())
{
    auto& timer = m_system->available;
    QObject::connect(&timer, &QTimer::timeout, &timer, std::move(available));
    timer.setSingleShot(true);
    timer.start(0);
}

TrayAvailability::~TrayAvailability() = default;

QString exportedMenuText(QString title) { return title.replace(QLatin1Char('&'), QStringLiteral("&&")); }

} // namespace cuebright
