// Draws the module's icons. Run once after changing a picture:
//   cmake --build build --target drawicons && build/plugin/drawicons plugin/resources
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <cstdio>
#include <functional>

namespace
{

constexpr int IconSize = 32;

QImage canvas(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void statusLight(QPainter &p, const QColor &color)
{
    QRadialGradient gradient(QPointF(12, 11), 14);
    gradient.setColorAt(0, color.lighter(170));
    gradient.setColorAt(0.6, color);
    gradient.setColorAt(1, color.darker(140));
    p.setPen(QPen(color.darker(180), 1.5));
    p.setBrush(gradient);
    p.drawEllipse(QRectF(4, 4, 24, 24));
}

void lock(QPainter &p)
{
    p.setPen(QPen(QColor(90, 90, 100), 3.5, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(9, 3, 14, 18), 0, 180 * 16);
    p.drawLine(QPointF(9, 12), QPointF(9, 15));
    p.drawLine(QPointF(23, 12), QPointF(23, 15));
    QLinearGradient body(0, 14, 0, 30);
    body.setColorAt(0, QColor(250, 205, 70));
    body.setColorAt(1, QColor(205, 150, 20));
    p.setPen(QPen(QColor(140, 100, 10), 1.5));
    p.setBrush(body);
    p.drawRoundedRect(QRectF(5, 14, 22, 16), 3, 3);
    p.setBrush(QColor(90, 60, 0));
    p.setPen(Qt::NoPen);
    p.drawEllipse(QRectF(14, 18, 4, 4));
    p.drawRect(QRectF(15, 21, 2, 5));
}

void reset(QPainter &p) // "48.png": back to stored geometry
{
    const QColor blue(30, 110, 200);
    p.setPen(QPen(blue, 4, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(6, 6, 20, 20), 100 * 16, 290 * 16);
    QPainterPath head;
    head.moveTo(3, 6);
    head.lineTo(14, 2);
    head.lineTo(12, 13);
    head.closeSubpath();
    p.setPen(Qt::NoPen);
    p.setBrush(blue);
    p.drawPath(head);
}

void deletion(QPainter &p) // "118.png": delete geometry
{
    const QColor red(200, 40, 40);
    p.setPen(QPen(QColor(110, 110, 120), 1.5));
    p.setBrush(QColor(225, 225, 230));
    p.drawRect(QRectF(8, 9, 16, 20));
    p.drawRect(QRectF(6, 6, 20, 3));
    p.drawRect(QRectF(13, 3, 6, 3));
    p.setPen(QPen(red, 3.5, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(11, 13), QPointF(21, 25));
    p.drawLine(QPointF(21, 13), QPointF(11, 25));
}

// "19.png" and "24.png": move the selected body up or down.
void arrow(QPainter &p, bool up)
{
    // One arrow, pointing up; the down arrow is its mirror image.
    if (!up) {
        p.translate(0, IconSize);
        p.scale(1, -1);
    }
    QPainterPath path;
    path.moveTo(16, 4);
    path.lineTo(28, 17);
    path.lineTo(20, 17);
    path.lineTo(20, 28);
    path.lineTo(12, 28);
    path.lineTo(12, 17);
    path.lineTo(4, 17);
    path.closeSubpath();
    QLinearGradient fill(0, 0, 32, 32);
    fill.setColorAt(0, QColor(90, 160, 230));
    fill.setColorAt(1, QColor(30, 100, 190));
    p.setPen(QPen(QColor(20, 70, 140), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(fill);
    p.drawPath(path);
}

void table(QPainter &p, const QRect &area, const QStringList &header,
    const QList<QStringList> &rows, const QList<bool> &gray)
{
    QFont font = p.font();
    font.setPixelSize(12);
    p.setFont(font);
    const int columns = header.size();
    const int rowCount = rows.size() + 1;
    const auto x = [&](int c) { return area.left() + c * (area.width() - 1) / columns; };
    const auto y = [&](int r) { return area.top() + r * (area.height() - 1) / rowCount; };
    p.fillRect(area, Qt::white);
    p.fillRect(
        QRect(area.left(), area.top(), area.width(), y(1) - area.top()), QColor(230, 232, 236));
    p.setPen(QColor(160, 165, 175));
    for (int r = 0; r <= rowCount; ++r)
        p.drawLine(area.left(), y(r), area.right(), y(r));
    for (int c = 0; c <= columns; ++c)
        p.drawLine(x(c), area.top(), x(c), area.bottom());
    for (int c = 0; c < columns; ++c) {
        const QRect headerCell(x(c), y(0), x(c + 1) - x(c), y(1) - y(0));
        p.setPen(Qt::black);
        p.drawText(headerCell, Qt::AlignCenter, header.at(c));
        for (int r = 0; r < rows.size(); ++r) {
            const QRect cell(x(c), y(r + 1), x(c + 1) - x(c), y(r + 2) - y(r + 1));
            QString text = rows.at(r).value(c);
            const QColor ink = gray.value(r) ? QColor(Qt::lightGray) : QColor(Qt::black);
            QRect textArea = cell.adjusted(6, 0, -4, 0);
            if (text.startsWith("[x]") || text.startsWith("[ ]")) {
                const QRectF box(cell.left() + 6, cell.center().y() - 5.5, 11, 11);
                p.setPen(QColor(120, 120, 130));
                p.setBrush(Qt::white);
                p.drawRect(box);
                if (text.startsWith("[x]")) {
                    p.setPen(QPen(QColor(30, 30, 30), 1.8, Qt::SolidLine, Qt::RoundCap));
                    p.drawLine(QPointF(box.left() + 2.5, box.center().y()),
                        QPointF(box.left() + 4.5, box.bottom() - 2.5));
                    p.drawLine(QPointF(box.left() + 4.5, box.bottom() - 2.5),
                        QPointF(box.right() - 2, box.top() + 2.5));
                }
                p.setBrush(Qt::NoBrush);
                text = text.mid(3);
                textArea.setLeft(int(box.right()) + 5);
            }
            p.setPen(ink);
            p.drawText(textArea, Qt::AlignVCenter | Qt::AlignLeft, text);
        }
    }
}

void bodyTable(QPainter &p)
{
    table(p, QRect(0, 0, 460, 120), { "ID", "Name", "rx", "ry", "rz" },
        { { "1", "Pointer", "[ ]0.00", "[x]12.50", "[ ]0.00" },
            { "2", "Glasses", "[x]-5.00", "[ ]0.00", "[x]3.25" },
            { "3", "", "0.0", "0.0", "0.0" } },
        { false, false, true });
}

void dataDisplay(QPainter &p)
{
    table(p, QRect(0, 0, 460, 90),
        { "Body", "x [mm]", "y [mm]", "z [mm]", "rx [deg]", "ry [deg]", "rz [deg]" },
        { { "1", "102.31", "-45.08", "1210.77", "3.17", "12.50", "-41.60" },
            { "2", "-310.62", "12.94", "998.40", "-5.00", "-17.82", "3.25" } },
        {});
}

bool save(const QDir &dir, const QString &name, int width, int height,
    const std::function<void(QPainter &)> &draw)
{
    QImage image = canvas(width, height);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    painter.end();
    const QString path = dir.filePath(name);
    if (!image.save(path, "PNG")) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    const QDir dir(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("."));
    bool ok = true;
    ok &= save(dir, "green.png", IconSize, IconSize,
        [](QPainter &p) { statusLight(p, QColor(40, 170, 60)); });
    ok &= save(dir, "red.png", IconSize, IconSize,
        [](QPainter &p) { statusLight(p, QColor(210, 40, 40)); });
    ok &= save(dir, "lock.png", IconSize, IconSize, lock);
    ok &= save(dir, "48.png", IconSize, IconSize, reset);
    ok &= save(dir, "118.png", IconSize, IconSize, deletion);
    ok &= save(dir, "19.png", IconSize, IconSize, [](QPainter &p) { arrow(p, true); });
    ok &= save(dir, "24.png", IconSize, IconSize, [](QPainter &p) { arrow(p, false); });
    ok &= save(dir, "bodytable.png", 460, 120, bodyTable);
    ok &= save(dir, "datadisplay.png", 460, 90, dataDisplay);
    return ok ? 0 : 1;
}
