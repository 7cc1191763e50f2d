#include "import/sheet/modHtmlTable.h"

#include "base/cText.h"
#include "import/sheet/cSheetBuilder.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype headSize = 4000; // characters in which the text must show what it is
constexpr qsizetype mostTables = 2000;
constexpr std::size_t deepest = 30; // tables inside of tables
constexpr qsizetype longestEntity = 10;

struct cEntity
{
    QStringView Name;
    char16_t Character;
};

constexpr std::array entities = {
    cEntity{u"amp", u'&'},    cEntity{u"lt", u'<'},       cEntity{u"gt", u'>'},     cEntity{u"quot", u'"'},
    cEntity{u"apos", u'\''},  cEntity{u"nbsp", u' '},     cEntity{u"euro", u'€'},   cEntity{u"auml", u'ä'},
    cEntity{u"ouml", u'ö'},   cEntity{u"uuml", u'ü'},     cEntity{u"Auml", u'Ä'},   cEntity{u"Ouml", u'Ö'},
    cEntity{u"Uuml", u'Ü'},   cEntity{u"szlig", u'ß'},    cEntity{u"minus", u'-'},  cEntity{u"ndash", u'–'},
    cEntity{u"sect", u'§'},   cEntity{u"shy", u'\u00AD'}, cEntity{u"eacute", u'é'}, cEntity{u"egrave", u'è'},
    cEntity{u"agrave", u'à'}, cEntity{u"ccedil", u'ç'},
};

// What stands between "&" and ";"; empty when nothing is known by this name.
QString CharacterOf(QStringView name)
{
    if (name.startsWith(u'#')) {
        const bool isHex = name.size() > 1 && name[1].toLower() == u'x';
        bool isNumber = false;
        const uint code = name.mid(isHex ? 2 : 1).toUInt(&isNumber, isHex ? 16 : 10);
        const bool isCharacter = isNumber && code > 0 && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
        return isCharacter ? QString::fromUcs4(std::array{static_cast<char32_t>(code)}.data(), 1) : QString();
    }
    const auto* const found =
        std::find_if(entities.begin(), entities.end(), [&](const cEntity& entity) { return entity.Name == name; });
    return found == entities.end() ? QString() : QString(QChar(found->Character));
}

QString WithoutEntities(QStringView text)
{
    QString plain;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype end = text[at] == u'&' ? text.mid(at, longestEntity).indexOf(u';') : -1;
        const QString character = end > 0 ? CharacterOf(text.mid(at + 1, end - 1)) : QString();
        plain += character.isEmpty() ? QString(text[at]) : character;
        at += character.isEmpty() ? 1 : end + 1;
    }
    return plain;
}

// A tag without its brackets: `td colspan="2"`, `/td`.
QString NameOf(QStringView tag)
{
    const auto* const end =
        std::find_if(tag.begin() + 1, tag.end(), [](QChar c) { return c.isSpace() || c == u'/' || c == u'>'; });
    return tag.left(end - tag.begin()).toString().toLower();
}

int ColumnsOf(QStringView tag)
{
    qsizetype at = tag.indexOf(u"colspan", 0, Qt::CaseInsensitive);
    if (at < 0) {
        return 1;
    }
    int columns = 0;
    for (at += 7; at < tag.size() && columns < cSheetBuilder::mostColumns; ++at) {
        if (tag[at] >= u'0' && tag[at] <= u'9') {
            columns = columns * 10 + (tag[at].unicode() - u'0');
        } else if (columns > 0) {
            break;
        }
    }
    return qMax(columns, 1);
}

QString TooLarge()
{
    return cText::Tr("Die Tabelle ist zu groß für einen Kontoauszug.");
}

// A table that is being read.
struct cOpenTable
{
    cSheetBuilder Builder{QString()};
    int Row = 0;
    int Column = 0;
    int Columns = 1; // of the open cell
    bool IsInCell = false;
    QString Text;

