#include "import/table/modTableText.h"

#include <algorithm>

namespace {

// A quote that is not closed within so many characters was meant as a letter.
constexpr qsizetype longestQuoted = 4096;
// Characters that may be searched in vain for closing quotes. A file with more of them does not quote at all.
constexpr qsizetype mostVainSteps = 100'000'000;

class cSplitter
{
public:
    cSplitter(const QString& text, QChar separator, cTable& table)
        : m_text(text),
          m_separator(separator),
          m_table(table)
    {
    }

    void Run(int firstLine)
    {
        while (m_at < m_text.size() && !m_table.IsFull()) {
            m_table.AddRow(m_line + 1);
            m_column = 0;
            m_isOneLine = m_line < firstLine;
            m_current = m_isOneLine ? SeparatorHere() : m_separator;
            ReadRow();
        }
    }

private:
    [[nodiscard]] QChar At(qsizetype place) const { return place < m_text.size() ? m_text[place] : QChar(u'\n'); }

    [[nodiscard]] QChar SeparatorHere() const
    {
        const QStringView rest = QStringView(m_text).mid(m_at);
        const auto* const end =
            std::find_if(rest.begin(), rest.end(), [](QChar c) { return c == u'\n' || c == u'\r'; });
        return modTableText::SeparatorOf(rest.left(end - rest.begin()));
    }

    // True for what ends a field at this place.
    [[nodiscard]] bool IsEnd(qsizetype place) const
    {
        const QChar c = At(place);
        return c == m_current || c == u'\n' || c == u'\r';
    }

    [[nodiscard]] qsizetype PastBlanks(qsizetype place) const
    {
        while (At(place) == u' ') {
            ++place;
        }
        return place;
    }

    void ReadRow()
    {
        do {
            ReadField();
        } while (m_at < m_text.size() && m_text[m_at++] == m_current);
        // The loop has stepped over what ended the last field.
        if (m_at > 0 && m_at < m_text.size() && m_text[m_at - 1] == u'\r' && m_text[m_at] == u'\n') {
            ++m_at;
        }
        ++m_line;
    }

    void ReadField()
    {
        const qsizetype start = PastBlanks(m_at);
        ++m_column;
        if (At(start) == u'"' && start < m_text.size() && m_vainSteps < mostVainSteps && ReadQuoted(start + 1)) {
            return;
        }
        const QStringView rest = QStringView(m_text).sliced(m_at);
        const auto* const end = std::find_if(rest.begin(), rest.end(), [separator = m_current](QChar c) {
            return c == separator || c == u'\n' || c == u'\r';
        });
        AddSlice(m_at, end - rest.begin());
        m_at += end - rest.begin();
    }

    // False, and nothing taken, when the quote is never closed.
    bool ReadQuoted(qsizetype start)
    {
        bool hasDoubled = false;
        int lineBreaks = 0;
        const qsizetype limit = qMin(m_text.size(), start + longestQuoted);
        for (qsizetype place = start; place < limit; ++place) {
            const QChar c = m_text[place];
            if (c == u'\n') {
                if (m_isOneLine) {
                    return false;
                }
                ++lineBreaks;
            } else if (c == u'"') {
                if (place + 1 < m_text.size() && m_text[place + 1] == u'"') {
                    hasDoubled = true;
                    ++place;
                    continue;
                }
                const qsizetype next = PastBlanks(place + 1);
                if (IsEnd(next)) {
                    Take(start, place - start, hasDoubled);
                    m_line += lineBreaks;
                    m_at = next;
                    return true;
                }
                m_vainSteps += next - place;
            }
        }
        m_vainSteps += limit - start;
        return false;
    }

    // The cells at the end of an endless row are dropped.
    void AddSlice(qsizetype start, qsizetype size)
    {
        if (m_column <= cTable::mostColumns) {
            m_table.AddSlice(start, size);
        }
    }

    void Take(qsizetype start, qsizetype size, bool hasDoubled)
    {
        if (!hasDoubled || m_column > cTable::mostColumns) {
            AddSlice(start, size);
            return;
        }
        const QString field = m_text.mid(start, size).replace(QStringLiteral("\"\""), QStringLiteral("\""));
        m_table.AddCell(field);
    }

    const QString& m_text;
    QChar m_separator;
    QChar m_current; // the lines above the header have separators of their own
    cTable& m_table;
    qsizetype m_at = 0;
    int m_line = 0;
    int m_column = 0; // of the row at hand, from 1
    qsizetype m_vainSteps = 0;
    bool m_isOneLine = false;
};

} // namespace

QChar modTableText::SeparatorOf(QStringView headerLine)
{
    if (headerLine.contains(u';')) {
        return u';';
    }
    return headerLine.contains(u',') ? QChar(u',') : QChar(u'\t');
}

cTable modTableText::Split(const QString& text, QChar separator, int firstLine)
{
    cTable table(text);
    cSplitter(text, separator, table).Run(firstLine);
    table.SetOpenEnded(!text.endsWith(u'\n') && !text.endsWith(u'\r'));
    return table;
}
