#include "ui/settings/AppearanceTab.h"

#include "platform/Accessibility.h"
#include "platform/qt/TextConversion.h"
#include "store/CardStore.h"
#include "store/DisplayLimits.h"
#include "store/ThemeChoices.h"
#include "ui/settings/SettingsSection.h"
#include "ui/widgets/Label.h"

#include <QComboBox>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <utility>

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
    addThemes();
    auto& store = context.store;
    addSlider({QStringLiteral("Font Size"), kFontSizes, wholeNumber, [&store] { return store.fontSize(); },
        [&store](double points) { store.setFontSize(points); }});
    addSlider({QStringLiteral("Speaking Pace"), kSpeakingPaces, wordsPerMinute,
                  [&store] { return static_cast<double>(store.speakingPace()); },
                  [&store](double pace) { store.setSpeakingPace(std::llround(pace)); }})
        .addNote(QStringLiteral("Words per minute when speaking from bullet notes. Toggle with ⌘⇧W."));
    m_transparencyNote =
        addSlider({QStringLiteral("Opacity"), kOpacities, percentage, [&store] { return store.opacity(); },
                      [&store](double opacity) { store.setOpacity(opacity); }})
            .addNote(QStringLiteral("Frosted glass is disabled because Reduce Transparency is on in System Settings."));
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

SettingsSection& AppearanceTab::addSection(const QString& title)
{
    const auto section = new SettingsSection(m_context, title, page());
    column().addWidget(section);
    return *section;
}

void AppearanceTab::addThemes()
{
    auto& section = addSection(QStringLiteral("Theme"));
    m_theme = new QComboBox(&section);
    m_theme->setAccessibleName(QStringLiteral("Theme"));
    m_theme->setAccessibleDescription(QStringLiteral("Theme")); // Qt 6.4 reports the current text as the name
    for (const auto& theme : kThemeChoices)
        m_theme->addItem(QLatin1String(theme.title), QLatin1String(theme.value));
    connect(m_theme, &QComboBox::activated, this,
        [this] { m_context.store.setTheme(toUtf8(m_theme->currentData().toString())); });
    section.add(m_theme);
}

SettingsSection& AppearanceTab::addSlider(SettingSlider::Setting setting)
{
    auto& section = addSection(setting.name);
    m_sliders.push_back(new SettingSlider(m_context, std::move(setting), &section));
    section.add(m_sliders.back());
    return section;
}

void AppearanceTab::refresh()
{
    m_theme->setCurrentIndex(std::max(0, m_theme->findData(toQString(m_context.store.theme()))));
    for (const auto slider : m_sliders)
        slider->refresh();
    m_transparencyNote->setVisible(m_context.platform.accessibility.reduceTransparency());
}

} // namespace cuebright
