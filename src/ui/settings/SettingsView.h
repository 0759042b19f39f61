#pragma once

#include "foundation/Signal.h"
#include "ui/base/UiContext.h"

#include <QWidget>

#include <functional>

class QTabWidget;

namespace cuebright {

class Label;

/// The settings, in tabs. A change takes effect immediately; a change made elsewhere is shown here.
class SettingsView final : public QWidget {
public:
    /// `reset` deletes all data; it is called after the user has confirmed.
    SettingsView(const UiContext& context, std::function<void()> reset, QWidget* parent);
    ~SettingsView() override;

private:
    void addPagingKeys();
    void updateShareAdvice();

    const UiContext& m_context;
    QTabWidget* m_tabs;
    Label* m_shareAdvice;
    Subscription m_accessibilitySubscription;
    Subscription m_exclusionSubscription;
};

} // namespace cuebright
