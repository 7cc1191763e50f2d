#include "import/sheet/modXlsx.h"

#include "base/cText.h"
#include "import/read/modStatementFile.h"
#include "import/sheet/modSheetValue.h"
#include "import/xml/modXmlNode.h"
#include "import/zip/modZip.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 largestPart =
    qint64{64} * 1024 * 1024; // bytes of one unpacked file; its tree takes several times that
constexpr qint64 largestTotal = qint64{256} * 1024 * 1024; // bytes of all that are read
constexpr int mostSheets = 100;

// The attribute by its name without prefix: which prefix stands for the relationships is up to the writer.
QString Attribute(const pugi::xml_node& node, const char* name)
{
    for (const pugi::xml_attribute attribute : node.attributes()) {
        const char* const colon = std::strchr(attribute.name(), ':');
        if (std::strcmp(colon == nullptr ? attribute.name() : colon + 1, name) == 0) {
            return QString::fromUtf8(attribute.value());
        }
    }
    return {};
}

// "B12" gives 1; -1 when there are no letters in front.
int ColumnOf(const char* reference)
{
    int column = 0;
    for (; *reference >= 'A' && *reference <= 'Z' && column < 20000; ++reference) {
        column = column * 26 + (*reference - 'A') + 1;
    }
    return column - 1;
}

// A text is one piece, or several with a format each; how a word is pronounced does not belong to it.
QString RichText(const pugi::xml_node& item)
{
    QString text;
    for (const pugi::xml_node piece : item.children()) {
        if (std::strcmp(piece.name(), "t") == 0) {
            text += QString::fromUtf8(piece.child_value());
        } else if (std::strcmp(piece.name(), "r") == 0) {
            text += QString::fromUtf8(piece.child_value("t"));
        }
    }
    return text.replace(u"_x000D_"_s, QString()).replace(u'\n', u' ');
}

// "worksheets/sheet1.xml" is meant from the folder of the file that names it, "/xl/worksheets/sheet1.xml" from the top.
QString PathOf(const QString& target, const QString& folder)
{
    return target.startsWith(u'/') ? target.mid(1) : folder + target;
}

class cXlsxReader
{
public:
    explicit cXlsxReader(const QByteArray& zip) : m_zip(zip), m_names(modZip::Names(zip)) {}

    cSpreadsheet Read()
    {
        FindBook();
        pugi::xml_document book;
        if (!Load(m_bookPath, book)) {
            return Refused();
        }
        const pugi::xml_node root = book.document_element();
        const pugi::xml_attribute isLate = root.child("workbookPr").attribute("date1904");
        m_epoch = isLate.as_bool() ? eSheetEpoch::Year1904 : eSheetEpoch::Year1900;
        ReadRelations();
        if (!ReadTexts() || !ReadFormats()) {
            return Refused();
        }
        for (const pugi::xml_node sheet : root.child("sheets").children("sheet")) {
            if (m_book.Sheets.size() >= mostSheets || !m_book.Refusal.isEmpty()) {
                break;
            }
            ReadSheet(Attribute(sheet, "name"), m_sheetPaths.value(Attribute(sheet, "id")));
        }
        return m_book.Refusal.isEmpty() ? m_book : cSpreadsheet{{}, m_book.Refusal};
    }

private:
    static cSpreadsheet Refused()
    {
        return {{},
                cText::Tr("Die Arbeitsmappe ist beschädigt, verschlüsselt oder zu groß. Es wurde nichts übernommen.")};
    }

    // False when the file is missing, damaged or too large.
    bool Load(const QString& path, pugi::xml_document& document)
    {
        const std::optional<QByteArray> xml = modZip::Read(m_zip, path, std::min(largestPart, m_rest));
        if (!xml || !modStatementFile::Overlong(*xml).isEmpty()) {
            return false;
        }
        m_rest -= xml->size();
        return modXmlNode::Load(document, *xml);
    }

    void FindBook()
    {
        pugi::xml_document relations;
        if (!m_names.contains(u"_rels/.rels"_s) || !Load(u"_rels/.rels"_s, relations)) {
            return;
        }
        for (const pugi::xml_node relation : relations.document_element().children("Relationship")) {
            if (Attribute(relation, "Type").endsWith(u"/officeDocument")) {
                m_bookPath = PathOf(Attribute(relation, "Target"), {});
                m_folder = m_bookPath.left(m_bookPath.lastIndexOf(u'/') + 1);
                return;
            }
        }
    }

