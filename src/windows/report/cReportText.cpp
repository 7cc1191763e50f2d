#include "windows/report/cReportText.h"

#include <QFontMetricsF>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// What stands for the gap between two words: nothing where a word goes on in another style.
QString Between(int gap, int height)
{
    return gap > height ? u"\t"_s : gap > height / 8 ? u" "_s : QString();
}

} // namespace

cReportText::cReportText(const std::vector<cReportPiece>& pieces)
{
    for (const cReportPiece& piece : pieces) {
        if (!piece.Text.isEmpty()) {
            m_words.push_back({piece.Place, piece.Text, piece.Font});
        }
    }
    SortIntoLines();
    BuildText();
}

// Words belong to one line when their middles lie within each other's height: name, bar and amounts of a row do.
void cReportText::SortIntoLines()
{
    std::stable_sort(m_words.begin(), m_words.end(),
                     [](const cWord& a, const cWord& b) { return a.Place.center().y() < b.Place.center().y(); });
    for (std::size_t i = 0; i < m_words.size(); ++i) {
        const QRect& place = m_words[i].Place;
        const bool isNew = m_lines.empty() || place.center().y() >= m_lines.back().Bottom;
        if (isNew) {
            m_lines.push_back({place.top(), place.bottom(), i, 0});
        }
        cLine& line = m_lines.back();
        line.Top = std::min(line.Top, place.top());
        line.Bottom = isNew ? place.bottom() : line.Bottom;
        ++line.Count;
        m_words[i].Line = static_cast<int>(m_lines.size()) - 1;
    }
    std::stable_sort(m_words.begin(), m_words.end(), [](const cWord& a, const cWord& b) {
        return a.Line != b.Line ? a.Line < b.Line : a.Place.left() < b.Place.left();
    });
}

void cReportText::BuildText()
{
    const cWord* before = nullptr;
    for (cWord& word : m_words) {
        if (before != nullptr) {
            const int gap = word.Place.left() - before->Place.right();
            m_text += word.Line != before->Line ? u"\n"_s : Between(gap, before->Place.height());
        }
        word.Start = static_cast<int>(m_text.size());
        m_text += word.Text;
        before = &word;
    }
}

int cReportText::XOf(const cWord& word, int position)
{
    const int within = std::clamp(position - word.Start, 0, static_cast<int>(word.Text.size()));
    return word.Place.left() + qRound(QFontMetricsF(word.Font).horizontalAdvance(word.Text.left(within)));
}

int cReportText::PositionAt(QPoint point) const
{
    if (m_lines.empty()) {
        return 0;
    }
    auto line =
        std::find_if(m_lines.begin(), m_lines.end(), [&](const cLine& each) { return point.y() <= each.Bottom; });
    if (line == m_lines.end()) {
        return static_cast<int>(m_text.size());
    }
    const cWord* last = &m_words[line->First];
    for (std::size_t i = line->First; i < line->First + line->Count; ++i) {
        const cWord& word = m_words[i];
        if (word.Place.left() > point.x()) {
            break;
        }
        last = &word;
    }
    const int length = static_cast<int>(last->Text.size());
    for (int i = 0; i < length; ++i) {
        const int middle = (XOf(*last, last->Start + i) + XOf(*last, last->Start + i + 1)) / 2;
        if (point.x() < middle) {
            return last->Start + i;
        }
    }
    return last->Start + length;
}

int cReportText::WordAt(QPoint point) const
{
    const auto found =
        std::find_if(m_words.begin(), m_words.end(), [&](const cWord& word) { return word.Place.contains(point); });
    return found == m_words.end() ? -1 : found->Start;
}

QList<QRect> cReportText::Places(int start, int end) const
{
    QList<QRect> places;
    int line = -1;
    for (const cWord& word : m_words) {
        const int wordEnd = word.Start + static_cast<int>(word.Text.size());
        if (wordEnd <= start || word.Start >= end) {
            continue;
        }
        const int left = XOf(word, start);
        const QRect part(left, word.Place.top(), XOf(word, end) - left, word.Place.height());
        if (word.Line == line) {
            places.last() |= part; // with the gap between two words
        } else {
            places.append(part);
        }
        line = word.Line;
    }
    return places;
}
