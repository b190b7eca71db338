// Renders one SVG drawing to a PNG (or ICO) picture of the given size.
// Used by the build: bildigilo drawing.svg picture.png width height

#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QSvgRenderer>
#include <QDir>
#include <QFileInfo>
#include <cstdio>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc != 5) {
        std::fprintf(stderr, "usage: bildigilo drawing.svg picture.png width height\n");
        return 2;
    }
    const QString svg = QString::fromLocal8Bit(argv[1]);
    const QString eligo = QString::fromLocal8Bit(argv[2]);
    const int largho = QByteArray(argv[3]).toInt();
    const int alto = QByteArray(argv[4]).toInt();

    QSvgRenderer desegno(svg);
    if (!desegno.isValid() || largho <= 0 || alto <= 0) {
        std::fprintf(stderr, "bildigilo: cannot render %s\n", argv[1]);
        return 1;
    }
    QImage bildo(largho, alto, QImage::Format_ARGB32_Premultiplied);
    bildo.fill(Qt::transparent);
    QPainter farbisto(&bildo);
    farbisto.setRenderHint(QPainter::Antialiasing);
    farbisto.setRenderHint(QPainter::SmoothPixmapTransform);
    desegno.render(&farbisto);
    farbisto.end();

    QDir().mkpath(QFileInfo(eligo).absolutePath());
    QImageWriter skribilo(eligo);
    if (!skribilo.write(bildo)) {
        std::fprintf(stderr, "bildigilo: cannot write %s: %s\n", argv[2],
                     qPrintable(skribilo.errorString()));
        return 1;
    }
    return 0;
}
