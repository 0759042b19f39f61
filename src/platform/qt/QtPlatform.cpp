#include "platform/qt/QtPlatform.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace cuebright {

QtPlatform::QtPlatform(const std::filesystem::path& preferencesFile)
    : m_preferences(m_mainQueue, preferencesFile)
{
}

std::filesystem::path QtPlatform::defaultPreferencesFile()
{
    const auto settings = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QFileInfo(settings + QStringLiteral("/Cuebright/Cuebright.conf")).filesystemFilePath();
}

Platform QtPlatform::services()
{
    return {m_clock, m_uuids, m_mainQueue, m_fileSystem, m_preferences, m_system.accessibility(), m_appearance, m_log};
}

Desktop QtPlatform::desktop() { return m_system.desktop(); }

void QtPlatform::start() { m_system.start(); }

} // namespace cuebright
