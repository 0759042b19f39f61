#pragma once

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QString>

#include <cstdio>
#include <functional>
#include <utility>

#include <unistd.h>

namespace cuebright::test {

/// Prints one line at once.
inline void say(const QString& line)
{
    std::puts(qPrintable(line));
    std::fflush(stdout);
}

/// Hands over each line of standard input; the program ends with its input.
class OrderLine final {
public:
    explicit OrderLine(std::function<void(const QString&)> obey)
        : m_obey(std::move(obey))
        , m_notifier(STDIN_FILENO, QSocketNotifier::Read)
    {
        QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] { read(); });
    }

private:
    void read()
    {
        char buffer[1024];
        const auto size = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (size <= 0)
            return QCoreApplication::quit();
        m_input.append(buffer, size);
        for (auto end = m_input.indexOf('\n'); end >= 0; end = m_input.indexOf('\n')) {
            const auto line = QString::fromUtf8(m_input.left(end));
            m_input.remove(0, end + 1);
            m_obey(line);
        }
    }

    std::function<void(const QString&)> m_obey;
    QSocketNotifier m_notifier;
    QByteArray m_input;
};

} // namespace cuebright::test
