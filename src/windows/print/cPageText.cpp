#include "windows/print/cPageText.h"

#include "base/cText.h"
#include "base/modDate.h"

#include <QPaintDevice>
#include <QTextLayout>

namespace {

QFont Made(QPaintDevice& device, qreal points, QFont::Weight weight)
{
    QFont font; // the program's
    font.setPointSizeF(points);
    font.setWeight(weight);
    font.setItalic(false);
    font.setHintingPreference(QFont::PreferNoHinting); // the same breaks on every device
    return QFont(font, &device);
}

} // namespace

cPageText::cPageText(QPaintDevice& device, qreal points)
    : m_text(Made(device, points, QFont::Normal)),
      m_bold(Made(device, points, QFont::Bold)),
      m_title(Made(device, points * 1.6, QFont::Bold)),
      m_metrics(m_text, &device),
      m_boldMetrics(m_bold, &device),
      m_pixelsPerPoint(device.logicalDpiY() / 72.0),
      m_lineHeight(m_metrics.lineSpacing()),
      m_titleHeight(QFontMetricsF(m_title, &device).lineSpacing())
{
}

QStringList cPageText::Wrap(const QString& text, qreal width) const
{
    if (Width(text) <= width) {
        return {text};
    }
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(text, m_text);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (lines.size() + 1 == MostLines) {
            lines.append(m_metrics.elidedText(text.mid(line.textStart()), Qt::ElideRight, width));
            break;
        }
        lines.append(text.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

QString cPageText::Foot(QDate today)
{
    return cText::Tr("Kontorelle, {0}", {modDate::ToText(today)});
}

QString cPageText::BoldElided(const QString& text, qreal width) const
{
    return m_boldMetrics.elidedText(text, Qt::ElideRight, width);
}
