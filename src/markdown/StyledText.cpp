#include "markdown/StyledText.h"

#include "markdown/InlineParser.h"

#include <utility>

namespace cuebright {

namespace {

constexpr double kCodeBackgroundOpacity = 0.3;

StyledRun styled(InlineRun run, double fontSize, const Colors& colors)
{
    StyledRun result {.text = std::move(run.text), .isBold = run.isStrong, .isItalic = run.isEmphasised};
    if (run.isEmphasised || run.link)
        result.foreground = colors.accent();
    if (run.isCode) {
        result.monospacedSize = fontSize;
        result.background = colors.sep().withAlpha(kCodeBackgroundOpacity);
    }
    result.isUnderlined = run.link.has_value();
    result.link = std::move(run.link);
    return result;
}

} // namespace

std::vector<StyledRun> renderInline(std::string_view text, double fontSize, const Colors& colors)
{
    std::vector<StyledRun> runs;
    for (auto& run : parseInline(text))
        runs.push_back(styled(std::move(run), fontSize, colors));
    return runs;
}

} // namespace cuebright