    void EndCell()
    {
        if (IsInCell) {
            Builder.Put(Column, {WithoutEntities(Text).simplified(), eSheetCell::Text});
            Column = qMin(Column + Columns, cSheetBuilder::mostColumns);
            Text.clear();
        }
        IsInCell = false;
    }

    void BeginRow()
    {
        EndCell();
        Builder.BeginRow(++Row);
        Column = 0;
    }

    void BeginCell(int columns)
    {
        EndCell();
        IsInCell = true;
        Columns = columns;
    }
};

class cHtmlReader
{
public:
    explicit cHtmlReader(QStringView text) : m_text(text) {}

    cSpreadsheet Read()
    {
        qsizetype at = 0;
        while (at < m_text.size() && m_book.Sheets.size() < mostTables) {
            const qsizetype open = m_text.indexOf(u'<', at);
            AddText(m_text.mid(at, (open < 0 ? m_text.size() : open) - at));
            if (open < 0) {
                break;
            }
            at = open + 1;
            if (!StartsTag(at)) {
                AddText(u"<");
                continue;
            }
            at = m_text.mid(open).startsWith(u"<!--") ? End(u"-->", open) : TakeTag(at);
        }
        while (!m_open.empty()) {
            EndTable();
        }
        if (m_book.Sheets.size() >= mostTables) {
            m_book.Refusal = TooLarge();
        }
        return m_book;
    }

private:
    [[nodiscard]] bool StartsTag(qsizetype at) const
    {
        return at < m_text.size()
            && (m_text[at].isLetter() || m_text[at] == u'/' || m_text[at] == u'!' || m_text[at] == u'?');
    }

    // The place behind the next mark, or the end.
    [[nodiscard]] qsizetype End(QStringView mark, qsizetype from) const
    {
        const qsizetype found = m_text.indexOf(mark, from, Qt::CaseInsensitive);
        return found < 0 ? m_text.size() : found + mark.size();
    }

    void AddText(QStringView text)
    {
        if (!m_open.empty() && m_open.back().IsInCell) {
            m_open.back().Text += text;
        }
    }

    // Returns the place behind the tag.
    qsizetype TakeTag(qsizetype at)
    {
        const qsizetype end = End(u">", at);
        const QStringView tag = m_text.mid(at, end - at);
        const QString name = NameOf(tag);
        if (name == u"script" || name == u"style") {
            return End(name == u"script" ? u"</script" : u"</style", end);
        }
        if (name == u"table" && m_open.size() < deepest) {
            m_open.emplace_back();
        } else if (!m_open.empty()) {
            Take(name, tag);
        }
        return end;
    }

    void Take(const QString& name, QStringView tag)
    {
        cOpenTable& table = m_open.back();
        if (name == u"tr") {
            table.BeginRow();
        } else if (name == u"td" || name == u"th") {
            table.BeginCell(ColumnsOf(tag));
        } else if (name == u"/td" || name == u"/th" || name == u"/tr") {
            table.EndCell();
        } else if (name == u"/table") {
            EndTable();
        } else {
            AddText(u" "); // line breaks and paragraphs separate words
        }
    }

    void EndTable()
    {
        m_open.back().EndCell();
        const bool isFull = m_open.back().Builder.IsFull();
        cSheet sheet = m_open.back().Builder.Take();
        m_open.pop_back();
        if (isFull) {
            m_book.Refusal = TooLarge();
        }
        if (sheet.Table.RowCount() > 0) {
            m_book.Sheets.append(std::move(sheet));
        }
    }

    QStringView m_text;
    std::vector<cOpenTable> m_open; // the innermost one last
    cSpreadsheet m_book;
};

} // namespace

bool modHtmlTable::IsHtml(QStringView text)
{
    const QStringView head = text.left(headSize).trimmed();
    return head.startsWith(u'<')
        && (head.contains(u"<html", Qt::CaseInsensitive) || head.contains(u"<table", Qt::CaseInsensitive));
}

cSpreadsheet modHtmlTable::Read(QStringView text)
{
    return cHtmlReader(text).Read();
}
