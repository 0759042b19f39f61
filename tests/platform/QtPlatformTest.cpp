#include "platform/qt/QtPlatform.h"

#include "platform/Clock.h"
#include "platform/TemporaryFolder.h"

#include <QApplication>
#include <QPalette>

#include <gtest/gtest.h>

#include <cstdio>
#include <set>

#include <fcntl.h>
#include <unistd.h>

namespace cuebright::test {

namespace {

/// Standard output goes elsewhere for as long as this lives; nowhere at all when `target` is negative.
class RedirectedOutput final {
public:
    explicit RedirectedOutput(int target)
        : m_saved(::dup(STDOUT_FILENO))
    {
        std::fflush(stdout);
        if (target >= 0)
            ::dup2(target, STDOUT_FILENO);
        else
            ::close(STDOUT_FILENO);
    }
    RedirectedOutput(const RedirectedOutput&) = delete;
    RedirectedOutput& operator=(const RedirectedOutput&) = delete;
    ~RedirectedOutput()
    {
        ::dup2(m_saved, STDOUT_FILENO);
        ::close(m_saved);
    }

private:
    int m_saved;
};

} // namespace

TEST(QtPlatform, FilesBelongInTheUsersOwnFolders)
{
    const std::filesystem::path config = qgetenv("XDG_CONFIG_HOME").toStdString();
    EXPECT_EQ(QtPlatform::defaultPreferencesFile(), config / "Cuebright/Cuebright.conf");
    EXPECT_EQ(QtFileSystem().applicationSupportDirectory(), qgetenv("XDG_DATA_HOME").toStdString());
}

TEST(QtPlatform, UnwrittenPreferencesAreSavedWhenThePlatformEnds)
{
    const TemporaryFolder folder;
    const auto file = folder.file("Cuebright.conf");
    {
        QtPlatform platform(file);
        platform.services().preferences.setText(preferenceKeys::kTheme, "dark");
    }
    EXPECT_EQ(TemporaryFolder::contentOf(file), "[General]\ncuebrightTheme=dark\n");
    QApplication::setPalette(QPalette());
}

TEST(QtPlatform, ClocksTellTheDateAndTheTimeSinceTheMachineStarted)
{
    QtPlatform platform(TemporaryFolder().file("none"));
    auto& clock = platform.services().clock;
    EXPECT_LT(std::chrono::abs(clock.now() - std::chrono::system_clock::now()), std::chrono::minutes(1));
    const double bootAge = std::stod(TemporaryFolder::contentOf("/proc/uptime"));
    EXPECT_NEAR(clock.uptime().count(), bootAge, 60);
    QApplication::setPalette(QPalette());
}

TEST(QtUuidSource, IdentifiersAreRandomOfVersionFour)
{
    QtUuidSource source;
    std::set<Uuid> made;
    for (int i = 0; i < 100; ++i) {
        const auto uuid = source.makeUuid();
        EXPECT_EQ(uuid.bytes[6] >> 4, 4);
        EXPECT_EQ(uuid.bytes[8] >> 6, 2);
        made.insert(uuid);
    }
    EXPECT_EQ(made.size(), 100u);
}

TEST(StdoutLog, ALineIsThereAtOnce)
{
    const TemporaryFolder folder;
    const int file = ::open(folder.write("out", "").c_str(), O_WRONLY | O_CLOEXEC);
    std::string arrived;
    {
        const RedirectedOutput output(file);
        StdoutLog().writeLine("[Cuebright] first");
        StdoutLog().writeLine("second");
        arrived = TemporaryFolder::contentOf(folder.file("out"));
    }
    ::close(file);
    EXPECT_EQ(arrived, "[Cuebright] first\nsecond\n");
}

TEST(StdoutLog, AClosedOutputSwallowsTheLineAndALaterOneArrives)
{
    const TemporaryFolder folder;
    const int file = ::open(folder.write("out", "").c_str(), O_WRONLY | O_CLOEXEC);
    {
        const RedirectedOutput closed(-1);
        StdoutLog().writeLine("lost");
    }
    {
        const RedirectedOutput output(file);
        StdoutLog().writeLine("kept");
    }
    ::close(file);
    const auto arrived = TemporaryFolder::contentOf(folder.file("out"));
    EXPECT_TRUE(arrived.ends_with("kept\n")) << arrived;
}

} // namespace cuebright::test
