#pragma once

#include <QApplication>

#include <functional>

namespace cuebright {

/// Answers the desktop's requests to quit, such as at the end of a session or from a dock's menu. Qt would close the
/// windows one by one and keep running, because ours only hide.
class Application final : public QApplication {
public:
    using QApplication::QApplication;

    /// Replaces what Qt does at such a request.
    std::function<void()> quitRequested;

protected:
    bool event(QEvent* event) override;
};

} // namespace cuebright
