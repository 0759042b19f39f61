#include "ui/widgets/ApplicationIcon.h"

#include "support/TemporaryFolder.h"

#include <QColor>
#include <QImage>

#include <gtest/gtest.h>

namespace cuebright::test {

/// An icon theme of our own, empty at first.
class ApplicationIcon : public testing::Test {
protected:
    const TemporaryFolder folder;
    const QStringList searchPaths = QIcon::themeSearchPaths();
    const QString themeName = QIcon::themeName();

    void SetUp() override
    {
        QIcon::setThemeSearchPaths({QString::fromStdString(folder.path().string())});
        QIcon::setThemeName(QStringLiteral("test"));
    }
    void TearDown() override
    {
        QIcon::setThemeSearchPaths(searchPaths);
        QIcon::setThemeName(themeName);
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
    const auto icons = folder.file("test/apps");
    ASSERT_TRUE(std::filesystem::create_directories(icons));
    folder.write("test/index.theme", "[Icon Theme]\nName=test\nDirectories=apps\n\n[apps]\nSize=32\n");
    QImage image(32, 32, QImage::Format_RGB32);
    image.fill(Qt::green);
    ASSERT_TRUE(image.save(QString::fromStdString((icons / "app.cuebright.Cuebright.png").string())));
    QIcon::setThemeName(QStringLiteral("another")); // what was looked up in a theme is remembered
    QIcon::setThemeName(QStringLiteral("test"));
    EXPECT_EQ(applicationIcon().pixmap(32, 32).toImage().pixelColor(16, 16), QColor(Qt::green));
}

} // namespace cuebright::test
