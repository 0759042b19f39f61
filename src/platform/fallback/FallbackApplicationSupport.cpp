#include "platform/system/ApplicationSupport.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace cuebright {

std::optional<std::filesystem::path> applicationSupportFolder()
{
    const auto folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (folder.isEmpty())
        return std::nullopt;
    return QFileInfo(folder).filesystemFilePath();
}

} // namespace cuebright
