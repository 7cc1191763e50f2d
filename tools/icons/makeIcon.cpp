// Paints an SVG as a square PNG, for desktops that do not read SVG: makeIcon PICTURE.svg SIZE PICTURE.png
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QStringList>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    const int size = arguments.value(2).toInt();
    QSvgRenderer picture(arguments.value(1));
    if (!picture.isValid() || size <= 0) {
        std::fputs("makeIcon: no picture or no size\n", stderr);
        return 1;
    }
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        picture.render(&painter);
    }
    return image.save(arguments.value(3), "PNG") ? 0 : 1;
}
