#pragma once

#include "foundation/Signal.h"

#include <QDBusConnection>
#include <QObject>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QDBusMessage;
class QDBusServiceWatcher;
class QDBusVirtualObject;

namespace cuebright {

/// KWin's scripting service on the session bus: loads scripts into KWin and receives what they report. Never waits for
/// a reply: each `done` runs later on the main thread, or not at all once this object is destroyed.
///
/// A script is passed in a file that only the user can read and that is removed once the script runs. Reports are
/// accepted only from the current owner of KWin's bus name.
///
/// Written from KWin's documentation and tested against a fake; not run with a real KWin yet.
class KWinScripting final {
public:
    enum class Availability { Absent, Present };
    using Connect = std::function<QDBusConnection()>;

    /// `connect` is called by `start`; it may block while it connects to the bus. Without a `runtimeDirectory` no
    /// script can be loaded.
    KWinScripting(Connect connect, const std::filesystem::path& runtimeDirectory);
    ~KWinScripting();

    /// Looks for KWin. Call once; `availabilityChanged` gives the answer.
    void start();

    /// Our address on the bus, for scripts that report; empty before `start` and where there is no bus.
    [[nodiscard]] std::string busName() const;

    /// `done` gets false where KWin did not answer; whether the plugin existed makes no difference. With an empty
    /// `done` the request is sent even if this object is destroyed right after.
    void unload(std::string_view plugin, std::function<void(bool wasAnswered)> done);
    /// `done` gets the script's number, negative where KWin refuses it; nothing where KWin did not answer.
    void load(std::string_view script, std::string_view plugin, std::function<void(std::optional<int>)> done);
    void run(int id, std::function<void(bool isRunning)> done);

    /// `Present`: a KWin that was not there before, without our scripts.
    Signal<Availability> availabilityChanged;
    /// A script in the current KWin has reported this word.
    Signal<std::string_view> reported;

private:
    class ReportObject;
    using Replied = std::function<void(const QDBusMessage&)>;

    void call(const QDBusMessage& message, Replied replied);
    void askForOwner();
    void setOwner(const QString& owner);
    void removeScriptFile();

    Connect m_connect;
    std::filesystem::path m_scriptFile; ///< empty without a runtime directory
    std::optional<QDBusConnection> m_bus;
    QString m_owner; ///< of KWin's bus name; empty while KWin is absent
    std::unique_ptr<QDBusVirtualObject> m_reportObject;
    std::unique_ptr<QDBusServiceWatcher> m_ownerWatcher;
    QObject m_calls; ///< parent of the pending calls
};

} // namespace cuebright
