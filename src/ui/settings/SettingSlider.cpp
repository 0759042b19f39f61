#include "ui/settings/SettingSlider.h"

#include "ui/base/Fonts.h"
#include "ui/settings/SettingsSection.h"
#include "ui/widgets/FocusRing.h"
#include "ui/widgets/Label.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <cmath>
#include <utility>

namespace cuebright {

namespace {

constexpr int kGap = 12;
constexpr int kValueWidth = 64;

} // namespace

int SliderScale::nearest(double value) const
{
    const double position = std::clamp<double>(value * partsOfOne, least, most);
    return least + step * static_cast<int>(std::lround((position - least) / step));
}

SettingSlider::SettingSlider(const UiContext& context, Setting setting, QWidget* parent)
    : QWidget(parent)
    , m_setting(std::move(setting))
    , m_slider(new QSlider(Qt::Horizontal, this))
    , m_value(new Label(
          context, systemFont(kSettingsTextSize, QFont::Medium), ColorRole::Text, Label::WhenNarrow::Elide, this))
{
    m_slider->setRange(m_setting.scale.least, m_setting.scale.most);
    m_slider->setSingleStep(m_setting.scale.step);
    m_slider->setPageStep(m_setting.scale.page);
    m_slider->setAccessibleName(m_setting.name);
    new FocusRing(context, m_slider, FocusRing::When::ReachedByTab); // the style's own is hardly visible at the ends
    m_value->setFixedWidth(kValueWidth);
    const auto line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(kGap);
    line->addWidget(m_slider, 1);
    line->addWidget(m_value);
    setFocusProxy(m_slider);
    connect(m_slider, &QSlider::actionTriggered, this, [this] { snap(); });
    connect(m_slider, &QSlider::valueChanged, this, [this](int position) { writePosition(position); });
    refresh();
}

void SettingSlider::refresh()
{
    const double value = m_setting.read();
    const auto text = m_setting.text(value);
    const QSignalBlocker blocker(m_slider);
    m_slider->setValue(m_setting.scale.nearest(value));
    m_slider->setAccessibleDescription(text);
    m_value->setText(text);
}

/// The mouse may stop between two steps. Where a key does not move the slider, Qt emits no valueChanged, but the value
/// may still differ from the position.
void SettingSlider::snap()
{
    const auto& scale = m_setting.scale;
    const int position = scale.nearest(static_cast<double>(m_slider->sliderPosition()) / scale.partsOfOne);
    m_slider->setSliderPosition(position);
    if (position == m_slider->value())
        writePosition(position);
}

/// A screen reader may set any position, without actionTriggered.
void SettingSlider::writePosition(int position)
{
    const auto& scale = m_setting.scale;
    const int snapped = scale.nearest(static_cast<double>(position) / scale.partsOfOne);
    const double value = static_cast<double>(snapped) / scale.partsOfOne;
    if (value != m_setting.read())
        m_setting.write(value);
    refresh();
}

} // namespace cuebright
