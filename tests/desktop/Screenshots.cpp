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
    explicit PreparedHome(std::string_view theme = "light")
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

    void takeAll() const
    {
        for (const auto* const theme : {"light", "dark"})
            takeLook(theme);
        takeEditing();
        takeCriticalCountdown();
        takeError();
        takeOnboarding();
        takeSizes();
    }

private:
    void take(const std::string& name, const RunningPanel& panel) const
    {
        const auto file = name + (m_scale == 1 ? "" : "@" + std::to_string(m_scale) + "x") + ".png";
        desktop().takePicture(panel.window(), m_folder / file);
        std::cout << file << std::endl;
    }

    void takeLook(const char* theme) const
    {
        const PreparedHome home(theme);
        home.prefer("cuebrightWordCount", "true");
        const RunningPanel panel(home, m_environment);
        require(panel.shows("Card 1 of 3"));
        take(theme, panel);
    }

    void takeEditing() const
    {
        const PreparedHome home;
        const RunningPanel panel(home, m_environment);
        require(panel.pressButton("Edit card"));
        require(panel.editorHolds("Why we ship"));
        take("editing", panel);
    }

    void takeCriticalCountdown() const
    {
        const PreparedHome home;
        const auto time = home.stateFolder() / "time";
        auto environment = m_environment;
        environment.insert({{"LD_PRELOAD", STILL_CLOCK}, {"STILL_CLOCK", time}});
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

    void takeError() const
    {
        const PreparedHome home;
        const RunningPanel panel(home, m_environment);
        require(panel.shows("Edit card"));
        std::filesystem::remove_all(home.stateFolder());
        Home::write(home.stateFolder(), "in the way");
        require(panel.pressButton("Edit card"));
        require(panel.pressButton("Save card"));
        require(panel.showsButton("Dismiss error"));
        take("error", panel);
    }

    void takeOnboarding() const
    {
        const Home home(Home::Introduction::NotSeen);
        home.prefer("cuebrightTheme", "light");
        const RunningPanel panel(home, m_environment);
        int page = 0;
        for (const auto* const title : {"Cue cards your audience can't see", "Invisible to screen share",
                 "Quick shortcuts", "Write in markdown"}) {
            if (page > 0)
                require(panel.pressButton("Next page"));
            require(panel.shows(title));
            take("onboarding-" + std::to_string(++page), panel);
        }
    }

    void takeSizes() const
    {
        const PreparedHome home;
        const RunningPanel panel(home, m_environment);
        desktop().resize(panel.window(), 480 * m_scale, 360 * m_scale);
        take("narrow", panel);
        desktop().resize(panel.window(), 1400 * m_scale, 700 * m_scale);
        take("wide", panel);
    }

    std::filesystem::path m_folder;
    int m_scale;
    Environment m_environment;
};

} // namespace
} // namespace cuebright::test

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: screenshots FOLDER\n";
        return EXIT_FAILURE;
    }
    try {
        std::filesystem::create_directories(argv[1]);
        for (const int scale : {1, 2})
            cuebright::test::Photographer(argv[1], scale).takeAll();
    } catch (const std::exception& error) {
        std::cerr << "screenshots: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
