#pragma once

class QScrollBar;

namespace cuebright {

/// Makes a vertical scroll bar a slim handle without groove and arrows, in the panel's colours.
void makeSlim(QScrollBar& bar);

} // namespace cuebright
