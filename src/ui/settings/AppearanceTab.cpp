#include "ui/settings/AppearanceTab.h"

#include "platform/Accessibility.h"
#include "platform/qt/TextConversion.h"
#include "store/CardStore.h"
#include "store/DisplayLimits.h"
#include "store/ThemeNames.h"
#include "ui/settings/SettingSlider.h"
#include "ui/settings/SettingsSection.h"
#include "ui/widgets/Label.h"

#include <QComboBox>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace cuebright {

namespace {

constexpr SliderScale scale(double least, double most, int step, int page, int partsOfOne = 1)
{
    return {static_cast<int>(least * partsOfOne), static_cast<int>(most * partsOfOne), step, page, partsOfOne};
}

constexpr auto kFontSizes = scale(kMinFontSize, kMaxFontSize, 1, 4);
constexpr auto kSpeakingPaces = scale(kMinSpeakingPace, kMaxSpeakingPace, 10, 50);
constexpr auto kOpacities = scale(kMinOpacity, kMaxOpacity, 1, 10, 100);

QString wholeNumber(double value) { return QString::number(std::round(value), 'f', 0); }

QString wordsPerMinute(double pace) { return wholeNumber(pace) + QStringLiteral(" wpm"); }

QString percentage(double opacity) { return wholeNumber(opacity * 100) + QLatin1Char('%'); }

} // namespace

AppearanceTab::AppearanceTab(const UiContext& context, QWidget* parent)
    : SettingsPage(QStringLiteral("Appearance"), parent)
    , m_context(context)
    , m_refresh(context.platform.mainQueue, [this] { refresh(); })
{
    column().addWidget(makeThemeSection());
    column().addWidget(makeFontSizeSection());
    column().addWidget(makeSpeakingPaceSection());
    column().addWidget(makeOpacitySection());
    column().addStretch(1);
    m_accessibilitySubscription = context.platform.accessibility.changed.subscribe([this] { m_refresh.request(); });
    m_storeSubscription = context.store.willChange.subscribe([this](const Change& change) {
        using enum Change::Property;
        if (change.isOneOf({Theme, FontSize, SpeakingPace, Opacity}))
            m_refresh.request();
    });
    refresh();
}

AppearanceTab::~AppearanceTab() = default;

QWidget* AppearanceTab::makeThemeSection()
{
    const auto section = new SettingsSection(m_context, QStringLiteral("Theme"), page());
    m_theme = new QComboBox(section);
    m_theme->setAccessibleName(QStringLiteral("Theme"));
    m_theme->setAccessibleDescription(QStringLiteral("Theme")); // Qt 6.4 gives what is chosen for the name
    m_theme->addItem(QStringLiteral("System"), QLatin1String(themeNames::kSystem));
    m_theme->addItem(QStringLiteral("Light"), QLatin1String(themeNames::kLight));
    m_theme->addItem(QStringLiteral("Dark"), QLatin1String(themeNames::kDark));
    connect(m_theme, &QComboBox::activated, this,
        [this] { m_context.store.setTheme(toUtf8(m_theme->currentData().toString())); });
    section->add(m_theme);
    return section;
}

QWidget* AppearanceTab::makeFontSizeSection()
{
    auto& store = m_context.store;
    const auto section = new SettingsSection(m_context, QStringLiteral("Font Size"), page());
    m_sliders.push_back(new SettingSlider(m_context,
        {QStringLiteral("Font Size"), kFontSizes, wholeNumber, [&store] { return store.fontSize(); },
            [&store](double points) { store.setFontSize(points); }},
        section));
    section->add(m_sliders.back());
    return section;
}

QWidget* AppearanceTab::makeSpeakingPaceSection()
{
    auto& store = m_context.store;
    const auto section = new SettingsSection(m_context, QStringLiteral("Speaking Pace"), page());
    m_sliders.push_back(new SettingSlider(m_context,
        {QStringLiteral("Speaking Pace"), kSpeakingPaces, wordsPerMinute,
            [&store] { return static_cast<double>(store.speakingPace()); },
            [&store](double pace) { store.setSpeakingPace(std::llround(pace)); }},
        section));
    section->add(m_sliders.back());
    section->addNote(QStringLiteral("Words per minute when speaking from bullet notes. Toggle with ⌘⇧W."));
    return section;
}

QWidget* AppearanceTab::makeOpacitySection()
{
    auto& store = m_context.store;
    const auto section = new SettingsSection(m_context, QStringLiteral("Opacity"), page());
    m_sliders.push_back(new SettingSlider(m_context,
        {QStringLiteral("Opacity"), kOpacities, percentage, [&store] { return store.opacity(); },
            [&store](double opacity) { store.setOpacity(opacity); }},
        section));
    section->add(m_sliders.back());
    m_transparencyNote = section->addNote(
        QStringLiteral("Frosted glass is disabled because Reduce Transparency is on in System Settings."));
    return section;
}

void AppearanceTab::refresh()
{
    // Any other text means the system's look, which comes first.
    m_theme->setCurrentIndex(std::max(0, m_theme->findData(toQString(m_context.store.theme()))));
    for (const auto slider : m_sliders)
        slider->refresh();
    m_transparencyNote->setVisible(m_context.platform.accessibility.reduceTransparency());
}

} // namespace cuebright
