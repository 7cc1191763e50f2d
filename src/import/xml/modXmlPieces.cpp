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

bool IsBlank(char c)
{
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

// Whether the tag at `at`, behind its "<" and "/", is of the name; a namespace prefix does not count.
bool IsNamed(QByteArrayView text, qsizetype at, QByteArrayView name)
{
    const char* const end = text.end();
    const char* from = text.begin() + at;
    const char* place = from;
    // All that ends a name, and the colon, comes before the letters.
    for (; place != end && (*place > '>' || (*place != '>' && *place != '/' && !IsBlank(*place))); ++place) {
        from = *place == ':' ? place + 1 : from;
    }
    return place - from == name.size() && std::equal(from, place, name.begin());
}

class cCutter
{
public:
    cCutter(QByteArrayView xml, QByteArrayView name) : m_xml(xml), m_name(name) {}

    modXmlPieces::cPieces Run()
    {
        if (HasSpecial()) {
            WalkTags();
        } else {
            WalkNames();
        }
        EndRow();
        Copy(m_xml.size());
        return std::move(m_result);
    }

private:
    void WalkTags()
    {
        for (qsizetype at = Find(m_xml, '<', 0); at >= 0; at = Find(m_xml, '<', at)) {
            const char next = at + 1 < m_xml.size() ? m_xml[at + 1] : '\0';
            if (next == '!') {
                at = BehindSpecial(at);
            } else {
                at = TakeTag(at, next == '/');
            }
        }
    }

    // Comments, CDATA and declarations. One character is found many times faster than two.
    [[nodiscard]] bool HasSpecial() const
    {
        qsizetype at = Find(m_xml, '!', 0);
        while (at >= 0 && (at == 0 || m_xml[at - 1] != '<')) {
            at = Find(m_xml, '!', at + 1);
        }
        return at >= 0;
    }

    // Without comments and CDATA a tag of the name is found by the name, and all other tags are passed over.
    void WalkNames()
    {
        for (qsizetype found = FindName(0); found >= 0;) {
            const qsizetype behind = found + m_name.size();
            const qsizetype tag = TagAround(found);
            found = FindName(tag < 0 ? behind : std::max(behind, TakeTag(tag, m_xml[tag + 1] == '/')));
        }
    }

    // The C library finds a word several times faster than the toolkit.
    [[nodiscard]] qsizetype FindName(qsizetype from) const
    {
        const QByteArrayView rest = m_xml.sliced(from);
        if (rest.isEmpty()) {
            return -1; // of an empty text the library may not even be asked
        }
        const void* const found = memmem(rest.data(), static_cast<std::size_t>(rest.size()), m_name.data(),
                                         static_cast<std::size_t>(m_name.size()));
        return found == nullptr ? -1 : static_cast<const char*>(found) - m_xml.data();
    }

    // Where the tag begins whose name reaches to this place; -1 when it is none.
    [[nodiscard]] qsizetype TagAround(qsizetype at) const
    {
        constexpr qsizetype longestPrefix = 40;
        for (qsizetype place = at - 1; place >= 0 && at - place < longestPrefix; --place) {
            const char c = m_xml[place];
            if (c == '<') {
                return place;
            }
            if (c == '>' || c == '"' || c == '\'' || IsBlank(c)) {
                return -1;
            }
        }
        return -1;
    }

    [[nodiscard]] qsizetype BehindSpecial(qsizetype at) const
    {
        const QByteArrayView rest = m_xml.sliced(at);
        if (rest.startsWith("<!--")) {
            return modXmlPieces::Behind(m_xml, "-->", at + 4);
        }
        return rest.startsWith("<![CDATA[") ? modXmlPieces::Behind(m_xml, "]]>", at + 9) : at + 2;
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
        if (!std::all_of(m_xml.begin() + m_copied, m_xml.begin() + m_start, IsBlank)) {
            EndRow();
            Copy(m_start);
        }
        m_result.Pieces.push_back(m_xml.sliced(m_start, end - m_start));
        m_copied = end;
    }

    // One element for the whole row: the tree of a large skeleton would be a tenth of what reading takes.
    void EndRow()
    {
        const qsizetype count = qsizetype(m_result.Pieces.size()) - m_row;
        if (count > 0) {
            m_result.Skeleton.append("<x piece=\"" + QByteArray::number(m_row) + "\" count=\""
                                     + QByteArray::number(count) + "\"/>");
        }
        m_row += count;
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
    qsizetype m_row = 0;    // the first piece that has no element in the skeleton yet
    int m_depth = 0;        // of elements of the name
};

} // namespace

modXmlPieces::cPieces modXmlPieces::Cut(QByteArrayView xml, QByteArrayView name)
{
    return cCutter(xml, name).Run();
}

qsizetype modXmlPieces::Behind(QByteArrayView text, QByteArrayView end, qsizetype from)
{
    const qsizetype found = text.indexOf(end, from);
    return found < 0 ? text.size() : found + end.size();
}
