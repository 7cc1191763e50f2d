#pragma once

#include <QDate>
#include <QFont>
#include <QFontMetricsF>
#include <QString>
#include <QStringList>

class QPaintDevice;
class QPainter;

// Fonts of a printed page and what fits where, in pixels of the device.
class cPageText
{
public:
    // `points` is the size of the text; titles and feet follow from it.
    cPageText(QPaintDevice& device, qreal points);

    // At the left of every page's end.
    [[nodiscard]] static QString Foot(QDate today);

    [[nodiscard]] const QFont& Text() const { return m_text; }
    [[nodiscard]] const QFont& Bold() const { return m_bold; }
    [[nodiscard]] const QFont& Title() const { return m_title; }

    [[nodiscard]] qreal Points(qreal points) const { return points * m_pixelsPerPoint; }
    [[nodiscard]] qreal LineHeight() const { return m_lineHeight; }
    [[nodiscard]] qreal TitleHeight() const { return m_titleHeight; }
    [[nodiscard]] qreal Width(const QString& text) const { return m_metrics.horizontalAdvance(text); }
    [[nodiscard]] qreal BoldWidth(const QString& text) const { return m_boldMetrics.horizontalAdvance(text); }

    // The text in lines that fit; what does not fit into the last one ends in "…".
    [[nodiscard]] QStringList Wrap(const QString& text, qreal width) const;
    [[nodiscard]] QString BoldElided(const QString& text, qreal width) const;
    static constexpr qsizetype MostLines = 3;

private:
    QFont m_text;
    QFont m_bold;
    QFont m_title;
    QFontMetricsF m_metrics;
    QFontMetricsF m_boldMetrics;
    qreal m_pixelsPerPoint;
    qreal m_lineHeight;
    qreal m_titleHeight;
};
