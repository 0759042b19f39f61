#include "store/CardStoreInternal.h"

#include "foundation/Unicode.h"
#include "platform/Appearance.h"
#include "platform/Preferences.h"
#include "store/DisplayLimits.h"
#include "store/PreferenceKeys.h"
#include "store/ThemeChoices.h"

#include <algorithm>

namespace cuebright {

namespace {

constexpr double kDefaultFontSize = 17;
constexpr double kFontSizeStep = 1;
constexpr double kDefaultOpacity = 1;
constexpr double kOpacityStep = 0.1;
constexpr std::int64_t kDefaultPace = 130;

template <typename Number> Number positiveOr(std::optional<Number> stored, Number fallback)
{
    return stored && *stored > 0 ? *stored : fallback;
}

/// `std::clamp`, but NaN becomes `least`.
double clamped(double value, double least, double most) { return std::min(std::max(least, value), most); }

} // namespace

/// Takes values as stored, even outside the limits: a start changes no preference.
void CardStore::readPreferences()
{
    auto& preferences = m_platform.preferences;
    m_showWordCount = preferences.boolean(preferenceKeys::kWordCount).value_or(false);
    m_speakingPace = positiveOr(preferences.integer(preferenceKeys::kSpeakingPace), kDefaultPace);
    m_theme = preferences.text(preferenceKeys::kTheme).value_or(themeNames::kSystem);
    m_fontSize = positiveOr(preferences.number(preferenceKeys::kFontSize), kDefaultFontSize);
    m_opacity = positiveOr(preferences.number(preferenceKeys::kOpacity), kDefaultOpacity);
}

void CardStore::setTheme(std::string theme)
{
    set(m_theme, std::move(theme), Property::Theme);
    m_platform.preferences.setText(preferenceKeys::kTheme, m_theme);
    applyThemeToApp();
}

void CardStore::applyThemeToApp()
{
    using enum Appearance::Choice;
    m_platform.appearance.choose(m_theme == themeNames::kLight ? Light
            : m_theme == themeNames::kDark                     ? Dark
                                                               : FollowSystem);
}

void CardStore::setFontSize(double points)
{
    set(m_fontSize, clamped(points, kMinFontSize, kMaxFontSize), Property::FontSize);
    m_platform.preferences.setNumber(preferenceKeys::kFontSize, m_fontSize);
}

void CardStore::increaseFontSize() { setFontSize(m_fontSize + kFontSizeStep); }

void CardStore::decreaseFontSize() { setFontSize(m_fontSize - kFontSizeStep); }

void CardStore::resetFontSize() { setFontSize(kDefaultFontSize); }

void CardStore::setOpacity(double opacity)
{
    set(m_opacity, clamped(opacity, kMinOpacity, kMaxOpacity), Property::Opacity);
    m_platform.preferences.setNumber(preferenceKeys::kOpacity, m_opacity);
}

void CardStore::increaseOpacity() { setOpacity(m_opacity + kOpacityStep); }

void CardStore::decreaseOpacity() { setOpacity(m_opacity - kOpacityStep); }

void CardStore::setSpeakingPace(std::int64_t wordsPerMinute)
{
    set(m_speakingPace, std::clamp(wordsPerMinute, kMinSpeakingPace, kMaxSpeakingPace), Property::SpeakingPace);
    m_platform.preferences.setInteger(preferenceKeys::kSpeakingPace, m_speakingPace);
}

void CardStore::toggleWordCount()
{
    set(m_showWordCount, !m_showWordCount, Property::ShowWordCount);
    m_platform.preferences.setBoolean(preferenceKeys::kWordCount, m_showWordCount);
}

std::int64_t CardStore::wordCount() const
{
    if (m_isEditing)
        return static_cast<std::int64_t>(countWords(m_editText));
    const auto card = activeCard();
    return card ? static_cast<std::int64_t>(countWords(card->content)) : 0;
}

std::string CardStore::readingTime() const
{
    const auto words = wordCount();
    const auto roundedUp = words / m_speakingPace + (words % m_speakingPace != 0 ? 1 : 0);
    auto text = std::to_string(std::max<std::int64_t>(roundedUp, 1));
    return text.insert(0, 1, '~').append(" min");
}

} // namespace cuebright
