#include "import/xml/modOfxRepair.h"

#include "import/xml/modBytes.h"
#include "import/xml/modXmlPieces.h"

#include <QByteArrayView>
#include <QHash>

#include <algorithm>
#include <array>
#include <vector>

namespace {

enum class eTag { None, Open, Close, Single, Other };

// A tag at a "<".
struct cTag
{
    eTag Kind = eTag::None;
    QByteArrayView Name;
    qsizetype End = 0; // behind its ">"
};

bool IsNameCharacter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '.' || c == '_'
        || c == '-';
}

bool IsBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// Comments, processing instructions and declarations: nothing of them is kept.
cTag OtherAt(QByteArrayView text, qsizetype at)
{
    const QByteArrayView rest = text.sliced(at);
    if (rest.startsWith("<!--")) {
        return {eTag::Other, {}, modXmlPieces::Behind(text, "-->", at + 4)};
    }
    if (rest.startsWith("<?")) {
        return {eTag::Other, {}, modXmlPieces::Behind(text, "?>", at + 2)};
    }
    const bool isDeclaration = rest.startsWith("<!D") || rest.startsWith("<!E");
    return isDeclaration ? cTag{eTag::Other, {}, modXmlPieces::Behind(text, ">", at + 2)} : cTag();
}

// "<" that begins no tag is a part of a value.
cTag TagAt(QByteArrayView text, qsizetype at)
{
    qsizetype from = at + 1;
    if (from < text.size() && (text[from] == '!' || text[from] == '?')) {
        return OtherAt(text, at);
    }
    const bool isClosing = from < text.size() && text[from] == '/';
    from += isClosing ? 1 : 0;
    qsizetype end = from;
    while (end < text.size() && IsNameCharacter(text[end])) {
        ++end;
    }
    const QByteArrayView name = text.sliced(from, end - from);
    while (end < text.size() && IsBlank(text[end])) {
        ++end;
    }
    const bool isSingle = end < text.size() && text[end] == '/';
    end += isSingle ? 1 : 0;
    const bool isName = !name.isEmpty() && (name.front() < '0' || name.front() > '9');
    if (!isName || end >= text.size() || text[end] != '>') {
        return {};
    }
    return {isClosing ? eTag::Close : (isSingle ? eTag::Single : eTag::Open), name, end + 1};
}

bool IsEntity(QByteArrayView text)
{
    constexpr std::array<QByteArrayView, 5> named = {"&amp;", "&lt;", "&gt;", "&quot;", "&apos;"};
    if (std::any_of(named.begin(), named.end(), [&](QByteArrayView entity) { return text.startsWith(entity); })) {
        return true;
    }
    if (!text.startsWith("&#")) {
        return false;
    }
    const qsizetype semicolon = text.first(std::min<qsizetype>(text.size(), 10)).indexOf(';');
    const qsizetype from = text.size() > 2 && text[2] == 'x' ? 3 : 2;
    if (semicolon < from) {
        return false;
    }
    bool isNumber = false;
    const uint code = text.sliced(from, semicolon - from).toByteArray().toUInt(&isNumber, from == 3 ? 16 : 10);
    return isNumber && code >= 0x20;
}

// The plain text of a value with what XML does not allow escaped; line breaks become blanks.
void AppendEscaped(QByteArray& out, QByteArrayView text)
{
    constexpr QByteArrayView blank = " ";
    constexpr QByteArrayView less = "&lt;";
    constexpr QByteArrayView ampersand = "&amp;";
    qsizetype kept = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (c > '<' || (c != '\n' && c != '\r' && c != '<' && (c != '&' || IsEntity(text.sliced(at))))) {
            continue;
        }
        modBytes::Put(out, {text.sliced(kept, at - kept), c == '<' ? less : (c == '&' ? ampersand : blank)});
        kept = at + 1;
    }
    modBytes::Put(out, {text.sliced(kept)});
}

class cRepair
{
public:
    explicit cRepair(const QByteArray& text) : m_text(text) { m_out.reserve(text.size() + text.size() / 4); }

    QByteArray Run()
    {
        qsizetype at = 0;
        while (at < m_text.size()) {
            at = Step(at);
        }
        return Inserted();
    }

private:
    static constexpr QByteArrayView transaction = "STMTTRN";

    struct cOpen
    {
        QByteArrayView Name;
        qsizetype Place; // in the output, behind the tag
    };

    // Takes a tag, or a text up to the next tag.
    qsizetype Step(qsizetype at)
    {
        const cTag tag = m_text[at] == '<' ? Tag(at) : cTag();
        switch (tag.Kind) {
        case eTag::Other: return tag.End;
        case eTag::Close: Close(tag.Name); return tag.End;
        case eTag::Single:
            Begin(tag.Name);
            End(tag.Name);
            return tag.End;
        case eTag::Open: return Open(tag);
        case eTag::None: break;
        }
        return TakeLooseText(at);
    }

    // The tag at the place, which is asked for by all steps around it.
    cTag Tag(qsizetype at)
    {
        if (at != m_tagPlace) {
            m_tagPlace = at;
            m_tag = TagAt(m_text, at);
        }
        return m_tag;
    }

