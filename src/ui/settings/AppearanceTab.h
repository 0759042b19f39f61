#pragma once

#include "foundation/Signal.h"
#include "ui/base/CoalescedCall.h"
#include "ui/base/UiContext.h"
#include "ui/settings/SettingSlider.h"
#include "ui/settings/SettingsPage.h"

#include <vector>

class QComboBox;

namespace cuebright {

class Label;
class SettingsSection;
struct Change;

/// The display preferences. A change takes effect immediately; a change made elsewhere is shown here.
class AppearanceTab final : public SettingsPage {
public:
    AppearanceTab(const UiContext& context, QWidget* parent);
    ~AppearanceTab() override;

private:
    SettingsSection& addSection(const QString& title);
    void addThemes();
    SettingsSection& addSlider(SettingSlider::Setting setting);
    void refresh();

    const UiContext& m_context;
    QComboBox* m_theme;
    std::vector<SettingSlider*> m_sliders;
    Label* m_transparencyNote;
    CoalescedCall m_refresh;
    Subscription m_accessibilitySubscription;
    Subscription m_storeSubscription;
};

} // namespace cuebright
