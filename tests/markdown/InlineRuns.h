#pragma once

#include "markdown/InlineParser.h"

#include <ostream>
#include <string>
#include <vector>

namespace cuebright {

/// Runs in one line: plain text as it is, styled text as ⟨strong em code link=target|text⟩ with what applies.
inline std::string describe(const std::vector<StyledRun>& runs)
{
    std::string line;
    for (const auto& run : runs) {
        std::string styles;
        const auto add = [&styles](std::string_view style) { (styles += styles.empty() ? "" : " ") += style; };
        if (run.isBold)
            add("strong");
        if (run.isItalic)
            add("em");
        if (run.isCode)
            add("code");
        if (run.link)
            add("link=" + *run.link);
        line += styles.empty() ? run.text : "⟨" + styles + "|" + run.text + "⟩";
    }
    return line;
}

inline void PrintTo(const StyledRun& run, std::ostream* out) { *out << describe({run}); }

} // namespace cuebright
