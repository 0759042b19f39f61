#include "ui/menu/SafeFileName.h"

#include "platform/qt/TextConversion.h"

#include <QTextBoundaryFinder>

#include <utility>

namespace cuebright {

namespace {

/// In bytes. File systems allow 255; the suffix and the temporary file's name need some of them.
constexpr std::size_t kLongestName = 200;

QString withoutSpecialCharacters(QString name)
{
    for (auto& c : name) {
        if (c == QLatin1Char('/') || c == QLatin1Char('\\'))
            c = QLatin1Char('-');
        else if (c == QLatin1Char('"'))
            c = QLatin1Char('\''); // QFileDialog reads quotation marks as delimiters of several names
    }
    return toOneLine(std::move(name));
}

/// Cut to `kLongestName` between two grapheme clusters.
QString shortened(const QString& name)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, name);
    qsizetype end = 0;
    for (auto next = finder.toNextBoundary(); next > 0; next = finder.toNextBoundary()) {
        if (toUtf8(name.left(next)).size() > kLongestName)
            break;
        end = next;
    }
    return name.left(end);
}

} // namespace

std::string safeFileName(std::string_view deckName)
{
    auto name = withoutSpecialCharacters(toQString(deckName));
    // At the start these mean a hidden file, a home folder or a Qt resource.
    const auto isSkipped = [](QChar c) { return c.isSpace() || QLatin1String(".~:").contains(c); };
    qsizetype start = 0;
    while (start < name.size() && isSkipped(name[start]))
        ++start;
    name = shortened(name.mid(start)).trimmed();
    return name.isEmpty() ? "Untitled" : toUtf8(name);
}

} // namespace cuebright
