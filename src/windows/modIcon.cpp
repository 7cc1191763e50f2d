#include "windows/modIcon.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

// A static library registers its resources only when somebody asks; the macro has to stand outside any namespace.
static void LoadResources()
{
    Q_INIT_RESOURCE(icons);
}

using namespace Qt::Literals::StringLiterals;

namespace {

QPixmap Draw(QByteArray svg, const QColor& color, int size)
{
    svg.replace("currentColor", color.name().toLatin1());
    QSvgRenderer renderer(svg);
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}

QByteArray Read(const QString& name)
{
    LoadResources();
    QFile file(u":/icons/%1.svg"_s.arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

QIcon modIcon::Get(const QString& name, const QPalette& palette)
{
    const QByteArray svg = name.isEmpty() ? QByteArray() : Read(name);
    QIcon icon;
    if (svg.isEmpty()) {
        return icon;
    }
    for (const int size : {16, 24, 32, 48}) {
        icon.addPixmap(Draw(svg, palette.color(QPalette::WindowText), size), QIcon::Normal);
        icon.addPixmap(Draw(svg, palette.color(QPalette::Disabled, QPalette::WindowText), size), QIcon::Disabled);
    }
    return icon;
}

QIcon modIcon::Program()
{
    QIcon icon;
    const QByteArray svg = Read(u"kontorelle"_s);
    for (const int size : {16, 32, 48, 128}) {
        icon.addPixmap(Draw(svg, Qt::black, size));
    }
    return icon;
}
