#include "platform/qt/ApplicationPalette.h"

#include "platform/qt/QtColors.h"
#include "theme/Palette.h"

namespace cuebright {

namespace {

Color between(const Color& from, const Color& to, double share)
{
    const auto mix = [share](double a, double b) { return a + (b - a) * share; };
    return {mix(from.red, to.red), mix(from.green, to.green), mix(from.blue, to.blue)};
}

} // namespace

QPalette applicationPalette(bool isDark)
{
    const auto paper = Palette::windowBackground.resolved(isDark);
    const auto ink = Palette::textPrimary.resolved(isDark);
    const auto muted = Palette::textMuted.resolved(isDark);
    const auto accent = Palette::accent.resolved(isDark);
    const auto line = Palette::separator.resolved(isDark);
    const auto white = Palette::windowBackground.light;

    const struct {
        QPalette::ColorRole role;
        Color enabled;
        Color disabled;
    } rows[] = {
        {QPalette::Window, paper, paper},
        {QPalette::WindowText, ink, muted},
        {QPalette::Base, paper, paper},
        {QPalette::AlternateBase, between(paper, line, 0.3), between(paper, line, 0.3)},
        {QPalette::Text, ink, muted},
        {QPalette::PlaceholderText, muted, muted},
        {QPalette::Button, between(paper, line, 0.3), paper},
        {QPalette::ButtonText, ink, muted},
        {QPalette::BrightText, accent, muted},
        {QPalette::Highlight, accent, line},
        {QPalette::HighlightedText, white, muted},
        {QPalette::Link, accent, muted},
        {QPalette::LinkVisited, between(accent, muted, 0.5), muted},
        {QPalette::ToolTipBase, between(paper, line, 0.3), between(paper, line, 0.3)},
        {QPalette::ToolTipText, ink, ink},
        {QPalette::Light, between(paper, white, isDark ? 0.1 : 0.5), between(paper, white, isDark ? 0.1 : 0.5)},
        {QPalette::Midlight, between(paper, line, 0.5), between(paper, line, 0.5)},
        {QPalette::Mid, line, line},
        {QPalette::Dark, between(line, muted, 0.5), between(line, muted, 0.5)},
        {QPalette::Shadow, Palette::textPrimary.light, Palette::textPrimary.light},
    };
    QPalette palette;
    for (const auto& row : rows) {
        palette.setColor(QPalette::Active, row.role, toQColor(row.enabled));
        palette.setColor(QPalette::Inactive, row.role, toQColor(row.enabled));
        palette.setColor(QPalette::Disabled, row.role, toQColor(row.disabled));
    }
    return palette;
}

} // namespace cuebright
