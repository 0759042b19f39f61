#pragma once

#include "foundation/Signal.h"
#include "platform/linux/x11/X11Connection.h"

#include <QAbstractNativeEventFilter>

namespace cuebright {

/// Whether a compositor runs, which transparency needs: it owns the selection `_NET_WM_CM_S<screen>` (Extended Window
/// Manager Hints).
class X11Compositor final : public QAbstractNativeEventFilter {
public:
    explicit X11Compositor(const X11Connection& x11);

    [[nodiscard]] bool isRunning() const { return m_isRunning; }

    /// `isRunning` has changed.
    Signal<> changed;

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

private:
    [[nodiscard]] bool hasOwner() const;

    const X11Connection& m_x11;
    const xcb_atom_t m_selection;
    std::uint8_t m_selectionEvent = 0; ///< the type of XFixes selection events; 0 without that extension
    bool m_isRunning;
};

} // namespace cuebright
