#pragma once

#include "foundation/Signal.h"
#include "ui/base/CoalescedCall.h"
#include "ui/base/UiContext.h"
#include "ui/settings/SettingsPage.h"

#include <vector>

class QComboBox;

namespace cuebright {

class Label;
class SettingSlider;
struct Change;

/// The display preferences, each changed at once and always shown as it is.
class AppearanceTab final : public SettingsPage {
public:
    AppearanceTab(const UiContext& context, QWidget* parent);
    ~AppearanceTab() override;

private:
    QWidget* makeThemeSection();
    QWidget* makeFontSizeSection();
    QWidget* makeSpeakingPaceSection();
    QWidget* makeOpacitySection();
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
