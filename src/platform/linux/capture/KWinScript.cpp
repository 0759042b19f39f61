#include "platform/linux/capture/KWinScript.h"

namespace cuebright {

namespace {

// Connects windowAdded before the first report, so that every later window is reported too.
constexpr std::string_view kBody = R"js(
(function () {
    if (typeof workspace.windowList !== "function") { // older than Plasma 6
        callDBus(busName, path, iface, method, "unsupported");
        return;
    }
    function ourWindows() {
        const all = workspace.windowList();
        const ours = [];
        for (let i = 0; i < all.length; ++i) {
            if (all[i] && all[i].pid === pid)
                ours.push(all[i]);
        }
        return ours;
    }
    function stateOf(window) {
        if (typeof window.excludeFromCapture !== "boolean")
            return "unsupported";
        return window.excludeFromCapture ? "omitted" : "refused";
    }
    function report(windows) {
        if (windows.length === 0)
            return;
        const states = windows.map(stateOf);
        const worst = ["unsupported", "refused", "omitted"].find(function (state) { return states.includes(state); });
        callDBus(busName, path, iface, method, worst);
    }
    function exclude(window) {
        if (typeof window.excludeFromCapture !== "boolean")
            return;
        window.excludeFromCapture = true;
        const flagChanged = window.excludeFromCaptureChanged;
        if (flagChanged && typeof flagChanged.connect === "function")
            flagChanged.connect(function () { report(ourWindows()); });
    }
    workspace.windowAdded.connect(function (window) {
        if (!window || window.pid !== pid)
            return;
        exclude(window);
        report(ourWindows().concat([window]));
    });
    ourWindows().forEach(exclude);
    report(ourWindows());
})();
)js";

std::string constant(std::string_view name, std::string_view text)
{
    return "const " + std::string(name) + " = \"" + std::string(text) + "\";\n";
}

} // namespace

std::string kwinScript(long pid, std::string_view busName)
{
    return "const pid = " + std::to_string(pid) + ";\n" + constant("busName", busName)
        + constant("path", kKWinReportPath) + constant("iface", kKWinReportInterface)
        + constant("method", kKWinReportMethod) + std::string(kBody);
}

} // namespace cuebright
