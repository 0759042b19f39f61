#include "platform/linux/capture/HyprlandCaptureExclusion.h"

#include <utility>

#include <unistd.h>

namespace cuebright {

namespace {

constexpr HyprlandVersion kHasRule {0, 50};
constexpr HyprlandVersion kHasProperty {0, 53};
constexpr HyprlandVersion kHasLanguages {0, 55};
constexpr Seconds kReplyTimeout {3};

std::string withoutLineEnd(const std::string& text) { return text.substr(0, text.find_last_not_of("\r\n ") + 1); }

} // namespace

HyprlandCaptureExclusion::HyprlandCaptureExclusion(std::unique_ptr<HyprlandIpc> ipc, MainQueue& mainQueue)
    : m_ipc(std::move(ipc))
    , m_mainQueue(mainQueue)
    , m_reloadSubscription(m_ipc->configReloaded.subscribe([this] { sendRuleAnew(); }))
    , m_windowSubscription(m_ipc->windowOpened.subscribe([this] {
        m_hasNewWindow = true;
        if (m_isUnverified)
            lookUpWindows();
    }))
    , m_lostSubscription(m_ipc->lost.subscribe([this] {
        m_isLost = true;
        giveUp();
    }))
{
}

void HyprlandCaptureExclusion::start()
{
    m_ipc->start();
    if (!m_isLost) // a reload that goes unnoticed would turn the answer into a lie
        sendRuleAnew();
}

void HyprlandCaptureExclusion::sendRuleAnew()
{
    m_isUnverified = false;
    m_ipc->abandonRequests();
    startTimeout();
    request("j/version", [this](const std::string& reply) {
        const auto version = hyprlandVersion(reply);
        if (!version)
            return giveUp();
        if (*version < kHasRule)
            return settle(State::Visible);
        learnLanguage(*version);
    });
    setState(State::Unknown, false);
}

void HyprlandCaptureExclusion::learnLanguage(HyprlandVersion version)
{
    if (version < kHasLanguages)
        return sendRule(version, HyprlandLanguage::Classic);
    request("j/status", [this, version](const std::string& reply) {
        const auto language = hyprlandLanguage(reply);
        if (!language)
            return giveUp();
        sendRule(version, *language);
    });
}

void HyprlandCaptureExclusion::sendRule(HyprlandVersion version, HyprlandLanguage language)
{
    request(hyprlandRuleRequest(version, language), [this, version](const std::string& reply) {
        if (withoutLineEnd(reply) != "ok")
            return settle(State::Visible);
        if (version < kHasProperty)
            return settle(State::Blackout);
        lookUpWindows();
    });
}

void HyprlandCaptureExclusion::startTimeout()
{
    m_deadline = m_mainQueue.after(kReplyTimeout, [this] { giveUp(); });
}

void HyprlandCaptureExclusion::lookUpWindows()
{
    startTimeout();
    m_isUnverified = false;
    m_hasNewWindow = false;
    request("j/clients", [this](const std::string& reply) {
        auto addresses = hyprlandWindows(reply, ::getpid());
        if (!addresses)
            return giveUp();
        m_isUnverified = addresses->empty();
        if (m_isUnverified && m_hasNewWindow) // since it was asked
            return lookUpWindows();
        verify(std::move(*addresses));
    });
}

void HyprlandCaptureExclusion::verify(std::vector<std::string> addresses)
{
    if (addresses.empty())
        return settle(State::Blackout);
    const auto question = "/getprop address:" + addresses.back() + " no_screen_share";
    addresses.pop_back();
    request(question, [this, rest = std::move(addresses)](const std::string& reply) {
        const auto isBlack = hyprlandProperty(reply);
        if (!isBlack)
            return giveUp();
        if (!*isBlack)
            return settle(State::Visible);
        verify(rest);
    });
}

void HyprlandCaptureExclusion::request(const std::string& text, std::function<void(const std::string&)> answered)
{
    m_ipc->request(text, [this, answered = std::move(answered)](const std::optional<std::string>& reply) {
        if (!reply)
            return giveUp();
        answered(*reply);
    });
}

void HyprlandCaptureExclusion::giveUp()
{
    m_ipc->abandonRequests();
    m_isUnverified = false;
    settle(State::Unknown);
}

void HyprlandCaptureExclusion::setState(State state, bool isSettled)
{
    if (state == m_state && isSettled == m_isSettled)
        return;
    m_state = state;
    m_isSettled = isSettled;
    changed.notify();
}

void HyprlandCaptureExclusion::settle(State state)
{
    m_deadline.cancel();
    setState(state, true);
}

} // namespace cuebright
