#include "StatusImages.h"

#include <QPainter>
#include <QPainterPath>

namespace StatusImages {

namespace {

QPixmap disc(int size, const QColor &colour, const QPainterPath &mark)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(1, 1, size - 2, size - 2));
    painter.setPen(QPen(Qt::white, size / 8.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.scale(size / 32.0, size / 32.0);
    painter.drawPath(mark);
    return pixmap;
}

} // namespace

QPixmap ok(int size)
{
    QPainterPath tick;
    tick.moveTo(9, 17);
    tick.lineTo(14, 22);
    tick.lineTo(23, 11);
    return disc(size, QColor(0, 160, 0), tick);
}

QPixmap no(int size)
{
    QPainterPath cross;
    cross.moveTo(11, 11);
    cross.lineTo(21, 21);
    cross.moveTo(21, 11);
    cross.lineTo(11, 21);
    return disc(size, QColor(200, 0, 0), cross);
}

} // namespace StatusImages
