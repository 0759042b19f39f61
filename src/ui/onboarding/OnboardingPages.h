#pragma once

#include "ui/widgets/Icon.h"

#include <QString>

#include <optional>
#include <string_view>
#include <vector>

namespace cuebright {

/// A page of the introduction. Empty parts are not shown.
struct OnboardingPage {
    struct Row {
        QString keys;
        QString label;
    };

    Icon icon;
    QString title;
    QString advice; ///< in text colour, above the body
    QString body;
    std::vector<Row> rows;
};

/// The pages in order. `advice` comes first on the page about screen sharing.
[[nodiscard]] std::vector<OnboardingPage> onboardingPages(std::optional<std::string_view> advice);

} // namespace cuebright
