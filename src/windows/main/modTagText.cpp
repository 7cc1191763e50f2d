#include "windows/main/modTagText.h"

#include "model/modTag.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <QRect>

#include <algorithm>

namespace {

struct cPiece
{
    QString Text;
    QRect Rect;
    bool IsTag = false;
};

int Margin(const QFontMetrics& metrics)
{
    return std::max(2, metrics.averageCharWidth() / 2);
}

// Lays pieces one after the other; what does not fit is cut, and nothing follows it.
class cLine
{
public:
    cLine(const QRect& rect, const QFontMetrics& metrics) : m_rect(rect), m_metrics(metrics), m_left(rect.left()) {}

    void Add(const QString& text, bool isTag)
    {
        const int margin = isTag ? Margin(m_metrics) : 0;
        const int room = m_rect.right() + 1 - m_left;
        if (text.isEmpty() || m_isFull) {
            return;
        }
        const QString shown = m_metrics.elidedText(text, Qt::ElideRight, room - 2 * margin);
        m_isFull = shown != text;
        if (m_isFull && shown.size() < 2) {
            return; // a label without letters says nothing
        }
        const int width = m_metrics.horizontalAdvance(shown) + 2 * margin;
        m_pieces.append({shown, QRect(m_left, m_rect.top(), width, m_rect.height()), isTag});
        m_left += width;
    }

    [[nodiscard]] const QList<cPiece>& Pieces() const { return m_pieces; }

private:
    QRect m_rect;
    const QFontMetrics& m_metrics;
    int m_left;
    bool m_isFull = false;
    QList<cPiece> m_pieces;
};

QList<cPiece> Pieces(const QRect& rect, const QString& text, const QFontMetrics& metrics)
{
    cLine line(rect, metrics);
    qsizetype at = 0;
    const QList<modTag::cPlace> places = modTag::Places(text);
    for (const modTag::cPlace& place : places) {
        line.Add(text.sliced(at, place.Start - at), false);
        line.Add(text.sliced(place.Start, place.Length), true);
        at = place.Start + place.Length;
    }
    line.Add(text.sliced(at), false);
    return line.Pieces();
}

QRect LabelOf(const cPiece& piece, const QFontMetrics& metrics)
{
    const int height = std::min(piece.Rect.height(), metrics.height() + 2);
    QRect label(piece.Rect.left(), 0, piece.Rect.width(), height);
    label.moveCenter(piece.Rect.center());
    return label;
}

} // namespace

bool modTagText::HasTags(const QString& text)
{
    return text.contains(u'#') && !modTag::Places(text).isEmpty();
}

void modTagText::Paint(QPainter& painter, const QRect& rect, const QString& text, const QPalette& palette, eLook look)
{
    const QFontMetrics metrics = painter.fontMetrics();
    const bool isSelected = look == eLook::Selected;
    const QColor ink = palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    QColor fill = isSelected ? ink : palette.color(QPalette::Highlight);
    fill.setAlphaF(isSelected ? 0.22F : 0.20F);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QList<cPiece> pieces = Pieces(rect, text, metrics);
    for (const cPiece& piece : pieces) {
        if (piece.IsTag) {
            const QRectF label(LabelOf(piece, metrics));
            painter.setPen(Qt::NoPen);
            painter.setBrush(fill);
            painter.drawRoundedRect(label, label.height() / 3, label.height() / 3);
        }
        painter.setPen(ink);
        const int margin = piece.IsTag ? Margin(metrics) : 0;
        painter.drawText(piece.Rect.adjusted(margin, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, piece.Text);
    }
    painter.restore();
}

QString modTagText::TagAt(const QPoint& point, const QRect& rect, const QString& text, const QFont& font)
{
    const QFontMetrics metrics(font);
    const QStringList tags = [&] {
        QStringList found;
        const QList<modTag::cPlace> places = modTag::Places(text);
        for (const modTag::cPlace& place : places) {
            found.append(text.sliced(place.Start, place.Length));
        }
        return found;
    }();
    qsizetype number = 0;
    const QList<cPiece> pieces = Pieces(rect, text, metrics);
    for (const cPiece& piece : pieces) {
        if (piece.IsTag && LabelOf(piece, metrics).contains(point)) {
            return tags.at(number);
        }
        number += piece.IsTag ? 1 : 0;
    }
    return {};
}
