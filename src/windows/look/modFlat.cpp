#include "windows/look/modFlat.h"

#include "windows/look/modTone.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

namespace {

constexpr double corner = 4;
constexpr double softEdge = 0.3;  // shares of the text over the ground
constexpr double fieldEdge = 0.5; // 3 : 1 against the ground on both sides, so that fields are found
constexpr double metEdge = 0.7;   // of fields under the pointer
constexpr double quietEdge = 0.14;
constexpr double underPointer = 0.07;
constexpr double pressed = 0.14;

// Everything drawn within has smooth edges and leaves the painter as it was.
class cSmooth final
{
public:
    explicit cSmooth(QPainter& painter) : m_painter(painter)
    {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
    }
    ~cSmooth() { m_painter.restore(); }
    Q_DISABLE_COPY_MOVE(cSmooth)

private:
    QPainter& m_painter;
};

bool Is(const QStyleOption& option, QStyle::StateFlag flag)
{
    return option.state.testFlag(flag);
}

bool IsDown(const QStyleOption& option)
{
    return Is(option, QStyle::State_Sunken) || Is(option, QStyle::State_On);
}

bool IsUnderPointer(const QStyleOption& option)
{
    return Is(option, QStyle::State_Enabled) && Is(option, QStyle::State_MouseOver);
}

QColor Ink(const QStyleOption& option, double share)
{
    QColor ink = option.palette.color(QPalette::Text);
    ink.setAlphaF(static_cast<float>(share));
    return ink;
}

QColor Accent(const QStyleOption& option)
{
    return option.palette.color(QPalette::Highlight);
}

// The accent as a line, which has to stand out from the ground beside it.
QColor AccentEdge(const QStyleOption& option)
{
    return modTone::IsDark(option.palette) ? Accent(option).lighter(160) : Accent(option);
}

QColor FieldInk(const QStyleOption& option)
{
    return Ink(option, IsUnderPointer(option) ? metEdge : fieldEdge);
}

QColor EdgeOf(const QStyleOption& option)
{
    return Ink(option, !Is(option, QStyle::State_Enabled) ? quietEdge : IsUnderPointer(option) ? fieldEdge : softEdge);
}

QRectF Within(const QRect& place, double margin = 0.5)
{
    return QRectF(place).adjusted(margin, margin, -margin, -margin);
}

void Rounded(QPainter& painter, const QRect& place, const QPen& edge, const QBrush& fill)
{
    const cSmooth smooth(painter);
    painter.setPen(edge);
    painter.setBrush(fill);
    painter.drawRoundedRect(Within(place), corner, corner);
}

QPen FieldPen(const QStyleOption& option, bool isFocusShown = true)
{
    if (!Is(option, QStyle::State_Enabled)) {
        return Ink(option, quietEdge);
    }
    return isFocusShown && Is(option, QStyle::State_HasFocus) ? AccentEdge(option) : FieldInk(option);
}

QColor ButtonFill(const QStyleOption& option, bool isDefault)
{
    QColor fill = option.palette.color(isDefault ? QPalette::Highlight : QPalette::Button);
    if (IsDown(option)) {
        return modTone::IsDark(option.palette) ? fill.lighter(130) : fill.darker(isDefault ? 120 : 112);
    }
    return IsUnderPointer(option) ? fill.lighter(isDefault ? 115 : 104) : fill;
}

// Ground and edge of what can be ticked; filled with the accent while it is.
void TickGround(QPainter& painter, const QStyleOption& option, double radius)
{
    const bool isTicked = Is(option, QStyle::State_On) || Is(option, QStyle::State_NoChange);
    const bool isUsable = Is(option, QStyle::State_Enabled);
    const QColor mark = isUsable ? Accent(option) : Ink(option, fieldEdge);
    const QColor edge = isUsable ? FieldInk(option) : Ink(option, softEdge);
    const bool isOnAccent = Is(option, QStyle::State_Selected); // in a chosen line of a list
    painter.setPen(isOnAccent ? option.palette.color(QPalette::HighlightedText) : isTicked ? mark : edge);
    painter.setBrush(isTicked ? mark : option.palette.color(QPalette::Base));
    painter.drawRoundedRect(Within(option.rect), radius, radius);
}

} // namespace

