#include "platform/qt/QtPlatform.h"

#include "platform/Clock.h"
#include "store/PreferenceKeys.h"
#include "support/TemporaryFolder.h"

#include <QApplication>
#include <QPalette>

#include <gtest/gtest.h>

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace cuebright::test {

TEST(QtPlatform, ItsClocksGoAndUnwrittenPreferencesAreSavedWhenItEnds)
{
    const TemporaryFolder folder;
    const auto file = folder.file("Cuebright.conf");
    {
        QtPlatform platform(file);
        auto& clock = platform.services().clock;
        EXPECT_LT(std::chrono::abs(clock.now() - std::chrono::system_clock::now()), std::chrono::minutes(1));
        EXPECT_NEAR(clock.uptime().count(), std::stod(readFile("/proc/uptime")), 60);
        platform.services().preferences.setText(preferenceKeys::kTheme, "dark");
    }
    EXPECT_EQ(readFile(file), "[General]\ncuebrightTheme=dark\n");
    QApplication::setPalette(QPalette());
}

TEST(QtUuidSource, IdentifiersAreRandomOfVersionFour)
{
    QtUuidSource source;
    const auto uuid = source.makeUuid();
    EXPECT_EQ(uuid.bytes[6] >> 4, 4);
    EXPECT_EQ(uuid.bytes[8] >> 6, 2);
    EXPECT_NE(uuid, source.makeUuid());
}

TEST(StdoutLog, ALineIsThereAtOnceAlsoAfterOneThatAClosedOutputHasSwallowed)
{
    const TemporaryFolder folder;
    const auto path = folder.write("out", "");
    std::fflush(stdout);
    const int standardOutput = ::dup(STDOUT_FILENO);
    const int file = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
    ::close(STDOUT_FILENO);
    StdoutLog().writeLine("lost");
    ::dup2(file, STDOUT_FILENO);
    StdoutLog().writeLine("[Cuebright] first");
    StdoutLog().writeLine("second");
    const auto arrived = readFile(path);
    ::dup2(standardOutput, STDOUT_FILENO);
    ::close(standardOutput);
    ::close(file);
    EXPECT_TRUE(arrived.ends_with("[Cuebright] first\nsecond\n")) << arrived;
}

} // namespace cuebright::test