    // A tag with a value is closed behind it, whether it has an end tag or not.
    qsizetype Open(const cTag& tag)
    {
        if (Is(tag.Name, transaction) || Is(tag.Name, "LEDGERBAL")) {
            EndTransaction();
        }
        Begin(tag.Name);
        const qsizetype place = m_out.size();
        const qsizetype end = TakeValue(tag.End);
        const cTag next = end < m_text.size() ? Tag(end) : cTag();
        const bool isClosed = next.Kind == eTag::Close && next.Name.compare(tag.Name, Qt::CaseInsensitive) == 0;
        if (m_out.size() > place || isClosed) {
            End(tag.Name);
            return isClosed ? next.End : end;
        }
        m_out += '\n';
        m_open.push_back({tag.Name, place});
        ++m_counts[tag.Name];
        return end;
    }

    // What was opened inside the element and never closed had no value: it is closed where it stands.
    void Close(QByteArrayView name)
    {
        const auto count = m_counts.find(name);
        if (count == m_counts.end() || *count == 0) {
            return;
        }
        while (m_open.back().Name != name) {
            const cOpen open = m_open.back();
            m_open.pop_back();
            --m_counts[open.Name];
            if (Is(open.Name, transaction)) {
                End(open.Name); // what stands in it belongs to it
            } else {
                m_missing.push_back(open);
            }
        }
        --m_counts[name];
        m_open.pop_back();
        End(name);
    }

    // Transactions hold no other ones: one that is open lacks its end tag.
    void EndTransaction()
    {
        const auto open =
            std::find_if(m_open.rbegin(), m_open.rend(), [](const cOpen& tag) { return Is(tag.Name, transaction); });
        if (open != m_open.rend()) {
            Close(open->Name);
        }
    }

    static bool Is(QByteArrayView name, QByteArrayView wanted)
    {
        return name.compare(wanted, Qt::CaseInsensitive) == 0;
    }

    // Appends the value from the place on and returns where it ends; blanks around it go.
    qsizetype TakeValue(qsizetype at)
    {
        const qsizetype start = m_out.size();
        while (at < m_text.size()) {
            const qsizetype tag = m_text.indexOf('<', at);
            const qsizetype end = tag < 0 ? m_text.size() : tag;
            AppendEscaped(m_out, LeftTrimmed(m_text.sliced(at, end - at), start));
            at = end;
            if (end == m_text.size() || !TakeInnerTag(at)) {
                break;
            }
        }
        while (m_out.size() > start && IsBlank(m_out.back())) {
            m_out.chop(1);
        }
        return at;
    }

    [[nodiscard]] QByteArrayView LeftTrimmed(QByteArrayView text, qsizetype start) const
    {
        while (m_out.size() == start && !text.isEmpty() && IsBlank(text.front())) {
            text = text.sliced(1);
        }
        return text;
    }

    // What may stand inside a value: CDATA, a comment, a bare "<". False at a tag.
    bool TakeInnerTag(qsizetype& at)
    {
        if (m_text.sliced(at).startsWith("<![CDATA[")) {
            const qsizetype end = m_text.indexOf("]]>", at);
            const QByteArrayView inner = m_text.sliced(at + 9, (end < 0 ? m_text.size() : end) - at - 9);
            AppendEscaped(m_out, inner.toByteArray().replace('&', "&amp;"));
            at = end < 0 ? m_text.size() : end + 3;
            return true;
        }
        const cTag tag = Tag(at);
        if (tag.Kind == eTag::None) {
            m_out += "&lt;";
            ++at;
            return true;
        }
        if (tag.Kind == eTag::Other) {
            at = tag.End;
            return true;
        }
        return false;
    }

    // Text outside of all elements is the header; elsewhere it is nothing that could be kept.
    qsizetype TakeLooseText(qsizetype at)
    {
        const qsizetype tag = m_text.indexOf('<', at + 1);
        const qsizetype end = tag < 0 ? m_text.size() : tag;
        if (m_isHeader) {
            m_out.append(m_text.sliced(at, end - at));
        }
        return end;
    }

    void Begin(QByteArrayView name)
    {
        if (m_isHeader && !m_out.isEmpty() && m_out.back() != '\n') {
            m_out += '\n';
        }
        m_isHeader = false;
        PutTag("<", name, ">");
    }

    void End(QByteArrayView name) { PutTag("</", name, ">\n"); }

    void PutTag(QByteArrayView before, QByteArrayView name, QByteArrayView behind)
    {
        const qsizetype start = m_out.size() + before.size();
        modBytes::Put(m_out, {before, name, behind});
        char* const place = m_out.data() + start;
        std::transform(place, place + name.size(), place,
                       [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    }

    // The output with the end tags that turned out to be missing.
    QByteArray Inserted()
    {
        if (m_missing.empty()) {
            return m_out;
        }
        std::sort(m_missing.begin(), m_missing.end(),
                  [](const cOpen& left, const cOpen& right) { return left.Place < right.Place; });
        const QByteArray out = m_out;
        m_out.clear();
        m_out.reserve(out.size() + qsizetype(m_missing.size()) * 8);
        qsizetype copied = 0;
        for (const cOpen& missing : m_missing) {
            m_out.append(QByteArrayView(out).sliced(copied, missing.Place - copied));
            End(missing.Name);
            copied = missing.Place + 1; // its line break came with the end tag
        }
        m_out.append(QByteArrayView(out).sliced(copied));
        return m_out;
    }

    QByteArrayView m_text;
    QByteArray m_out;
    std::vector<cOpen> m_open;
    std::vector<cOpen> m_missing;
    QHash<QByteArrayView, int> m_counts; // open elements by name
    cTag m_tag;                          // the one that was looked at last
    qsizetype m_tagPlace = -1;
    bool m_isHeader = true;
};

} // namespace

QByteArray modOfxRepair::Repair(const QByteArray& text)
{
    return cRepair(text).Run();
}
