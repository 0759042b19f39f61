#include "platform/linux/capture/KWinScript.h"

#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <tuple>

namespace cuebright::test {

namespace {

/// A KWin with windows of this program (pid 42) and of others; `print` shows the D-Bus calls.
constexpr const char* kWorkspace = R"js(
const print = console.log;
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
const workspace = {windowList: () => ({length: windows.length, ...windows}), windowAdded: signal()};
function add(w) { windows.push(w); workspace.windowAdded.emit(w); return w; }
function callDBus(...words) {
    const isRight = words.slice(0, 4).join(" ") === ":1.9 /CaptureExclusion app.cuebright.CaptureExclusion Report";
    print(isRight ? words[4] : words.join(" "));
}
)js";

} // namespace

TEST(KWinScript, ReportsTheWorstOfAllWindowsOfOurs)
{
    const auto node = QStandardPaths::findExecutable(QStringLiteral("node"));
    if (node.isEmpty())
        GTEST_SKIP() << "needs node, to run the script as KWin would";
    const std::tuple<const char*, std::string, std::string, const char*> cases[] = {
        {"no own window", "", "add(makeWindow(8)); if (windows.some(w => w.excludeFromCapture)) print('foreign')", ""},
        {"a window that is there", "windows.push(makeWindow(42))", "", "omitted\n"},
        {"a later window", "", "add(makeWindow(42))", "omitted\n"},
        {"too old", "windows.push(makeWindow(42, 'old'))", "", "unsupported\n"},
        {"one of two refuses", "windows.push(makeWindow(42, 'stubborn'))", "add(makeWindow(42))", "refused\nrefused\n"},
        {"a menu that refuses", "windows.push(makeWindow(42))", "add(makeWindow(42, 'stubborn'))",
            "omitted\nrefused\n"},
        {"the flag is reset", "const w = makeWindow(42); windows.push(w)", "w.reset()", "omitted\nrefused\n"},
    };
    for (const auto& [name, before, after, reports] : cases) {
        SCOPED_TRACE(name);
        QProcess process;
        process.start(node,
            {QStringLiteral("-e"),
                QString::fromStdString(kWorkspace + before + "\n" + kwinScript(42, ":1.9") + after)});
        ASSERT_TRUE(process.waitForFinished(30'000));
        EXPECT_EQ(process.readAllStandardOutput().toStdString(), reports);
        EXPECT_EQ(process.readAllStandardError().toStdString(), "");
    }
}

} // namespace cuebright::test