void modFlat::Field(QPainter& painter, const QStyleOption& option)
{
    const auto ground = Is(option, QStyle::State_Enabled) ? QPalette::Base : QPalette::Window;
    Rounded(painter, option.rect, FieldPen(option), option.palette.color(ground));
}

void modFlat::FieldEdge(QPainter& painter, const QStyleOption& option)
{
    Rounded(painter, option.rect, FieldPen(option), Qt::NoBrush);
}

void modFlat::Button(QPainter& painter, const QStyleOption& option, bool isDefault)
{
    const QColor fill = ButtonFill(option, isDefault);
    const bool isFocused = Is(option, QStyle::State_HasFocus) && Is(option, QStyle::State_KeyboardFocusChange);
    Rounded(painter, option.rect, isFocused ? AccentEdge(option) : isDefault ? fill : EdgeOf(option), fill);
    if (isFocused && isDefault) { // the accent cannot be seen on itself
        Rounded(painter, option.rect.adjusted(2, 2, -2, -2), option.palette.color(QPalette::HighlightedText),
                Qt::NoBrush);
    }
}

void modFlat::Choice(QPainter& painter, const QStyleOption& option)
{
    const bool isByKeys = Is(option, QStyle::State_KeyboardFocusChange);
    Rounded(painter, option.rect, FieldPen(option, isByKeys), ButtonFill(option, false));
}

void modFlat::ToolButton(QPainter& painter, const QStyleOption& option)
{
    const bool isFrame = !Is(option, QStyle::State_AutoRaise);
    QColor fill = Qt::transparent;
    if (IsDown(option)) {
        fill = Is(option, QStyle::State_On) ? Accent(option) : Ink(option, pressed);
        fill.setAlphaF(Is(option, QStyle::State_On) ? 0.2F : fill.alphaF());
    } else if (IsUnderPointer(option)) {
        fill = Ink(option, underPointer);
    }
    Rounded(painter, option.rect, isFrame ? QPen(EdgeOf(option)) : QPen(Qt::NoPen), fill);
}

void modFlat::Shade(QPainter& painter, const QStyleOption& option, const QRect& place, double share)
{
    Rounded(painter, place, Qt::NoPen, Ink(option, share));
}

void modFlat::Focus(QPainter& painter, const QStyleOption& option)
{
    const bool isOnAccent = Is(option, QStyle::State_Selected); // where the accent itself could not be seen
    QColor edge = isOnAccent ? option.palette.color(QPalette::HighlightedText) : AccentEdge(option);
    QColor fill = edge;
    fill.setAlphaF(0.12F);
    if (isOnAccent) {
        edge.setAlphaF(0.5F); // the row stands out by its colour already
    }
    Rounded(painter, option.rect, edge, fill);
}

