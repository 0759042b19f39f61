#pragma once

#include "ui/base/UiContext.h"

#include <QWidget>

#include <functional>

class QSlider;

namespace cuebright {

class Label;

/// The positions of a slider: `least`, `least + step`, … `most`. A value is a position divided by `partsOfOne`.
struct SliderScale {
    int least;
    int most;
    int step;
    int page; ///< a multiple of `step`
    int partsOfOne = 1;

    /// The position nearest to `value`, which may be out of range.
    [[nodiscard]] int nearest(double value) const;
};

/// A slider for one setting, with the value beside it. A value off the scale shows as the nearest position and is
/// changed only when the user moves the slider.
class SettingSlider final : public QWidget {
public:
    struct Setting {
        QString name;
        SliderScale scale;
        QString (*text)(double value);
        std::function<double()> read;
        std::function<void(double)> write;
    };

    SettingSlider(const UiContext& context, Setting setting, QWidget* parent);

    /// Shows the current value.
    void refresh();

private:
    void snap();
    void writePosition(int position);

    Setting m_setting;
    QSlider* m_slider;
    Label* m_value;
};

} // namespace cuebright
