#pragma once

#include "ui/base/UiContext.h"

#include <QWidget>

#include <functional>

class QSlider;

namespace cuebright {

class Label;

/// Where a slider can stand: at `least`, `least + step`, … `most`, each so many parts of one.
struct SliderScale {
    int least;
    int most;
    int step;
    int page; ///< a whole number of steps
    int partsOfOne = 1;

    /// The position next to a value, whatever the value.
    [[nodiscard]] int nearest(double value) const;
};

/// A slider for one value of the settings, and the value itself beside it. Of a value that is off the scale it shows
/// the nearest position, and leaves it as it is until the user moves the slider.
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

    /// Shows the value as it is now.
    void refresh();

private:
    void snap();
    void writePosition(int position);

    Setting m_setting;
    QSlider* m_slider;
    Label* m_value;
};

} // namespace cuebright
