#include "properties/rows/Swatch.h"

#include <QPainter>
#include <QPixmap>

QIcon Swatch::Icon(const QColor& color, int lastPixel)
{
    constexpr int rimDarkness = 200; // Per cent: half as bright as the colour itself.
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(color.darker(rimDarkness));
    painter.setBrush(QBrush(color, Qt::SolidPattern));
    painter.drawRect(0, 0, lastPixel, lastPixel);
    return pixmap;
}
