#pragma once

#include <QGraphicsEffect>

namespace cuebright {

/// Draws a widget scaled about its centre.
class ScaleEffect final : public QGraphicsEffect {
public:
    /// 1 is the full size.
    void setScale(double scale);

protected:
    void draw(QPainter* painter) override;

private:
    double m_scale = 1;
};

} // namespace cuebright
