#pragma once

#include "platform/linux/capture/KWinScripting.h"

#include <QDBusConnection>
#include <QObject>

#include <filesystem>
#include <memory>

class QDBusMessage;
class QDBusServiceWatcher;
class QDBusVirtualObject;

namespace cuebright {

/// KWin's scripting service on the session bus. Waits for the bus itself at most, and for no program on it.
///
/// A script goes to KWin by way of a file that only the user can read and that is gone again once the script runs.
/// Only what the present owner of KWin's name reports counts.
///
/// Made from KWin's documentation and tried against a stand-in only: it has not been run on a real KWin.
class DBusKWinScripting final : public KWinScripting {
public:
    using Connect = std::function<QDBusConnection()>;

    /// `connect` is called by `start`.
    DBusKWinScripting(Connect connect, const std::filesystem::path& runtimeDirectory);
    ~DBusKWinScripting() override;

    void start() override;
    [[nodiscard]] std::string busName() const override;
    void unload(std::string_view plugin, std::function<void(bool)> done) override;
    void load(std::string_view script, std::string_view plugin, std::function<void(std::optional<int>)> done) override;
    void run(int id, std::function<void(bool)> done) override;

private:
    class ReportObject;
    using Replied = std::function<void(const QDBusMessage&)>;

    void call(const QDBusMessage& message, Replied replied);
    void askForOwner();
    void setOwner(const QString& owner);
    void removeScriptFile();

    Connect m_connect;
    std::filesystem::path m_scriptFile; ///< empty where there is no place for it
    std::optional<QDBusConnection> m_bus;
    QString m_owner; ///< of KWin's name; empty while there is none
    std::unique_ptr<QDBusVirtualObject> m_reportObject;
    std::unique_ptr<QDBusServiceWatcher> m_ownerWatcher;
    QObject m_calls; ///< parent of all that are under way
};

} // namespace cuebright