void modFlat::Frame(QPainter& painter, const QStyleOption& option)
{
    painter.save();
    painter.setPen(Ink(option, softEdge));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

void modFlat::GroupFrame(QPainter& painter, const QStyleOption& option)
{
    const int title = option.fontMetrics.height() + 3; // about what the plain style leaves it
    Rounded(painter, option.rect.adjusted(0, title, 0, 0), Ink(option, softEdge), Qt::NoBrush);
}

void modFlat::CheckBox(QPainter& painter, const QStyleOption& option)
{
    const cSmooth smooth(painter);
    TickGround(painter, option, corner - 1);
    const QRectF box(option.rect);
    const auto at = [&box](double x, double y) { return box.topLeft() + QPointF(x * box.width(), y * box.height()); };
    painter.setPen(QPen(option.palette.color(QPalette::HighlightedText), box.width() * 0.13, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    if (Is(option, QStyle::State_NoChange)) {
        painter.drawLine(at(0.28, 0.5), at(0.72, 0.5));
    } else if (Is(option, QStyle::State_On)) {
        const QPointF tick[] = {at(0.24, 0.53), at(0.43, 0.71), at(0.77, 0.32)};
        painter.drawPolyline(tick, 3);
    }
}

void modFlat::RadioButton(QPainter& painter, const QStyleOption& option)
{
    const cSmooth smooth(painter);
    TickGround(painter, option, option.rect.width() / 2.0);
    if (Is(option, QStyle::State_On)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(option.palette.color(QPalette::HighlightedText));
        const double dot = option.rect.width() / 5.0;
        painter.drawEllipse(QRectF(option.rect).center(), dot, dot);
    }
}

void modFlat::Arrow(QPainter& painter, const QStyleOption& option, const QRect& place, Qt::ArrowType direction)
{
    const double wide = std::min({option.fontMetrics.xHeight() * 1.1, place.width() * 0.8, place.height() * 0.8}) / 2;
    const double high = wide / 2;
    const cSmooth smooth(painter);
    painter.translate(QRectF(place).center());
    switch (direction) {
    case Qt::UpArrow: painter.rotate(180); break;
    case Qt::LeftArrow: painter.rotate(90); break;
    case Qt::RightArrow: painter.rotate(-90); break;
    default: break;
    }
    const bool isOnAccent = Is(option, QStyle::State_Selected);
    QColor ink = option.palette.color(isOnAccent ? QPalette::HighlightedText : QPalette::ButtonText);
    ink.setAlphaF(Is(option, QStyle::State_Enabled) ? 0.75F : 0.35F);
    painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    const QPointF line[] = {{-wide, -high}, {0, high}, {wide, -high}};
    painter.drawPolyline(line, 3);
}

void modFlat::HeaderGround(QPainter& painter, const QStyleOption& option, bool isHorizontal)
{
    const QRect& place = option.rect;
    painter.fillRect(place, option.palette.color(QPalette::AlternateBase));
    if (IsDown(option) || IsUnderPointer(option)) {
        painter.fillRect(place, Ink(option, IsDown(option) ? pressed : underPointer));
    }
    const QColor edge = Ink(option, softEdge);
    if (isHorizontal) {
        painter.fillRect(place.left(), place.bottom(), place.width(), 1, edge);
        painter.fillRect(place.right(), place.top() + 4, 1, std::max(0, place.height() - 8), Ink(option, quietEdge));
    } else {
        painter.fillRect(place.right(), place.top(), 1, place.height(), edge);
        painter.fillRect(place.left(), place.bottom(), place.width(), 1, Ink(option, quietEdge));
    }
}

void modFlat::Tab(QPainter& painter, const QStyleOption& option)
{
    constexpr int lineHeight = 3;
    const QRect& place = option.rect;
    if (Is(option, QStyle::State_Selected)) {
        painter.fillRect(place.left() + 4, place.bottom() + 1 - lineHeight, place.width() - 8, lineHeight,
                         AccentEdge(option));
    } else if (IsUnderPointer(option)) {
        Shade(painter, option, place.adjusted(2, 3, -2, -4), underPointer);
    }
}

void modFlat::BottomLine(QPainter& painter, const QStyleOption& option)
{
    const QRect& place = option.rect;
    painter.fillRect(place.left(), place.bottom(), place.width(), 1, Ink(option, softEdge));
}

void modFlat::MiddleLine(QPainter& painter, const QStyleOption& option)
{
    const QRect& place = option.rect;
    painter.fillRect(place.left() + 6, place.center().y(), place.width() - 12, 1, Ink(option, softEdge));
}

void modFlat::Groove(QPainter& painter, const QStyleOption& option, const QRect& place, double share)
{
    const cSmooth smooth(painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Ink(option, share));
    const double radius = std::min(place.width(), place.height()) / 2.0;
    painter.drawRoundedRect(place, radius, radius);
}

void modFlat::Filled(QPainter& painter, const QStyleOption& option, const QRect& place)
{
    const cSmooth smooth(painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Accent(option));
    const double radius = std::min(place.width(), place.height()) / 2.0;
    painter.drawRoundedRect(place, radius, radius);
}
