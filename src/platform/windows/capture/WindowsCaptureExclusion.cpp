#include "platform/windows/capture/WindowsCaptureExclusion.h"

#include <algorithm>

namespace cuebright {

namespace {

/// 0 is best.
int rank(CaptureExclusion::State state)
{
    switch (state) {
    case CaptureExclusion::State::Excluded:
        return 0;
    case CaptureExclusion::State::Blackout:
        return 1;
    case CaptureExclusion::State::Unknown:
        return 2;
    case CaptureExclusion::State::Visible:
        return 3;
    }
    return 3;
}

} // namespace

WindowsCaptureExclusion::WindowsCaptureExclusion(DisplayAffinity& affinity)
    : m_affinity(affinity)
    , m_canExclude(affinity.buildNumber() >= DisplayAffinity::kFirstBuildToExclude)
{
}

void WindowsCaptureExclusion::reapplyIfLost()
{
    const bool isLost = m_wasExcluded && readBack() != State::Excluded;
    applyToAll();
    if (isLost && state() == State::Excluded)
        reapplied.notify();
}

void WindowsCaptureExclusion::windowAppears(WindowSystem::WindowId window)
{
    if (std::ranges::find(m_windows, window) == m_windows.end())
        m_windows.push_back(window);
    apply(window);
    update();
}

void WindowsCaptureExclusion::windowGoes(WindowSystem::WindowId window)
{
    std::erase(m_windows, window);
    update();
}

void WindowsCaptureExclusion::sessionChanged() { applyToAll(); }

std::uint32_t WindowsCaptureExclusion::wantedAffinity()
{
    if (m_affinity.isRemoteSession())
        return DisplayAffinity::kNone;
    return m_canExclude ? DisplayAffinity::kExcludeFromCapture : DisplayAffinity::kMonitor;
}

CaptureExclusion::State WindowsCaptureExclusion::readBack()
{
    if (m_windows.empty())
        return State::Unknown;
    auto worst = State::Excluded;
    for (const auto window : m_windows)
        worst =
            std::max(worst, stateOf(m_affinity.affinity(window)), [](State a, State b) { return rank(a) < rank(b); });
    return worst;
}

CaptureExclusion::State WindowsCaptureExclusion::stateOf(std::optional<std::uint32_t> affinity) const
{
    if (affinity == DisplayAffinity::kExcludeFromCapture)
        return m_canExclude ? State::Excluded : State::Blackout;
    if (affinity == DisplayAffinity::kMonitor)
        return State::Blackout;
    return affinity == DisplayAffinity::kNone ? State::Visible : State::Unknown;
}

void WindowsCaptureExclusion::apply(WindowSystem::WindowId window)
{
    if (const auto wanted = wantedAffinity(); m_affinity.affinity(window) != wanted)
        m_affinity.setAffinity(window, wanted); // update() reads the effect back
}

void WindowsCaptureExclusion::applyToAll()
{
    for (const auto window : m_windows)
        apply(window);
    update();
}

void WindowsCaptureExclusion::update()
{
    const auto state = readBack();
    m_wasExcluded = m_wasExcluded || state == State::Excluded;
    if (state == m_state && isSettled() == m_wasSettled)
        return;
    m_state = state;
    m_wasSettled = isSettled();
    changed.notify();
}

} // namespace cuebright
