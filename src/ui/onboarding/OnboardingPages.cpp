#include "ui/onboarding/OnboardingPages.h"

#include "platform/qt/TextConversion.h"

namespace cuebright {

std::vector<OnboardingPage> onboardingPages(std::optional<std::string_view> advice)
{
    return {
        {Icon::Cards, QStringLiteral("Cue cards your audience can't see"), {},
            QStringLiteral(
                "Cuebright keeps your talking points floating above every app, invisible to screen sharing."),
            {}},
        {Icon::HiddenEye, QStringLiteral("Invisible to screen share"), toQString(advice.value_or("")),
            QStringLiteral("Content protection is always on. Your notes won't appear on Zoom, Teams, Meet, Webex, "
                           "Loom, or any screen recording."),
            {}},
        {Icon::Keyboard, QStringLiteral("Quick shortcuts"), {}, {},
            {{QStringLiteral("⌘⇧S"), QStringLiteral("Show / hide window")},
                {QStringLiteral("← →"), QStringLiteral("Navigate cards")},
                {QStringLiteral("Click"), QStringLiteral("Edit a card")}}},
        {Icon::Write, QStringLiteral("Write in markdown"), {},
            QStringLiteral("Use the toolbar or shortcuts while editing. A built-in timer helps you stay on pace."),
            {{QStringLiteral("⌘B / ⌘I"), QStringLiteral("Bold / italic")},
                {QStringLiteral("⌘N"), QStringLiteral("New card")},
                {QStringLiteral("⌘1–⌘9"), QStringLiteral("Switch decks")}}},
    };
}

} // namespace cuebright
