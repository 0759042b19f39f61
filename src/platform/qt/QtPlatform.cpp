#include "platform/qt/QtPlatform.h"

#include "platform/system/SystemServices.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace cuebright {

QtPlatform::QtPlatform(const std::filesystem::path& preferencesFile)
    : m_preferences(m_mainQueue, preferencesFile)
    , m_system(makeSystemServices(m_appearance, m_mainQueue))
{
}

QtPlatform::~QtPlatform() = default;

std::filesystem::path QtPlatform::defaultPreferencesFile()
{
    const auto settings = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QFileInfo(settings + QStringLiteral("/Cuebright/Cuebright.conf")).filesystemFilePath();
}

Platform QtPlatform::services()
{
    return {m_system->clock(), m_uuids, m_mainQueue, m_fileSystem, m_preferences, m_system->accessibility(),
        m_appearance, m_log};
}

Desktop QtPlatform::desktop() { return m_system->desktop(); }

void QtPlatform::start() { m_system->start(); }

} // namespace cuebright
