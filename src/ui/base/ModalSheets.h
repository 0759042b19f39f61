#pragma once

class QWidget;

namespace cuebright {

/// Whether a sheet on `window` or an application-modal dialog is open. What the window shows must not change
/// meanwhile, because the question is about it.
[[nodiscard]] bool isWaitingForAnswer(const QWidget& window);

/// Rejects all open sheets on `window`.
void dismissSheets(const QWidget& window);

} // namespace cuebright
