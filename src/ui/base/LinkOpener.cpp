#include "ui/base/LinkOpener.h"

#include "platform/qt/TextConversion.h"

#include <QDesktopServices>
#include <QUrl>

#include <algorithm>
#include <array>

namespace cuebright {

namespace {

QUrl urlOf(std::string_view target) { return QUrl(toQString(target), QUrl::TolerantMode); }

} // namespace

bool isOpenableLink(std::string_view target)
{
    const auto url = urlOf(target);
    const auto scheme = url.scheme(); // in lower case
    if (!url.isValid() || scheme.size() < 2) // one letter is a Windows drive
        return false;
    if (scheme == QLatin1String("http") || scheme == QLatin1String("https"))
        return !url.host().isEmpty();
    constexpr std::array scripts {"javascript", "vbscript", "data"};
    const bool isScript = std::ranges::any_of(scripts, [&](const char* name) { return scheme == QLatin1String(name); });
    return !isScript && !(url.host().isEmpty() && url.path().isEmpty());
}

void openLink(std::string_view target)
{
    if (isOpenableLink(target))
        QDesktopServices::openUrl(urlOf(target));
}

} // namespace cuebright
