#include "platform/linux/capture/KWinScript.h"

#include <QJSEngine>

#include <gtest/gtest.h>

#include <tuple>

namespace cuebright::test {

namespace {

/// A KWin with a window of another process; the script's process is 42. `reports` collects what reaches the bus.
constexpr const char* kWorkspace = R"js(
const reports = [];
function signal() {
    const listeners = [];
    return {connect: f => listeners.push(f), emit: w => listeners.forEach(f => f(w))};
}
function makeWindow(pid, kind) {
    const w = {pid, excludeFromCaptureChanged: signal()};
    let flag = false;
    if (kind !== "old")
        Object.defineProperty(w, "excludeFromCapture", {get: () => flag, set: v => { if (kind !== "stubborn") flag = v; }});
    w.reset = () => { flag = false; w.excludeFromCaptureChanged.emit(); };
    return w;
}
const windows = [makeWindow(7)];
const workspace = {windowList: () => Object.assign({length: windows.length}, windows), windowAdded: signal()};
function add(w) { windows.push(w); workspace.windowAdded.emit(w); return w; }
function callDBus(...words) {
    const isRight = words.slice(0, 4).join(" ") === ":1.9 /CaptureExclusion app.cuebright.CaptureExclusion Report";
    reports.push(isRight ? words[4] : words.join(" "));
}
)js";

} // namespace

/// In QJSEngine, as in KWin.
TEST(KWinScript, ReportsTheWorstStateOfTheProcesssWindows)
{
    const std::tuple<const char*, std::string, std::string, const char*> cases[] = {
        {"another process's window", "", "add(makeWindow(8)); reports.push(windows.some(w => w.excludeFromCapture))",
            "false"},
        {"an existing window", "windows.push(makeWindow(42))", "", "omitted"},
        {"a later window", "", "add(makeWindow(42))", "omitted"},
        {"KWin before Plasma 6.6", "windows.push(makeWindow(42, 'old'))", "", "unsupported"},
        {"KWin before Plasma 6", "delete workspace.windowList", "", "unsupported"},
        {"one of two refuses", "windows.push(makeWindow(42, 'stubborn'))", "add(makeWindow(42))", "refused refused"},
        {"a menu that refuses", "windows.push(makeWindow(42))", "add(makeWindow(42, 'stubborn'))", "omitted refused"},
        {"somebody resets the flag", "const w = makeWindow(42); windows.push(w)", "w.reset()", "omitted refused"},
    };
    for (const auto& [name, before, after, reports] : cases) {
        const auto script = kWorkspace + before + "\n" + kwinScript(42, ":1.9") + after + "\nreports.join(' ')";
        EXPECT_EQ(QJSEngine().evaluate(QString::fromStdString(script)).toString().toStdString(), reports) << name;
    }
}

} // namespace cuebright::test
