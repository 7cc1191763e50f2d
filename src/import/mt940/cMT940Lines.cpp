#include "import/mt940/cMT940Lines.h"

#include "import/mt940/modMT940Repair.h"

namespace {

bool HasTwo(QStringView text, QStringView end)
{
    const qsizetype first = text.indexOf(end);
    return first >= 0 && text.indexOf(end, first + end.size()) >= 0;
}

bool IsSeparatorLine(QStringView line)
{
    return line.trimmed() == u"-";
}

bool IsContinuation(QStringView line)
{
    return !line.startsWith(u':') && !IsSeparatorLine(line);
}

} // namespace

cMT940Lines::cMT940Lines(const modMT940Repair::cRepaired& repaired)
    : m_repaired(repaired),
      m_rest(repaired.Text),
      m_isDos(HasTwo(m_rest, u"\r\n"))
{
}

bool cMT940Lines::Next()
{
    m_joined.resize(0); // keeps its room
    Text = {};
    while (!m_isAtEnd && (Text.isEmpty() || IsContinuation(m_next))) {
        Take();
    }
    return !Text.isEmpty();
}

bool cMT940Lines::IsSeparator() const
{
    return IsSeparatorLine(Text);
}

// Adds the line that was looked at to the present one and looks at the next.
void cMT940Lines::Take()
{
    if (Text.isEmpty()) {
        Text = m_next;
        Number = m_repaired.Lines.value(m_nextNumber, m_nextNumber + 1);
    } else if (!m_next.isEmpty()) {
        if (m_joined.isEmpty()) {
            m_joined += Text;
        }
        m_joined += m_next;
        Text = m_joined;
    }
    LookAhead();
}

void cMT940Lines::LookAhead()
{
    m_nextNumber += m_isFirst ? 0 : 1 + m_feeds;
    m_isFirst = false;
    m_isAtEnd = m_isLast;
    const qsizetype end = EndOfLine();
    m_isLast = end < 0;
    m_next = m_isLast ? m_rest : m_rest.left(end);
    m_rest = m_isLast ? QStringView() : m_rest.mid(end + (m_isDos ? 2 : 1));
}

// -1 in the last line.
qsizetype cMT940Lines::EndOfLine()
{
    m_feeds = 0;
    qsizetype end = m_rest.indexOf(u'\n');
    while (m_isDos && end >= 0 && (end == 0 || m_rest[end - 1] != u'\r')) {
        end = m_rest.indexOf(u'\n', end + 1);
        ++m_feeds;
    }
    return end < 0 || !m_isDos ? end : end - 1;
}
