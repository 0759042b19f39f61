#pragma once

#include "platform/Accessibility.h"
#include "platform/Appearance.h"
#include "platform/CaptureExclusion.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/FileSystem.h"
#include "platform/HotKeys.h"
#include "platform/Log.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "platform/Preferences.h"
#include "platform/UuidSource.h"
#include "platform/WindowSystem.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace cuebright::test {

/// Stands still until a test calls `FakeMainQueue::advance`.
class FakeClock final : public Clock {
public:
    Instant now() override { return std::exchange(wallClock, wallClock + stepPerRead); }
    Seconds uptime() override { return up; }

    Instant wallClock = Instant(std::chrono::sys_days(std::chrono::year(2026) / 11 / 16)) + std::chrono::hours(9);
    Seconds up {1000};
    std::chrono::microseconds stepPerRead {}; ///< added after each reading of the date
};

/// Counts up: the n-th identifier has n in its last bytes.
class FakeUuidSource final : public UuidSource {
public:
    Uuid makeUuid() override { return nth(++count); }
    static Uuid nth(int n)
    {
        Uuid uuid;
        uuid.bytes[14] = static_cast<std::uint8_t>(n >> 8);
        uuid.bytes[15] = static_cast<std::uint8_t>(n);
        return uuid;
    }
    int count = 0;
};

/// Runs work in the order in which it is due, when a test asks for it.
class FakeMainQueue final : public MainQueue {
public:
    explicit FakeMainQueue(FakeClock& clock)
        : m_clock(clock)
    {
    }
    PendingTask post(std::function<void()> work) override;
    PendingTask after(Seconds delay, std::function<void()> work) override;
    PendingTask every(Seconds interval, std::function<void()> work) override;

    /// Runs what was posted, also by the work itself.
    void runPosted();
    /// Advances both clocks and runs what is due, each at its time.
    void advance(Seconds duration);
    /// Of posted work.
    [[nodiscard]] std::size_t postedCount() const { return m_posted.size(); }
    /// Of delayed and repeating work.
    [[nodiscard]] std::size_t pendingCount() const { return m_timed.size(); }

private:
    struct Timed {
        Seconds due;
        std::optional<Seconds> interval;
        std::function<void()> work;
    };
    PendingTask schedule(Seconds delay, std::optional<Seconds> interval, std::function<void()> work);

    FakeClock& m_clock;
    std::vector<std::shared_ptr<std::function<void()>>> m_posted; ///< null functions were cancelled
    std::map<int, Timed> m_timed;
    int m_nextOrder = 0;
    std::shared_ptr<const char> m_alive = std::make_shared<const char>('\0');
};

/// Files in memory; records each write.
class FakeFileSystem final : public FileSystem {
public:
    std::optional<std::filesystem::path> applicationSupportDirectory() override { return supportDirectory; }
    bool createDirectories(const std::filesystem::path& directory) override;
    bool exists(const std::filesystem::path& path) override { return files.contains(path.string()); }
    bool removeFile(const std::filesystem::path& path) override { return files.erase(path.string()) > 0; }
    std::optional<std::string> readFile(const std::filesystem::path& path, std::size_t spareCapacity) override;
    std::optional<FileError> writeFileAtomically(
        const std::filesystem::path& path, std::string_view content, Readers readers) override;

    std::optional<std::filesystem::path> supportDirectory = "/support";
    std::map<std::string, std::string> files;
    std::vector<std::string> createdDirectories;
    bool createsNoDirectories = false;
    std::vector<std::string> writes; ///< the path of each attempted write
    std::optional<std::string> writeError; ///< makes every write fail
    bool readsFail = false;
};

class FakePreferences final : public Preferences {
public:
    using Value = std::variant<bool, std::int64_t, double, std::string, Numbers>;
    using Values = std::map<std::string, Value, std::less<>>;

