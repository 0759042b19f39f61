#include "ui/widgets/ApplicationIcon.h"

#include "platform/ApplicationId.h"
#include "ui/widgets/DrawnIcon.h"

#include <QSvgRenderer>

namespace cuebright {

namespace {

/// Needs none of Qt's image plug-ins, which some systems package separately.
class BuiltInIcon final : public DrawnIcon {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override
    {
        QSvgRenderer(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(kApplicationId))).render(painter, rect);
    }

    [[nodiscard]] QIconEngine* clone() const override { return new BuiltInIcon; }

    /// The sizes that the window system gets.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override
    {
        QList<QSize> sizes;
        for (const int side : {16, 22, 24, 32, 48, 64, 128})
            sizes << QSize(side, side);
        return sizes;
    }
};

} // namespace

QIcon applicationIcon()
{
    const QIcon installed = QIcon::fromTheme(QString::fromLatin1(kApplicationId));
    return installed.isNull() ? QIcon(new BuiltInIcon) : installed;
}

} // namespace cuebright
