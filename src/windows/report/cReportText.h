#pragma once

#include "windows/report/cReportPiece.h"

#include <QList>
#include <QString>

#include <vector>

// The words of a laid out report in reading order: as one text, and where each of it stands. Positions count the
// characters of the text.
class cReportText
{
public:
    cReportText() = default;
    explicit cReportText(const std::vector<cReportPiece>& pieces);

    // Lines end with a line feed; texts that stand apart in a line are separated by a tabulator.
    [[nodiscard]] const QString& Text() const { return m_text; }

    // The position nearest to a point of the page.
    [[nodiscard]] int PositionAt(QPoint point) const;

    // What the characters from `start` up to `end` cover, one area for each line.
    [[nodiscard]] QList<QRect> Places(int start, int end) const;

    // The position of the word that stands at a point; -1 when there is none.
    [[nodiscard]] int WordAt(QPoint point) const;

private:
    struct cWord
    {
        QRect Place;
        QString Text;
        QFont Font;
        int Start = 0; // position of its first character
        int Line = 0;
    };
    struct cLine
    {
        int Top = 0;
        int Bottom = 0;
        std::size_t First = 0; // word
        std::size_t Count = 0;
    };

    void SortIntoLines();
    void BuildText();
    [[nodiscard]] static int XOf(const cWord& word, int position);

    std::vector<cWord> m_words;
    std::vector<cLine> m_lines;
    QString m_text;
};
