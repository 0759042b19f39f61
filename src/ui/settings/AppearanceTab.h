#pragma once

#include "foundation/Signal.h"
#include "ui/base/OncePerTurn.h"
#include "ui/base/PanelContext.h"
#include "ui/settings/SettingsPage.h"

#include <vector>

class QComboBox;

namespace cuebright {

class PanelLabel;
class SettingSlider;
struct Change;

/// The display preferences, each changed at once and always shown as it is.
class AppearanceTab final : public SettingsPage {
public:
    AppearanceTab(const PanelContext& context, QWidget* parent);
    ~AppearanceTab() override;

private:
    QWidget* makeThemeSection();
    QWidget* makeFontSizeSection();
    QWidget* makeSpeakingPaceSection();
    QWidget* makeOpacitySection();
    void refreshIfShown(const Change& change);
    void refresh();

    const PanelContext& m_context;
    QComboBox* m_theme;
    std::vector<SettingSlider*> m_sliders;
    PanelLabel* m_transparencyNote;
    OncePerTurn m_refresh;
    Subscription m_accessibilitySubscription;
    Subscription m_storeSubscription;
};

} // namespace cuebright
