// make_icon OUTPUT.png
//
// Draws the 72x72 dialog icon of the demo bundle: a rounded tile with two
// waves. Shapes only, no text, so no fonts and no display are needed.
#include <cstdio>

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_icon OUTPUT.png\n");
        return 1;
    }
    QImage image(72, 72, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);

        QLinearGradient sky(0, 0, 0, 72);
        sky.setColorAt(0, QColor(0x3a, 0x8d, 0xde));
        sky.setColorAt(1, QColor(0x12, 0x4e, 0x8c));
        painter.setPen(Qt::NoPen);
        painter.setBrush(sky);
        painter.drawRoundedRect(QRectF(2, 2, 68, 68), 14, 14);

        painter.setBrush(QColor(0xff, 0xd2, 0x5a));
        painter.drawEllipse(QPointF(50, 22), 8, 8);

        painter.setBrush(Qt::NoBrush);
        for (int i = 0; i < 2; ++i) {
            const qreal y = 40 + 12 * i;
            QPainterPath wave(QPointF(10, y));
            wave.cubicTo(QPointF(22, y - 9), QPointF(28, y + 9), QPointF(36, y));
            wave.cubicTo(QPointF(44, y - 9), QPointF(50, y + 9), QPointF(62, y));
            painter.setPen(QPen(QColor(255, 255, 255, 230 - 60 * i), 4, Qt::SolidLine, Qt::RoundCap));
            painter.drawPath(wave);
        }
    }
    if (!image.save(QString::fromLocal8Bit(argv[1]), "PNG")) {
        std::fprintf(stderr, "make_icon: cannot write '%s'\n", argv[1]);
        return 2;
    }
    return 0;
}
