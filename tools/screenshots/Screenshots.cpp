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

/// Throws if a check fails.
void require(const testing::AssertionResult& result)
{
    if (!result)
        throw std::runtime_error(result.message());
}

/// A home with the cards for one picture.
struct Picture final : Home {
    explicit Picture(const std::string& pictureName, Introduction introduction = Introduction::Seen)
        : Home(introduction)
        , name(pictureName)
    {
        if (introduction == Introduction::Seen)
            keepDeck("Release talk", kCards);
        prefer("cuebrightTheme", name == "dark" ? "dark" : "light");
    }

    std::string name;
    Environment environment {};
};

/// Saves what the window shows as a PNG file, once three pictures in a row are the same.
void takePicture(Desktop::WindowId window, const std::filesystem::path& file)
{
    const TemporaryFolder folder;
    std::string last;
    int same = 0;
    const bool isTaken = waitUntil([&] {
        Process import({{"import", "-silent", "-window", std::to_string(window), "-define",
                            "png:exclude-chunks=date,time", file.string()},
            desktop().environment(), folder.file("output")});
        auto picture = import.exitStatus() == 0 ? readFile(file) : std::string();
        same = !picture.empty() && picture == last ? same + 1 : 0;
        last = std::move(picture);
        return same == 2;
    });
    if (!isTaken)
        throw std::runtime_error("no picture could be taken: " + readFile(folder.file("output")));
}

/// Takes all pictures at one scale.
class Photographer final {
public:
    Photographer(std::filesystem::path folder, int scale)
        : m_folder(std::move(folder))
        , m_scale(scale)
    {
    }

    void takeAll() const
    {
        for (const auto* const theme : {"light", "dark"}) {
            const Picture look(theme);
            look.prefer("cuebrightWordCount", "true");
            take(look, [](const RunningPanel& panel) { require(panel.shows("Card 1 of 3")); });
        }
        take(Picture("editing"), [](const RunningPanel& panel) {
            require(panel.pressButton("Edit card"));
            require(panel.editorHolds("Why we ship"));
        });
        takeCriticalCountdown();
        takeError();
        takeOnboarding();
        for (const auto& [name, width, height] : {std::tuple("narrow", 480, 360), std::tuple("wide", 1400, 700)})
            takeInSize(name, width, height);
    }

private:
    void take(const Picture& picture, const std::function<void(const RunningPanel&)>& prepare) const
    {
        auto environment = picture.environment;
        environment["QT_SCALE_FACTOR"] = std::to_string(m_scale);
        const RunningPanel panel(picture, environment);
        prepare(panel);
        const auto file = picture.name + (m_scale == 1 ? "" : "@" + std::to_string(m_scale) + "x") + ".png";
        takePicture(panel.window(), m_folder / file);
        std::cout << file << std::endl;
    }

    void takeInSize(const char* name, int width, int height) const
    {
        const Picture picture(name);
        picture.prefer("\n[cuebrightWindowFrame]\nx", "20");
        picture.prefer("y", "50");
        picture.prefer("w", std::to_string(width));
        picture.prefer("h", std::to_string(height));
        take(picture, [](const RunningPanel& panel) { require(panel.shows("Card 1 of 3")); });
    }

    void takeCriticalCountdown() const
    {
        Picture picture("countdown-critical");
        const auto time = picture.stateFolder() / "time";
        picture.environment = {{"LD_PRELOAD", STILL_CLOCK}, {"STILL_CLOCK", time}};
        take(picture, [&](const RunningPanel& panel) {
            for (const auto* const button : {"Timer: 00:00", "5 minutes", "Start timer"})
                require(panel.pressButton(button));
            require(panel.showsButton("Pause timer"));
            Home::write(time, "1253");
            require(panel.shows("Timer: 00:47"));
        });
    }

    void takeError() const
    {
        const Picture picture("error");
        take(picture, [&](const RunningPanel& panel) {
            require(panel.shows("Edit card"));
            std::filesystem::remove_all(picture.stateFolder());
            Home::write(picture.stateFolder(), "in the way");
            for (const auto* const button : {"Edit card", "Save card"})
                require(panel.pressButton(button));
            require(panel.showsButton("Dismiss error"));
        });
    }

    void takeOnboarding() const
    {
        const std::vector<const char*> titles {
            "Cue cards your audience can't see", "Invisible to screen share", "Quick shortcuts", "Write in markdown"};
        for (std::size_t last = 0; last < titles.size(); ++last) {
            const Picture picture("onboarding-" + std::to_string(last + 1), Home::Introduction::NotSeen);
            take(picture, [&](const RunningPanel& panel) {
                for (std::size_t page = 0; page <= last; ++page) {
                    require(page == 0 ? testing::AssertionSuccess() : panel.pressButton("Next page"));
                    require(panel.shows(titles[page]));
                }
            });
        }
    }

    std::filesystem::path m_folder;
    int m_scale;
};

} // namespace
} // namespace cuebright::test

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: take_screenshots FOLDER\n";
        return EXIT_FAILURE;
    }
    try {
        std::filesystem::create_directories(argv[1]);
        for (const int scale : {1, 2})
            cuebright::test::Photographer(argv[1], scale).takeAll();
    } catch (const std::exception& error) {
        std::cerr << "take_screenshots: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
