#include "ui/widgets/SymbolIcon.h"

#include "ui/widgets/DrawnIcon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace cuebright {

namespace {

class SymbolIconEngine final : public DrawnIcon {
public:
    explicit SymbolIconEngine(Icon icon)
        : m_icon(icon)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        drawIcon(*painter, m_icon, rect, QGuiApplication::palette().color(group, QPalette::ButtonText));
    }

    [[nodiscard]] QIconEngine* clone() const override { return new SymbolIconEngine(*this); }

private:
    Icon m_icon;
};

} // namespace

QIcon symbolIcon(Icon icon) { return QIcon(new SymbolIconEngine(icon)); }

} // namespace cuebright
