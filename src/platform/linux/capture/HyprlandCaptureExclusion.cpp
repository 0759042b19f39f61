#include "platform/linux/capture/HyprlandCaptureExclusion.h"

#include <utility>

#include <unistd.h>

namespace cuebright {

namespace {

constexpr HyprlandVersion kFirstWithRule {0, 50};
constexpr HyprlandVersion kFirstWithProperty {0, 53};
constexpr HyprlandVersion kFirstWithLua {0, 55};

std::string withoutLineEnd(const std::string& text) { return text.substr(0, text.find_last_not_of("\r\n ") + 1); }

} // namespace

HyprlandCaptureExclusion::HyprlandCaptureExclusion(std::filesystem::path directory, MainQueue& mainQueue)
    : CompositorCaptureExclusion(mainQueue)
    , m_ipc(std::move(directory))
    , m_reloadSubscription(m_ipc.configReloaded.subscribe([this] { askVersion(); }))
    , m_windowSubscription(m_ipc.windowOpened.subscribe([this] {
        m_hasNewWindow = true;
        if (m_isUnverified)
            askWindows();
    }))
    , m_lostSubscription(m_ipc.lost.subscribe([this] { giveUp(); }))
{
}

void HyprlandCaptureExclusion::start()
{
    if (!m_ipc.listen()) // a reload would go unnoticed, and with it the loss of the rule
        return giveUp();
    askVersion();
}

void HyprlandCaptureExclusion::askVersion()
{
    m_isUnverified = false;
    m_ipc.abandonRequests();
    startTimeout();
    request("j/version", [this](const std::string& reply) {
        const auto version = hyprlandVersion(reply);
        if (!version)
            return giveUp();
        if (*version < kFirstWithRule)
            return settle(State::Visible);
        askLanguage(*version);
    });
    unsettle();
}

void HyprlandCaptureExclusion::askLanguage(HyprlandVersion version)
{
    if (version < kFirstWithLua)
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
        if (version < kFirstWithProperty)
            return settle(State::Blackout);
        askWindows();
    });
}

void HyprlandCaptureExclusion::askWindows()
{
    startTimeout();
    m_isUnverified = false;
    m_hasNewWindow = false;
    request("j/clients", [this](const std::string& reply) {
        auto addresses = hyprlandWindows(reply, ::getpid());
        if (!addresses)
            return giveUp();
        m_isUnverified = addresses->empty();
        if (m_isUnverified && m_hasNewWindow) // since this request
            return askWindows();
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
    m_ipc.request(text, [this, answered = std::move(answered)](const std::optional<std::string>& reply) {
        if (!reply)
            return giveUp();
        answered(*reply);
    });
}

void HyprlandCaptureExclusion::giveUp()
{
    m_ipc.abandonRequests();
    m_isUnverified = false;
    settle(State::Unknown);
}

} // namespace cuebright
