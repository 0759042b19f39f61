#include "platform/qt/QtPlatform.h"

#include "platform/Accessibility.h"
#include "platform/Clock.h"
#include "platform/qt/SystemServices.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace cuebright {

QtPlatform::QtPlatform(const std::filesystem::path& preferencesFile)
    : m_clock(makeClock())
    , m_accessibility(makeAccessibility())
    , m_preferences(m_mainQueue, preferencesFile)
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
    return {*m_clock, m_uuids, m_mainQueue, m_fileSystem, m_preferences, *m_accessibility, m_appearance, m_log};
}

} // namespace cuebright
