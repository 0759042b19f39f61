#pragma once

class QWidget;

namespace cuebright {

/// Whether a sheet on `window`, or a dialog on the whole program, waits for an answer. What the window shows stays as
/// it is until then: the answer is about that.
[[nodiscard]] bool isWaitingForAnswer(const QWidget& window);

/// Answers the sheets on `window` with Cancel.
void dismissSheets(const QWidget& window);

} // namespace cuebright
