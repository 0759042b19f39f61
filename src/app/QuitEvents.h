#pragma once

#include <QObject>

#include <functional>

namespace cuebright {

/// The desktop's own requests to quit: the end of a session, a dock's menu. The toolkit would close the windows one by
/// one and stay when one of them is only put away, as ours are.
class QuitEvents final : public QObject {
public:
    /// `quit` leaves the program.
    explicit QuitEvents(std::function<void()> quit);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> m_quit;
};

} // namespace cuebright
