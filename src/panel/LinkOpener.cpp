#include "panel/LinkOpener.h"

#include "panel/TextConversion.h"

#include <QDesktopServices>
#include <QUrl>

namespace cuebright {

namespace {

QUrl urlOf(std::string_view target) { return QUrl(toQString(target), QUrl::TolerantMode); }

} // namespace

bool isOpenableLink(std::string_view target)
{
    const auto url = urlOf(target);
    if (!url.isValid())
        return false;
    const auto scheme = url.scheme(); // in lower case
    if (scheme == QLatin1String("mailto"))
        return !url.path().isEmpty();
    return (scheme == QLatin1String("http") || scheme == QLatin1String("https")) && !url.host().isEmpty();
}

void openLink(std::string_view target)
{
    if (isOpenableLink(target))
        QDesktopServices::openUrl(urlOf(target));
}

} // namespace cuebright
