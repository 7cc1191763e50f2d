#include "import/sheet/modSheetXml.h"

#include "base/cText.h"
#include "import/sheet/modSheetValue.h"
#include "import/xml/modXmlNode.h"

#include <cstring>

namespace {

constexpr qsizetype headSize = 4000;
constexpr qsizetype largestText = qsizetype{64} * 1024 * 1024; // characters; the tree takes several times that
constexpr int mostTexts = 1000;                                // pieces of one cell

// Attributes carry a prefix that the writer chose.
pugi::xml_attribute AttributeOf(const pugi::xml_node& node, const char* name)
{
    for (const pugi::xml_attribute attribute : node.attributes()) {
        const char* const colon = std::strchr(attribute.name(), ':');
        if (std::strcmp(colon == nullptr ? attribute.name() : colon + 1, name) == 0) {
            return attribute;
        }
    }
    return {};
}

// The text of a cell, whose pieces may be formatted.
class cTextCollector : public pugi::xml_tree_walker
{
public:
    bool for_each(pugi::xml_node& node) override // name given by the library
    {
        Text += QString::fromUtf8(node.value());
        return ++m_count < mostTexts;
    }

    QString Text;

private:
    int m_count = 0;
};

cSheetCell CellOf(const pugi::xml_node& cell)
{
    pugi::xml_node data = cell.child("Data");
    const QByteArrayView type = AttributeOf(data, "Type").value();
    cTextCollector collector;
    collector.Text = QString::fromUtf8(data.value());
    data.traverse(collector);
    if (type == "DateTime") {
        return modSheetValue::IsoDay(collector.Text);
    }
    if (type == "Boolean") {
        return modSheetValue::Boolean(collector.Text.trimmed() != QChar(u'0'));
    }
    bool isNumber = false;
    const double number = collector.Text.toDouble(&isNumber);
    return type == "Number" && isNumber ? modSheetValue::Number(number, eSheetFormat::Number)
                                        : cSheetCell{collector.Text.replace(u'\n', u' '), eSheetCell::Text};
}

void ReadRow(const pugi::xml_node& row, cSheetBuilder& builder)
{
    int next = 0;
    for (const pugi::xml_node cell : row.children("Cell")) {
        const int column = AttributeOf(cell, "Index").as_int(next + 1) - 1; // counted from 1
        builder.Put(column, CellOf(cell));
        next = qBound(0, column, cSheetBuilder::mostColumns) + 1
            + qBound(0, AttributeOf(cell, "MergeAcross").as_int(), cSheetBuilder::mostColumns);
    }
}

} // namespace

bool modSheetXml::IsSheetXml(QStringView text)
{
    const QStringView head = text.left(headSize).trimmed();
    return head.startsWith(u'<') && head.contains(u"urn:schemas-microsoft-com:office:spreadsheet")
        && head.contains(u"Workbook");
}

cSpreadsheet modSheetXml::Read(const QString& text)
{
    pugi::xml_document document;
    if (text.size() > largestText || !modXmlNode::Load(document, text.trimmed().toUtf8())) {
        return {{}, cText::Tr("Die Tabelle ist beschädigt oder zu groß. Es wurde nichts übernommen.")};
    }
    cSpreadsheet book;
    for (const pugi::xml_node sheet : document.document_element().children("Worksheet")) {
        cSheetBuilder builder(QString::fromUtf8(AttributeOf(sheet, "Name").value()));
        int line = 0;
        for (const pugi::xml_node row : sheet.child("Table").children("Row")) {
            line = AttributeOf(row, "Index").as_int(line + 1);
            builder.BeginRow(line);
            ReadRow(row, builder);
        }
        if (builder.IsFull()) {
            book.Refusal = cText::Tr("Die Tabelle ist zu groß für einen Kontoauszug.");
        }
        book.Sheets.append(builder.Take());
    }
    return book;
}
