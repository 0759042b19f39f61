#include "app/SymbolIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

namespace cuebright {

namespace {

/// Draws anew each time, so that the colour follows the look.
class SymbolIconEngine final : public QIconEngine {
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

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new SymbolIconEngine(*this); }

private:
    Icon m_icon;
};

} // namespace

QIcon symbolIcon(Icon icon) { return QIcon(new SymbolIconEngine(icon)); }

} // namespace cuebright
