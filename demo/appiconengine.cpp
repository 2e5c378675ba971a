#include "appiconengine.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

QIcon AppIconEngine::icon()
{
    return QIcon(new AppIconEngine);
}

// On a 64-unit grid: a rounded dark square, a tracking target of three
// markers on a cross-bar, and the camera's view as a ring around it.
void AppIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / 64.0, rect.height() / 64.0);
    const bool disabled = mode == QIcon::Disabled;
    painter->setPen(Qt::NoPen);
    painter->setBrush(disabled ? QColor(120, 120, 120) : QColor(22, 58, 104));
    painter->drawRoundedRect(QRectF(2, 2, 60, 60), 12, 12);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(QColor(120, 190, 255), 3));
    painter->drawEllipse(QPointF(32, 32), 22, 22);
    painter->setPen(QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap));
    painter->drawLine(QPointF(20, 40), QPointF(44, 24));
    painter->drawLine(QPointF(32, 32), QPointF(38, 44));
    painter->setPen(Qt::NoPen);
    painter->setBrush(disabled ? QColor(200, 200, 200) : QColor(255, 196, 0));
    for (const QPointF &marker : { QPointF(20, 40), QPointF(44, 24), QPointF(38, 44) })
        painter->drawEllipse(marker, 6, 6);
    painter->restore();
}

QPixmap AppIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return picture;
}

QIconEngine *AppIconEngine::clone() const
{
    return new AppIconEngine;
}
