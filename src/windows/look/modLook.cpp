#include "windows/look/modLook.h"

#include "views/look/modCategoryColor.h"
#include "views/look/modCategoryIcon.h"
#include "windows/look/modIcon.h"
#include "windows/look/modTone.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QModelIndex>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPixmapCache>
#include <QStyleOptionViewItem>
#include <QSvgRenderer>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

double Share(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour)
{
    return 0.2126 * Share(static_cast<double>(colour.redF())) + 0.7152 * Share(static_cast<double>(colour.greenF()))
        + 0.0722 * Share(static_cast<double>(colour.blueF()));
}

double Contrast(const QColor& a, const QColor& b)
{
    const double one = Luminance(a) + 0.05;
    const double other = Luminance(b) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

// Thin lines need more contrast than a dot or the slice of a pie.
QColor ForLines(QColor colour, const QPalette& palette)
{
    constexpr double enough = 3.0;
    constexpr int factor = 112; // percent, a small step
    for (int step = 0; step < 12 && Contrast(colour, palette.color(QPalette::Base)) < enough; ++step) {
        colour = modTone::IsDark(palette) ? colour.lighter(factor) : colour.darker(factor);
    }
    return colour;
}

// Draws a look at any size. Lists ask for the same few pictures again and again, so they are kept.
class cLookEngine final : public QIconEngine
{
public:
    explicit cLookEngine(const cCategoryLook& look) : m_look(look) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        if (m_look == cCategoryLook{}) {
            return;
        }
        const QString file = m_look.Icon.isEmpty() ? u"punkt"_s : m_look.Icon;
        const QColor colour = ColourFor(mode);
        const double ratio = painter->device()->devicePixelRatioF();
        const QSize size = rect.size() * ratio;
        const QString key = u"look %1 %2 %3x%4"_s.arg(file, colour.name()).arg(size.width()).arg(size.height());
        QPixmap picture;
        if (!QPixmapCache::find(key, &picture)) {
            picture = Draw(file, colour, size);
            QPixmapCache::insert(key, picture);
        }
        picture.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect, picture);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new cLookEngine(m_look); }

private:
    [[nodiscard]] QColor ColourFor(QIcon::Mode mode) const
    {
        const QPalette palette = QGuiApplication::palette();
        if (mode == QIcon::Selected) {
            return palette.color(QPalette::HighlightedText);
        }
        if (m_look.Color.isEmpty() || mode == QIcon::Disabled) {
            return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::Text);
        }
        const QColor colour = modLook::Colour(m_look.Color, palette);
        return m_look.Icon.isEmpty() ? colour : ForLines(colour, palette);
    }

    static QPixmap Draw(const QString& name, const QColor& colour, const QSize& size)
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        (void)modIcon::Get({}); // loads the files
        QFile file(u":/icons/"_s + modCategoryIcon::FilePart + name + u".svg"_s);
        if (file.open(QIODevice::ReadOnly)) {
            QSvgRenderer renderer(file.readAll().replace("currentColor", colour.name().toLatin1()));
            QPainter painter(&pixmap);
            renderer.render(&painter);
        }
        return pixmap;
    }

    cCategoryLook m_look;
};

} // namespace

QColor modLook::Colour(const QString& stored, const QPalette& palette)
{
    return QColor(modCategoryColor::Shown(stored, modTone::IsDark(palette)));
}

QIcon modLook::Icon(const cCategoryLook& look)
{
    return QIcon(new cLookEngine(look));
}

void modLook::Decorate(QStyleOptionViewItem& option, const QModelIndex& index)
{
    const QVariant look = index.data(cCategoryLooks::Role);
    if (!look.isValid()) {
        return;
    }
    const int side = option.fontMetrics.height();
    option.icon = Icon(look.value<cCategoryLook>());
    option.decorationSize = QSize(side, side);
    option.features |= QStyleOptionViewItem::HasDecoration;
}
