#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>

#include <functional>
#include <string>
#include <vector>

namespace cuebright::test {

/// Stands in for KWin on the bus: loads a script and, when it is run, sends the report that the test has set.
class FakeKWin final : public QDBusVirtualObject {
public:
    explicit FakeKWin(QDBusConnection bus);
    ~FakeKWin() override;
    void appear();
    void vanish();
    /// The call that the script makes.
    [[nodiscard]] QDBusMessage reportOf(const QString& word) const;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override;

    QDBusConnection connection;
    QString report = QStringLiteral("omitted"); ///< sent when the script is run; empty: none
    QString refused; ///< the method that fails
    int scriptNumber = 5;
    QStringList calls;
    std::function<void(const QString& call)> called;
    std::string script;
    std::vector<unsigned> modes; ///< of the script file and its folder
};

} // namespace cuebright::test