    std::optional<bool> boolean(std::string_view key) override { return find<bool>(key); }
    std::optional<std::int64_t> integer(std::string_view key) override { return find<std::int64_t>(key); }
    std::optional<double> number(std::string_view key) override { return find<double>(key); }
    std::optional<std::string> text(std::string_view key) override { return find<std::string>(key); }
    Numbers numbers(std::string_view key) override { return find<Numbers>(key).value_or(Numbers {}); }
    void setBoolean(std::string_view key, bool value) override { store(key, value); }
    void setInteger(std::string_view key, std::int64_t value) override { store(key, value); }
    void setNumber(std::string_view key, double value) override { store(key, value); }
    void setText(std::string_view key, std::string_view value) override { store(key, std::string(value)); }
    void setNumbers(std::string_view key, const Numbers& named) override { store(key, named); }
    void remove(std::string_view key) override { values.erase(std::string(key)); }

    Values values;
    std::vector<std::string> writes; ///< the key of each write

private:
    template <typename T> std::optional<T> find(std::string_view key) const
    {
        const auto it = values.find(key);
        if (it == values.end() || !std::holds_alternative<T>(it->second))
            return std::nullopt;
        return std::get<T>(it->second);
    }
    void store(std::string_view key, Value value)
    {
        writes.emplace_back(key);
        values.insert_or_assign(std::string(key), std::move(value));
    }
};

class FakeAccessibility final : public Accessibility {
public:
    bool reduceMotion() override { return motionReduced; }
    bool reduceTransparency() override { return transparencyReduced; }
    bool increaseContrast() override { return contrastIncreased; }

    bool motionReduced = false;
    bool transparencyReduced = false;
    bool contrastIncreased = false;
};

class FakeAppearance final : public Appearance {
public:
    void choose(Choice choice) override { choices.push_back(choice); }
    bool isDark() override { return !choices.empty() && choices.back() == Choice::Dark; }

    std::vector<Choice> choices;
};

class FakeCaptureExclusion final : public CaptureExclusion {
public:
    State state() override { return known; }
    bool isSettled() override { return settled; }
    void reapplyIfLost() override { }

    State known = State::Excluded;
    bool settled = true;
};

/// One key at a time, pressed by the test.
class FakeHotKeys final : public HotKeys {
    struct Registration final : HotKeyRegistration {
        explicit Registration(FakeHotKeys& hotKeys)
            : owner(hotKeys)
        {
        }
        ~Registration() override { owner.press = nullptr; }
        bool isSystemWide() const override { return true; }

        FakeHotKeys& owner;
    };

public:
    std::unique_ptr<HotKeyRegistration> registerHotKey(const HotKey& key, std::function<void()> pressed) override
    {
        keys.push_back(key);
        if (isTaken)
            return nullptr;
        press = std::move(pressed);
        return std::make_unique<Registration>(*this);
    }

    bool isTaken = false;
    std::vector<HotKey> keys; ///< as requested
    std::function<void()> press; ///< null without a registration
};

/// Records the calls.
class FakeWindowSystem final : public WindowSystem {
public:
    void keepAboveFullScreen(WindowId) override { calls.emplace_back("keep above"); }
    void release(WindowId) override { calls.emplace_back("release"); }
    void setBlurBehind(WindowId, bool isOn) override { calls.emplace_back(isOn ? "glass on" : "glass off"); }

    std::vector<std::string> calls;
};

class FakeLog final : public Log {
public:
    void writeLine(std::string_view line) override { lines.emplace_back(line); }

    std::vector<std::string> lines;
};

/// A complete platform, controlled by the test.
struct FakePlatform {
    FakeClock clock;
    FakeUuidSource uuids;
    FakeMainQueue mainQueue {clock};
    FakeFileSystem fileSystem;
    FakePreferences preferences;
    FakeAccessibility accessibility;
    FakeAppearance appearance;
    FakeLog log;
    FakeCaptureExclusion captureExclusion;
    FakeHotKeys hotKeys;
    FakeWindowSystem windowSystem;

    Platform platform() { return {clock, uuids, mainQueue, fileSystem, preferences, accessibility, appearance, log}; }
    Desktop desktop() { return {captureExclusion, hotKeys, windowSystem}; }
};

} // namespace cuebright::test
