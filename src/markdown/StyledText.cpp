#include "markdown/StyledText.h"

#include "markdown/InlineParser.h"

#include <utility>

namespace cuebright {

std::vector<StyledRun> renderInline(std::string_view text)
{
    std::vector<StyledRun> runs;
    for (auto& run : parseInline(text)) {
        runs.push_back({
            .text = std::move(run.text),
            .isBold = run.isStrong,
            .isItalic = run.isEmphasised,
            .isUnderlined = run.link.has_value(),
            .isAccented = run.isEmphasised || run.link,
            .isCode = run.isCode,
            .link = std::move(run.link),
        });
    }
    return runs;
}

} // namespace cuebright