    void ReadRelations()
    {
        pugi::xml_document relations;
        if (!Load(m_folder + u"_rels/"_s + m_bookPath.mid(m_folder.size()) + u".rels"_s, relations)) {
            return;
        }
        for (const pugi::xml_node relation : relations.document_element().children("Relationship")) {
            const QString type = Attribute(relation, "Type");
            const QString path = PathOf(Attribute(relation, "Target"), m_folder);
            if (type.endsWith(u"/sharedStrings")) {
                m_textsPath = path;
            } else if (type.endsWith(u"/styles")) {
                m_stylesPath = path;
            }
            m_sheetPaths.insert(Attribute(relation, "Id"), path);
        }
    }

    // True also when the workbook has none.
    bool ReadTexts()
    {
        pugi::xml_document texts;
        if (m_textsPath.isEmpty()) {
            return true;
        }
        if (!Load(m_textsPath, texts)) {
            return false;
        }
        for (const pugi::xml_node item : texts.document_element().children("si")) {
            m_texts.append(RichText(item));
        }
        return true;
    }

    bool ReadFormats()
    {
        pugi::xml_document styles;
        if (m_stylesPath.isEmpty()) {
            return true;
        }
        if (!Load(m_stylesPath, styles)) {
            return false;
        }
        QHash<int, eSheetFormat> own;
        const pugi::xml_node root = styles.document_element();
        for (const pugi::xml_node format : root.child("numFmts").children("numFmt")) {
            const QString code = QString::fromUtf8(format.attribute("formatCode").value());
            own.insert(format.attribute("numFmtId").as_int(), modSheetValue::FormatOf(code));
        }
        for (const pugi::xml_node style : root.child("cellXfs").children("xf")) {
            const int id = style.attribute("numFmtId").as_int();
            m_formats.append(own.value(id, modSheetValue::FormatOf(id)));
        }
        return true;
    }

    void ReadSheet(const QString& name, const QString& path)
    {
        pugi::xml_document document;
        if (!Load(path, document)) {
            m_book.Refusal = Refused().Refusal;
            return;
        }
        cSheetBuilder builder(name);
        int line = 0;
        for (const pugi::xml_node row : document.document_element().child("sheetData").children("row")) {
            line = row.attribute("r").as_int(line + 1);
            builder.BeginRow(line);
            ReadRow(row, builder);
            if (builder.IsFull()) {
                break;
            }
        }
        if (builder.IsFull()) {
            m_book.Refusal = cText::Tr("Das Tabellenblatt '{0}' ist zu groß für einen Kontoauszug.", {name.left(40)});
        }
        m_book.Sheets.append(builder.Take());
    }

    void ReadRow(const pugi::xml_node& row, cSheetBuilder& builder) const
    {
        int next = 0;
        for (const pugi::xml_node cell : row.children("c")) {
            const int named = ColumnOf(cell.attribute("r").value());
            const int column = named < 0 ? next : named;
            builder.Put(column, CellOf(cell));
            next = column + 1;
        }
    }

    [[nodiscard]] cSheetCell CellOf(const pugi::xml_node& cell) const
    {
        const QByteArrayView type = cell.attribute("t").value();
        const QString value = QString::fromUtf8(cell.child_value("v"));
        if (type == "s") {
            bool isNumber = false;
            const int place = value.toInt(&isNumber);
            return {isNumber ? m_texts.value(place) : QString(), eSheetCell::Text};
        }
        if (type == "inlineStr") {
            return {RichText(cell.child("is")), eSheetCell::Text};
        }
        if (type == "b") {
            return value.isEmpty() ? cSheetCell{} : modSheetValue::Boolean(value != u"0");
        }
        if (type == "d") {
            return modSheetValue::IsoDay(value);
        }
        bool isNumber = false;
        const double number = value.toDouble(&isNumber);
        const bool isText = type == "str" || type == "e" || !isNumber;
        return isText ? cSheetCell{value, eSheetCell::Text}
                      : modSheetValue::Value(number, m_formats.value(cell.attribute("s").as_int()), m_epoch);
    }

    const QByteArray& m_zip;
    QStringList m_names;
    qint64 m_rest = largestTotal;
    QString m_folder = u"xl/"_s;
    QString m_bookPath = u"xl/workbook.xml"_s;
    QString m_textsPath;
    QString m_stylesPath;
    QHash<QString, QString> m_sheetPaths; // by relationship
    QStringList m_texts;
    QList<eSheetFormat> m_formats; // by style
    eSheetEpoch m_epoch = eSheetEpoch::Year1900;
    cSpreadsheet m_book;
};

} // namespace

bool modXlsx::IsXlsx(const QByteArray& zip)
{
    const QStringList names = modZip::IsZip(zip) ? modZip::Names(zip) : QStringList();
    return names.contains(u"[Content_Types].xml"_s)
        && std::any_of(names.begin(), names.end(), [](const QString& name) { return name.endsWith(u"workbook.xml"); });
}

cSpreadsheet modXlsx::Read(const QByteArray& zip)
{
    return cXlsxReader(zip).Read();
}
