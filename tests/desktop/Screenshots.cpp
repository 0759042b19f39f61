#include "desktop/RunningPanel.h"

#include <cstdlib>
#include <iostream>
#include <stdexcept>

namespace cuebright::test {
namespace {

const std::vector<std::string_view> kCards = {
    R"(# Why we ship on Friday\n\n- Open with the **outage story**, then *pause*\n- Show `deploy --dry-run` on the [dashboard](https://example.org)\n\n1. Ask who was paged last year\n2. Name the one number: **97 %**\n\n> Slow is smooth, smooth is fast.)",
    R"(# What went wrong\n\n- The rollback took *forty minutes*\n- Nobody owned the **pipeline**\n\nPause. Let them laugh.)",
    R"(# Thank you\n\nQuestions?)",
};

struct PreparedHome final : Home {
    explicit PreparedHome(std::string_view theme)
    {
        keepDeck("Release talk", kCards);
        prefer("cuebrightTheme", theme);
    }
};

void require(const testing::AssertionResult& result)
{
    if (!result)
        throw std::runtime_error(result.message());
}

/// Takes every picture in one scale. A panel ends with its picture.
class Photographer final {
public:
    Photographer(std::filesystem::path folder, int scale)
        : m_folder(std::move(folder))
        , m_scale(scale)
        , m_environment {{"QT_SCALE_FACTOR", std::to_string(scale)}}
    {
    }

    void look(const char* theme) const
    {
        const PreparedHome home(theme);
        home.prefer("cuebrightWordCount", "true");
        const RunningPanel panel(home, m_environment);
        require(panel.shows("Card 1 of 3"));
        take(theme, panel);
    }

    void editing() const
    {
        const PreparedHome home("light");
        const RunningPanel panel(home, m_environment);
        require(panel.pressButton("Edit card"));
        require(panel.editorHolds("Why we ship"));
        take("editing", panel);
    }

    void countdownCritical() const
    {
        const PreparedHome home("light");
        const auto time = home.stateFolder() / "time";
        auto environment = m_environment;
        environment["LD_PRELOAD"] = STILL_CLOCK;
        environment["STILL_CLOCK"] = time;
        const RunningPanel panel(home, environment);
        require(panel.pressButton("Timer: 00:00"));
        require(panel.pressButton("5 minutes"));
        require(panel.shows("Timer: 05:00"));
        require(panel.pressButton("Start timer"));
        require(panel.showsButton("Pause timer"));
        Home::write(time, "1253");
        require(panel.shows("Timer: 00:47"));
        take("countdown-critical", panel);
    }

    void error() const
    {
        const PreparedHome home("light");
        const RunningPanel panel(home, m_environment);
        require(panel.shows("Edit card"));
        std::filesystem::remove_all(home.stateFolder());
        Home::write(home.stateFolder(), "in the way");
        require(panel.pressButton("Edit card"));
        require(panel.pressButton("Save card"));
        require(panel.showsButton("Dismiss error"));
        take("error", panel);
    }

    void onboarding() const
    {
        const Home home(Home::Introduction::NotSeen);
        home.prefer("cuebrightTheme", "light");
        const RunningPanel panel(home, m_environment);
        require(panel.showsButton("Next page"));
        take("onboarding-1", panel);
        const char* titles[] = {"Invisible to screen share", "Quick shortcuts", "Write in markdown"};
        for (int page = 0; page < 3; ++page) {
            require(panel.pressButton("Next page"));
            require(panel.shows(titles[page]));
            take("onboarding-" + std::to_string(page + 2), panel);
        }
    }

    void sizes() const
    {
        const PreparedHome home("light");
        const RunningPanel panel(home, m_environment);
        panel.resize(480 * m_scale, 360 * m_scale);
        take("narrow", panel);
        panel.resize(1400 * m_scale, 700 * m_scale);
        take("wide", panel);
    }

private:
    void take(const std::string& name, const RunningPanel& panel) const
    {
        const auto file = name + (m_scale == 1 ? "" : "@" + std::to_string(m_scale) + "x") + ".png";
        panel.takePicture(m_folder / file);
        std::cout << file << std::endl;
    }

    std::filesystem::path m_folder;
    int m_scale;
    Environment m_environment;
};

void takeAll(const std::filesystem::path& folder)
{
    std::filesystem::create_directories(folder);
    for (const int scale : {1, 2}) {
        const Photographer photographer(folder, scale);
        photographer.look("light");
        photographer.look("dark");
        photographer.editing();
        photographer.countdownCritical();
        photographer.error();
        photographer.onboarding();
        photographer.sizes();
    }
}

} // namespace
} // namespace cuebright::test

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: screenshots FOLDER\n";
        return EXIT_FAILURE;
    }
    try {
        cuebright::test::takeAll(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "screenshots: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
