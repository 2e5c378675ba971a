#ifndef APPICONENGINE_H
#define APPICONENGINE_H

#include <QIconEngine>

// The demo host's icon, painted at whatever size and device pixel ratio is
// asked for, so that it stays sharp on high-DPI screens. The same drawing
// as velora-demo.svg, which the desktop entry uses.
class AppIconEngine : public QIconEngine
{
public:
    static QIcon icon();

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;
};

#endif // APPICONENGINE_H
