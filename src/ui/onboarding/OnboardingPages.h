#pragma once

#include "ui/widgets/Icon.h"

#include <QString>

#include <optional>
#include <string_view>
#include <vector>

namespace cuebright {

/// One page of the introduction; what is empty is not shown.
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

/// The pages in order. The one on screen sharing takes back no word of its own, but begins with `advice`.
[[nodiscard]] std::vector<OnboardingPage> onboardingPages(std::optional<std::string_view> advice);

} // namespace cuebright
