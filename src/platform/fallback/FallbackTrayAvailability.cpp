#include "platform/system/TrayAvailability.h"

#include <QTimer>

#include <utility>

namespace cuebright {

namespace {

/// The system has always such a place.
class ImmediateTrayWatch final : public TrayAvailability {
public:
    explicit ImmediateTrayWatch(std::function<void()> arrived)
    {
        QObject::connect(&m_next, &QTimer::timeout, &m_next, std::move(arrived));
        m_next.setSingleShot(true);
        m_next.start(0);
    }

private:
    QTimer m_next;
};

} // namespace

std::unique_ptr<TrayAvailability> watchForTray(std::function<void()> arrived)
{
    return std::make_unique<ImmediateTrayWatch>(std::move(arrived));
}

QString exportedMenuText(QString title) { return title.replace(QLatin1Char('&'), QStringLiteral("&&")); }

} // namespace cuebright
