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

// The name in a tag, without "<", "/" and namespace prefix.
QByteArrayView LocalName(QByteArrayView tag)
{
    qsizetype from = tag.startsWith("</") ? 2 : 1;
    qsizetype end = from;
    while (end < tag.size() && std::strchr(" \t\r\n/>", tag[end]) == nullptr) {
        from = tag[end] == ':' ? end + 1 : from;
        ++end;
    }
    return tag.mid(from, end - from);
}

class cCutter
{
public:
    cCutter(QByteArrayView xml, QByteArrayView name) : m_xml(xml), m_name(name) {}

    modXmlPieces::cPieces Run()
    {
        for (qsizetype at = Find(m_xml, '<', 0); at >= 0; at = Find(m_xml, '<', at)) {
            const QByteArrayView rest = m_xml.mid(at);
            if (rest.startsWith("<!--")) {
                at = Behind(m_xml, "-->", at + 4);
            } else if (rest.startsWith("<![CDATA[")) {
                at = Behind(m_xml, "]]>", at + 9);
            } else {
                at = TakeTag(at);
            }
        }
        Copy(m_xml.size());
        return std::move(m_result);
    }

private:
    // Returns the place behind the tag.
    qsizetype TakeTag(qsizetype at)
    {
        const qsizetype end = BehindTag(m_xml, at + 1);
        const QByteArrayView tag = m_xml.mid(at, end - at);
        if (tag.endsWith("/>") || LocalName(tag) != m_name) {
            return end;
        }
        if (!tag.startsWith("</")) {
            m_start = m_depth == 0 ? at : m_start;
            ++m_depth;
        } else if (m_depth > 0 && --m_depth == 0) {
            Copy(m_start);
            m_result.Skeleton += "<x piece=\"" + QByteArray::number(qsizetype(m_result.Pieces.size())) + "\"/>";
            m_result.Pieces.push_back(m_xml.mid(m_start, end - m_start));
            m_copied = end;
        }
        return end;
    }

    void Copy(qsizetype end)
    {
        m_result.Skeleton += m_xml.mid(m_copied, end - m_copied);
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
