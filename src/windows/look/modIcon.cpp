#include "windows/look/modIcon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

// A static library registers its resources only when somebody asks; the macro has to stand outside any namespace.
static void LoadResources()
{
    Q_INIT_RESOURCE(icons);
}

using namespace Qt::Literals::StringLiterals;

namespace {

// Draws one SVG file at any size; "currentColor" in it becomes the text colour.
class cSvgIconEngine final : public QIconEngine
{
public:
    explicit cSvgIconEngine(const QByteArray& svg) : m_svg(svg) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
        QByteArray svg = m_svg;
        svg.replace("currentColor", QGuiApplication::palette().color(group, role).name().toLatin1());
        QSvgRenderer renderer(svg);
        renderer.render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new cSvgIconEngine(m_svg); }

private:
    QByteArray m_svg;
};

} // namespace

QIcon modIcon::Get(const QString& name)
{
    LoadResources();
    QFile file(u":/icons/%1.svg"_s.arg(name));
    const bool isKnown = !name.isEmpty() && file.open(QIODevice::ReadOnly);
    return isKnown ? QIcon(new cSvgIconEngine(file.readAll())) : QIcon();
}

QIcon modIcon::Program()
{
    return Get(u"kontorelle"_s);
}
