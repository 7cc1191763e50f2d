#include "import/xml/modXmlPieces.h"

#include <algorithm>
#include <cstring>

namespace {

qsizetype Find(QByteArrayView text, char wanted, qsizetype from)
{
    if (from >= text.size()) {
        return -1;
    }
    const void* const found = std::memchr(text.data() + from, wanted, static_cast<std::size_t>(text.size() - from));
    return found == nullptr ? -1 : static_cast<const char*>(found) - text.data();
}

// Where the text behind `end` begins; the end of the text when `end` never comes.
qsizetype Behind(QByteArrayView text, QByteArrayView end, qsizetype from)
{
    const qsizetype found = text.indexOf(end, from);
    return found < 0 ? text.size() : found + end.size();
}

// Behind the ">" of a tag; one inside a quoted attribute does not count.
qsizetype BehindTag(QByteArrayView text, qsizetype from)
{
    char quote = '\0';
    for (qsizetype at = from; at < text.size(); ++at) {
        const char c = text[at];
        if (quote != '\0') {
            quote = c == quote ? '\0' : quote;
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == '>') {
            return at + 1;
        }
    }
    return text.size();
}

// Whether the tag at `at`, behind its "<" and "/", is of the name; a namespace prefix does not count.
bool IsNamed(QByteArrayView text, qsizetype at, QByteArrayView name)
{
    qsizetype from = at;
    for (; at < text.size(); ++at) {
        const char c = text[at];
        if (c == ':') {
            from = at + 1;
        } else if (c == '>' || c == '/' || c == ' ' || c == '\n' || c == '\r' || c == '\t') {
            break;
        }
    }
    return at - from == name.size() && text.sliced(from, at - from) == name;
}

class cCutter
{
public:
    cCutter(QByteArrayView xml, QByteArrayView name) : m_xml(xml), m_name(name) {}

    modXmlPieces::cPieces Run()
    {
        for (qsizetype at = Find(m_xml, '<', 0); at >= 0; at = Find(m_xml, '<', at)) {
            const char next = at + 1 < m_xml.size() ? m_xml[at + 1] : '\0';
            if (next == '!') {
                at = BehindSpecial(at);
            } else {
                at = TakeTag(at, next == '/');
            }
        }
        Copy(m_xml.size());
        return std::move(m_result);
    }

private:
    [[nodiscard]] qsizetype BehindSpecial(qsizetype at) const
    {
        const QByteArrayView rest = m_xml.sliced(at);
        if (rest.startsWith("<!--")) {
            return Behind(m_xml, "-->", at + 4);
        }
        return rest.startsWith("<![CDATA[") ? Behind(m_xml, "]]>", at + 9) : at + 2;
    }

    // Returns a place before the next "<": values of attributes hold none.
    qsizetype TakeTag(qsizetype at, bool isClosing)
    {
        const qsizetype start = at + (isClosing ? 2 : 1);
        if (!IsNamed(m_xml, start, m_name)) {
            return start;
        }
        const qsizetype end = BehindTag(m_xml, start);
        if (m_xml[end - 1] == '>' && m_xml[end - 2] == '/') {
            return end;
        }
        if (!isClosing) {
            m_start = m_depth == 0 ? at : m_start;
            ++m_depth;
        } else if (m_depth > 0 && --m_depth == 0) {
            AddPiece(end);
        }
        return end;
    }

    void AddPiece(qsizetype end)
    {
        Copy(m_start);
        m_result.Skeleton.append("<x piece=\"");
        m_result.Skeleton.append(QByteArray::number(qsizetype(m_result.Pieces.size())));
        m_result.Skeleton.append("\"/>");
        m_result.Pieces.push_back(m_xml.sliced(m_start, end - m_start));
        m_copied = end;
    }

    void Copy(qsizetype end)
    {
        m_result.Skeleton.append(m_xml.sliced(m_copied, end - m_copied));
        m_copied = end;
    }

    QByteArrayView m_xml;
    QByteArrayView m_name;
    modXmlPieces::cPieces m_result;
    qsizetype m_copied = 0; // what lies before is in the skeleton or in a piece
    qsizetype m_start = 0;  // of the open piece
    int m_depth = 0;        // of elements of the name
};

} // namespace

modXmlPieces::cPieces modXmlPieces::Cut(QByteArrayView xml, QByteArrayView name)
{
    return cCutter(xml, name).Run();
}
