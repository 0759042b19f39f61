#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>

#include <functional>
#include <string>
#include <vector>

namespace cuebright::test {

/// Stands in for KWin on the bus: takes a script in and, when that is run, reports what a test has laid down.
class FakeKWin final : public QDBusVirtualObject {
public:
    explicit FakeKWin(QDBusConnection bus);
    ~FakeKWin() override;
    void appear();
    void vanish();
    /// The call that the script would make.
    [[nodiscard]] QDBusMessage reportOf(const QString& word) const;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override;

    QDBusConnection connection;
    QString report = QStringLiteral("omitted"); ///< of the script that is run; empty: none
    QString refused; ///< the method that is answered with an error
    int scriptNumber = 5;
    QStringList calls;
    std::function<void(const QString& call)> called;
    std::string script;
    std::vector<unsigned> modes; ///< of the script file and its folder
};

} // namespace cuebright::test
