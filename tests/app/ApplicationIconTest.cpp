#include "app/ApplicationIcon.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace cuebright::test {

class ApplicationIcon : public testing::Test {
protected:
    const QTemporaryDir folder;
    const QStringList searchPaths = QIcon::themeSearchPaths();
    const QString themeName = QIcon::themeName();

    void SetUp() override
    {
        QIcon::setThemeSearchPaths({folder.path()});
        QIcon::setThemeName(QStringLiteral("test"));
    }
    void TearDown() override
    {
        QIcon::setThemeSearchPaths(searchPaths);
        QIcon::setThemeName(themeName);
    }

    void installIcon(const QColor& color) const
    {
        const QDir theme(folder.filePath(QStringLiteral("test")));
        ASSERT_TRUE(theme.mkpath(QStringLiteral("32x32/apps")));
        QFile index(theme.filePath(QStringLiteral("index.theme")));
        ASSERT_TRUE(index.open(QIODevice::WriteOnly));
        index.write("[Icon Theme]\nName=test\nDirectories=32x32/apps\n\n[32x32/apps]\nSize=32\n");
        QImage image(32, 32, QImage::Format_RGB32);
        image.fill(color);
        ASSERT_TRUE(image.save(theme.filePath(QStringLiteral("32x32/apps/app.cuebright.Cuebright.png"))));
    }
};

TEST_F(ApplicationIcon, IsACardOnATileWhereTheProgramIsNotInstalled)
{
    for (const int side : {16, 18, 32, 256}) {
        const QImage image = applicationIcon().pixmap(side, side).toImage();
        ASSERT_EQ(image.size(), QSize(side, side));
        const auto colorAt = [&](double x, double y) {
            return image.pixelColor(static_cast<int>(x * side), static_cast<int>(y * side));
        };
        EXPECT_EQ(colorAt(0, 0).alpha(), 0) << side;
        EXPECT_GT(colorAt(0.5, 0.25).lightness(), 235) << side; // paper
        EXPECT_GT(colorAt(0.15, 0.5).hslSaturation(), 150) << side; // the amber tile
        EXPECT_EQ(colorAt(0.15, 0.5).alpha(), 255) << side;
    }
}

TEST_F(ApplicationIcon, IsTheOneOfTheIconThemeWhereThatHasOne)
{
    installIcon(Qt::green);
    QIcon::setThemeName(QStringLiteral("another")); // what was looked up in a theme is remembered
    QIcon::setThemeName(QStringLiteral("test"));
    EXPECT_EQ(applicationIcon().pixmap(32, 32).toImage().pixelColor(16, 16), QColor(Qt::green));
}

} // namespace cuebright::test
