#include "windows/overview/cCardLine.h"

#include "windows/look/modLook.h"
#include "windows/look/modTone.h"

#include <QCursor>
#include <QEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int margin = cCardLine::Margin;
constexpr int gap = 12; // between text and figure
constexpr int barHeight = 6;
constexpr int leastTextLetters = 16; // beside a figure

} // namespace

cCardLine::cCardLine(const cOverviewLine& line, const QList<cOverviewLine>& card, QWidget* parent)
    : QAbstractButton(parent),
      m_line(line),
      m_alike(line.Percent ? card : QList<cOverviewLine>{line})
{
    m_alike.removeIf(
        [&line](const cOverviewLine& other) { return other.Percent.has_value() != line.Percent.has_value(); });
    const bool isLink = m_line.Follow != nullptr;
    setFocusPolicy(isLink ? Qt::StrongFocus : Qt::NoFocus);
    setCursor(isLink ? Qt::PointingHandCursor : Qt::ArrowCursor);
    setAttribute(Qt::WA_Hover, isLink);
    QString told = m_line.Figure.isEmpty() ? m_line.Text : m_line.Text + u": "_s + m_line.Figure;
    if (m_line.Percent) {
        told += u", %1 %"_s.arg(*m_line.Percent);
    }
    setAccessibleName(told);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred); // a fixed one is cut at the height of the hint
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    if (isLink) {
        connect(this, &QAbstractButton::clicked, this, [this] {
            const auto follow = m_line.Follow; // the line may be gone before it is done
            follow();
        });
    }
}

// What stands before two blanks, a day, is a column of its own: further lines of the text begin where its first one
// does.
int cCardLine::LeadLetters() const
{
    const qsizetype at = m_line.Text.indexOf(u"  "_s);
    return at < 0 ? 0 : static_cast<int>(at) + 2;
}

// Layouts ask for the height of a line dozens of times while a page comes to be, and to measure a text takes longer
// than anything else about it.
const cCardLine::cWidths& cCardLine::Widths() const
{
    if (!m_widths) {
        const QFontMetrics metrics = fontMetrics();
        int beside = 0;
        for (const cOverviewLine& line : m_alike) {
            beside = std::max(beside, WidthBeside(line));
        }
        m_widths = cWidths{metrics.horizontalAdvance(m_line.Figure),
                           metrics.horizontalAdvance(m_line.Text.left(LeadLetters())), beside};
        m_heights.clear();
    }
    return *m_widths;
}

// Above a bar there is always room for a line more, so the text beside a figure is not wrapped there.
int cCardLine::WidthBeside(const cOverviewLine& line) const
{
    const QFontMetrics metrics = fontMetrics();
    const int whole = metrics.horizontalAdvance(line.Text);
    const int text = line.Percent ? whole : std::min(whole, metrics.averageCharWidth() * leastTextLetters);
    return LookWidth(line) + text + gap + metrics.horizontalAdvance(line.Figure);
}

void cCardLine::changeEvent(QEvent* event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_widths.reset();
    }
}

int cCardLine::LookWidth(const cOverviewLine& line) const
{
    return line.Look.isValid() ? fontMetrics().height() + margin : 0;
}

bool cCardLine::IsStacked(int width) const
{
    return Widths().Figure > 0 && width - 2 * margin < Widths().Beside;
}

int cCardLine::TextHeight(int width) const
{
    const bool isBeside = Widths().Figure > 0 && !IsStacked(width);
    const int room =
        std::max(width - 2 * margin - LookWidth(m_line) - Widths().Lead - (isBeside ? Widths().Figure + gap : 0), 1);
    const auto known = m_heights.constFind(room);
    if (known != m_heights.constEnd()) {
        return *known;
    }
    const QRect area(0, 0, room, 10000);
    const int height = fontMetrics().boundingRect(area, Qt::TextWordWrap, m_line.Text.mid(LeadLetters())).height();
    m_heights.insert(room, height);
    return height;
}

int cCardLine::heightForWidth(int width) const
{
    return TextHeight(width) + (IsStacked(width) ? fontMetrics().lineSpacing() : 0)
        + (m_line.Percent ? barHeight + margin : 0) + 2 * margin;
}

QSize cCardLine::sizeHint() const
{
    const int width = fontMetrics().averageCharWidth() * 40;
    return {width, heightForWidth(width)};
}

QSize cCardLine::minimumSizeHint() const
{
    const int width = std::max(fontMetrics().averageCharWidth() * leastTextLetters, Widths().Figure + 2 * margin);
    return {width, fontMetrics().height() + 2 * margin};
}

QColor cCardLine::Colour() const
{
    switch (m_line.Tone) {
    case eOverviewTone::Income: return modTone::Income(palette());
    case eOverviewTone::Expense: return modTone::Expense(palette());
    case eOverviewTone::Warning: return modTone::Warning(palette());
    case eOverviewTone::Quiet: return modTone::Quiet(palette());
    case eOverviewTone::Plain: break;
    }
    return palette().color(QPalette::Text);
}

void cCardLine::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // A line that was laid out under the pointer and moved on is told nothing of it.
    const bool isTouched = underMouse() && rect().contains(mapFromGlobal(QCursor::pos()));
    if (m_line.Follow && (isTouched || isDown())) {
        QColor shade = palette().color(QPalette::Highlight);
        shade.setAlphaF(isDown() ? 0.25F : 0.12F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(shade);
        painter.drawRoundedRect(rect(), 4, 4);
    }
    const bool isStacked = IsStacked(width());
    const int textHeight = TextHeight(width());
    const QRect inner = rect().adjusted(margin, margin, -margin, -margin);
    const bool tintsText = m_line.Tone == eOverviewTone::Warning || m_line.Tone == eOverviewTone::Quiet;
    QRect text(inner.topLeft(), QSize(inner.width(), textHeight));
    if (!isStacked && Widths().Figure > 0) {
        text.setWidth(inner.width() - Widths().Figure - gap);
    }
    if (LookWidth(m_line) > 0) {
        const int side = fontMetrics().height();
        modLook::Icon(m_line.Look.value<cCategoryLook>()).paint(&painter, text.left(), text.top(), side, side);
        text.setLeft(text.left() + LookWidth(m_line));
    }
    painter.setPen(tintsText ? Colour() : palette().color(QPalette::Text));
    painter.drawText(text, Qt::AlignTop, m_line.Text.left(LeadLetters()));
    painter.drawText(text.adjusted(Widths().Lead, 0, 0, 0), Qt::TextWordWrap | Qt::AlignTop,
                     m_line.Text.mid(LeadLetters()));
    QRect figure(inner.left(), inner.top() + (isStacked ? textHeight : 0), inner.width(), fontMetrics().lineSpacing());
    painter.setPen(Colour());
    painter.drawText(figure, Qt::AlignRight | Qt::AlignVCenter, m_line.Figure);
    if (m_line.Percent) {
        const QRectF bar(inner.left(), inner.bottom() + 1 - barHeight, inner.width(), barHeight);
        QColor ground = palette().color(QPalette::Text);
        ground.setAlphaF(0.15F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawRoundedRect(bar, barHeight / 2.0, barHeight / 2.0);
        const double share = std::clamp(*m_line.Percent, 0, 100) / 100.0;
        painter.setBrush(m_line.Tone == eOverviewTone::Warning ? Colour() : palette().color(QPalette::Highlight));
        painter.drawRoundedRect(QRectF(bar.topLeft(), QSizeF(bar.width() * share, barHeight)), barHeight / 2.0,
                                barHeight / 2.0);
    }
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.backgroundColor = palette().color(QPalette::Base);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}
