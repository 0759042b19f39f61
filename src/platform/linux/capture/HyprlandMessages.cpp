#include "platform/linux/capture/HyprlandMessages.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace cuebright {

namespace {

// Class and instance of WM_CLASS, and the Wayland application id. The dots are in brackets because Lua would interpret
// a backslash.
constexpr std::string_view kClass = "^(Cuebright|cuebright|app[.]cuebright[.]Cuebright)$";

constexpr HyprlandVersion kFirstWithMatch {0, 53};

QJsonDocument parsed(std::string_view reply)
{
    return QJsonDocument::fromJson(QByteArray(reply.data(), qsizetype(reply.size())));
}

} // namespace

std::optional<HyprlandVersion> hyprlandVersion(std::string_view reply)
{
    const auto object = parsed(reply).object();
    static const QRegularExpression pattern(QStringLiteral("^v?(\\d{1,4})\\.(\\d{1,4})(\\D|$)"));
    for (const auto& member : {QStringLiteral("version"), QStringLiteral("tag")}) {
        if (const auto match = pattern.match(object.value(member).toString()); match.hasMatch())
            return HyprlandVersion {match.captured(1).toInt(), match.captured(2).toInt()};
    }
    return std::nullopt;
}

std::optional<HyprlandLanguage> hyprlandLanguage(std::string_view reply)
{
    const auto provider = parsed(reply).object().value(QStringLiteral("configProvider")).toString();
    if (provider.isEmpty())
        return std::nullopt;
    const bool isLua = provider.compare(QStringLiteral("lua"), Qt::CaseInsensitive) == 0;
    return isLua ? HyprlandLanguage::Lua : HyprlandLanguage::Classic;
}

std::string hyprlandRuleRequest(HyprlandVersion version, HyprlandLanguage language)
{
    const std::string pattern(kClass);
    if (language == HyprlandLanguage::Lua)
        return "/eval hl.window_rule({ name=\"cuebright\", match={ class=\"" + pattern
            + "\" }, no_screen_share=true })";
    if (version < kFirstWithMatch)
        return "/keyword windowrule noscreenshare, class:" + pattern;
    return "/keyword windowrule match:class " + pattern + ", no_screen_share on";
}

std::optional<std::vector<std::string>> hyprlandWindows(std::string_view reply, long pid)
{
    const auto document = parsed(reply);
    if (!document.isArray())
        return std::nullopt;
    static const QRegularExpression pattern(QStringLiteral("^0x[0-9a-fA-F]+\\z"));
    std::vector<std::string> addresses;
    for (const auto& client : document.array()) {
        const auto window = client.toObject();
        if (window.value(QStringLiteral("pid")).toInteger(-1) != pid)
            continue;
        const auto address = window.value(QStringLiteral("address")).toString();
        if (!pattern.match(address).hasMatch())
            return std::nullopt;
        addresses.push_back(address.toStdString());
    }
    return addresses;
}

std::optional<bool> hyprlandProperty(std::string_view reply)
{
    const auto value = QByteArray(reply.data(), qsizetype(reply.size())).trimmed();
    if (value == "true" || value == "1")
        return true;
    if (value == "false" || value == "0")
        return false;
    return std::nullopt;
}

} // namespace cuebright
