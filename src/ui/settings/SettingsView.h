#pragma once

#include "foundation/Signal.h"
#include "ui/base/UiContext.h"

#include <QWidget>

#include <functional>

class QTabWidget;

namespace cuebright {

class Label;

/// Everything there is to set, in tabs. What is changed here holds at once; what is changed elsewhere shows here.
class SettingsView final : public QWidget {
public:
    /// `reset` puts everything back to the first day; it is called when the user has confirmed it.
    SettingsView(const UiContext& context, std::function<void()> reset, QWidget* parent);
    ~SettingsView() override;

private:
    void addPagingKeys();
    void tellWhatTheAudienceSees();

    const UiContext& m_context;
    QTabWidget* m_tabs;
    Label* m_shareAdvice;
    Subscription m_accessibilitySubscription;
    Subscription m_exclusionSubscription;
};

} // namespace cuebright
