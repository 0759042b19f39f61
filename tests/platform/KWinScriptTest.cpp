#include "platform/linux/KWinScript.h"

#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <iostream>

namespace cuebright::test {

namespace {

/// A KWin with one window of ours (pid 42) and one of somebody else; `print` says what reaches the bus.
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
function callDBus(...words) { print(words.join(" ")); }
)js";

struct ScriptCase {
    const char* name;
    const char* before; ///< the script is loaded
    const char* after;
    std::vector<std::string> reports;
};

void PrintTo(const ScriptCase& scriptCase, std::ostream* out) { *out << scriptCase.name; }

class KWinScriptTest : public testing::TestWithParam<ScriptCase> { };

} // namespace

TEST_P(KWinScriptTest, ReportsTheWorstOfAllWindowsOfOurs)
{
    const auto node = QStandardPaths::findExecutable(QStringLiteral("node"));
    if (node.isEmpty())
        GTEST_SKIP() << "needs node, to run the script as KWin would";
    const std::string text =
        kWorkspace + std::string(GetParam().before) + "\n" + kwinScript(42, ":1.9") + GetParam().after;
    QProcess process;
    process.start(node, {QStringLiteral("-e"), QString::fromStdString(text)});
    ASSERT_TRUE(process.waitForFinished(30'000));
    std::string expected;
    for (const auto& report : GetParam().reports)
        expected += ":1.9 /CaptureExclusion app.cuebright.CaptureExclusion Report " + report + "\n";
    EXPECT_EQ(process.readAllStandardOutput().toStdString(), expected);
    EXPECT_EQ(process.readAllStandardError().toStdString(), "");
}

INSTANTIATE_TEST_SUITE_P(Scripts, KWinScriptTest,
    testing::Values(ScriptCase {"NoWindowOfOurs", "",
                        "add(makeWindow(8)); if (windows.some(w => w.excludeFromCapture)) print('foreign')", {}},
        ScriptCase {"AWindowThatIsThere", "windows.push(makeWindow(42))", "", {"omitted"}},
        ScriptCase {"ALaterWindow", "", "add(makeWindow(42))", {"omitted"}},
        ScriptCase {"TooOld", "windows.push(makeWindow(42, 'old'))", "", {"unsupported"}},
        ScriptCase {"OneOfTwoRefuses", "windows.push(makeWindow(42, 'stubborn'))", "add(makeWindow(42))",
            {"refused", "refused"}},
        ScriptCase {"AMenuThatRefuses", "windows.push(makeWindow(42))", "add(makeWindow(42, 'stubborn'))",
            {"omitted", "refused"}},
        ScriptCase {
            "SomebodyResetsTheFlag", "const w = makeWindow(42); windows.push(w)", "w.reset()", {"omitted", "refused"}}),
    [](const auto& test) { return std::string(test.param.name); });

} // namespace cuebright::test
