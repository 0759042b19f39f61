#include "support/FakePlatform.h"

#include <algorithm>
#include <utility>

namespace cuebright::test {

PendingTask FakeMainQueue::post(std::function<void()> work)
{
    const auto& waiting = m_posted.emplace_back(std::make_shared<std::function<void()>>(std::move(work)));
    return PendingTask([waiting] { *waiting = nullptr; });
}

PendingTask FakeMainQueue::after(Seconds delay, std::function<void()> work)
{
    return schedule(delay, std::nullopt, std::move(work));
}

PendingTask FakeMainQueue::every(Seconds interval, std::function<void()> work)
{
    return schedule(interval, interval, std::move(work));
}

PendingTask FakeMainQueue::schedule(Seconds delay, std::optional<Seconds> interval, std::function<void()> work)
{
    const int order = m_nextOrder++;
    m_timed.emplace(order, Timed {m_clock.up + delay, interval, std::move(work)});
    return PendingTask([this, order, alive = std::weak_ptr<const char>(m_alive)] {
        if (!alive.expired())
            m_timed.erase(order);
    });
}

void FakeMainQueue::runPosted()
{
    while (!m_posted.empty()) {
        for (const auto& waiting : std::exchange(m_posted, {})) {
            if (const auto work = std::exchange(*waiting, nullptr))
                work();
        }
    }
}

void FakeMainQueue::advance(Seconds duration)
{
    constexpr Seconds kRounding {1e-9};
    const auto moveTo = [this](Seconds time) {
        m_clock.wallClock += std::chrono::round<std::chrono::microseconds>(time - m_clock.up);
        m_clock.up = time;
    };
    const auto end = m_clock.up + duration;
    runPosted();
    for (;;) {
        const auto next = std::ranges::min_element(m_timed, {}, [](const auto& entry) { return entry.second.due; });
        if (next == m_timed.end() || next->second.due > end + kRounding)
            break;
        moveTo(std::max(m_clock.up, next->second.due));
        const auto work = next->second.work; // a copy: the work may cancel itself
        if (next->second.interval)
            next->second.due += *next->second.interval;
        else
            m_timed.erase(next);
        work();
        runPosted();
    }
    moveTo(std::max(m_clock.up, end));
}

bool FakeFileSystem::createDirectories(const std::filesystem::path& directory)
{
    createdDirectories.push_back(directory.string());
    return !createsNoDirectories;
}

std::optional<std::string> FakeFileSystem::readFile(const std::filesystem::path& path, std::size_t spareCapacity)
{
    const auto it = files.find(path.string());
    if (readsFail || it == files.end())
        return std::nullopt;
    std::string content;
    content.reserve(it->second.size() + spareCapacity);
    content = it->second;
    return content;
}

std::optional<FileError> FakeFileSystem::writeFileAtomically(
    const std::filesystem::path& path, std::string_view content, Readers)
{
    writes.push_back(path.string());
    if (writeError)
        return FileError {*writeError};
    files[path.string()] = content;
    return std::nullopt;
}

} // namespace cuebright::test
