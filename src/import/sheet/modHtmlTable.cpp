#include "import/sheet/modHtmlTable.h"

#include "base/cText.h"
#include "base/modChar.h"
#include "import/sheet/cSheetBuilder.h"

#include <gumbo.h>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype headSize = 4000; // characters in which the text must show what it is
constexpr qsizetype mostTables = 2000;
constexpr std::size_t deepest = 30; // tables inside of tables

// The text nodes below the body of a document that has no elements of its own.
QByteArray TextOf(const GumboOutput& document)
{
    QByteArray text;
    const GumboVector& parts = document.root->v.element.children; // head and body
    for (unsigned int part = 0; part < parts.length; ++part) {
        const auto* const node = static_cast<const GumboNode*>(parts.data[part]);
        for (unsigned int i = 0; node->type == GUMBO_NODE_ELEMENT && i < node->v.element.children.length; ++i) {
            const auto* const child = static_cast<const GumboNode*>(node->v.element.children.data[i]);
            if (child->type == GUMBO_NODE_TEXT || child->type == GUMBO_NODE_WHITESPACE) {
                text += child->v.text.text;
            }
        }
    }
    return text;
}

// The text of a cell with its entities resolved, as a browser would. The parser only gets text: a tree of tags costs it
// the square of their number, and a deep one overflows its stack.
QString WithoutEntities(const QString& text)
{
    if (!text.contains(u'&')) {
        return text;
    }
    const QByteArray bytes = QString(text).replace(u'<', u"&lt;"_s).remove(QChar::Null).toUtf8();
    GumboOptions options = kGumboDefaultOptions;
    options.max_errors = 0;
    GumboOutput* const document =
        gumbo_parse_with_options(&options, bytes.constData(), static_cast<size_t>(bytes.size()));
    const QString plain = QString::fromUtf8(TextOf(*document));
    gumbo_destroy_output(&options, document);
    return QString(plain).replace(u'\u2212', u'-'); // the typographic minus of amounts
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
        if (modChar::IsDigit(tag[at])) {
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
        if (!m_open.empty()) { // a browser would show what there is
            m_book.Refusal = cText::Tr("Die Tabelle ist beschädigt oder unvollständig. Es wurde nichts übernommen.");
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
