#include "cli/modCliTableChoice.h"

#include "base/cText.h"
#include "cli/cCliReader.h"
#include "import/table/modTableProfile.h"

#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cCharsetName
{
    eCharset Charset;
    const char16_t* Name;
};

constexpr std::array charsets = {
    cCharsetName{eCharset::Utf8, u"utf-8"},       cCharsetName{eCharset::Windows1252, u"windows-1252"},
    cCharsetName{eCharset::Cp850, u"cp850"},      cCharsetName{eCharset::Utf16LE, u"utf-16"},
    cCharsetName{eCharset::Utf16BE, u"utf-16be"},
};

struct cColumnName
{
    const char16_t* Name;
    int cColumnMap::*Place;
};

constexpr std::array columns = {
    cColumnName{u"datum", &cColumnMap::Date},
    cColumnName{u"art", &cColumnMap::Text},
    cColumnName{u"name", &cColumnMap::Name},
    cColumnName{u"konto", &cColumnMap::Account},
    cColumnName{u"blz", &cColumnMap::BankCode},
    cColumnName{u"betrag", &cColumnMap::Amount},
    cColumnName{u"soll", &cColumnMap::Debit},
    cColumnName{u"haben", &cColumnMap::Credit},
    cColumnName{u"waehrung", &cColumnMap::Currency},
    cColumnName{u"kennzeichen", &cColumnMap::Indicator},
    cColumnName{u"zahler", &cColumnMap::Payer},
    cColumnName{u"name2", &cColumnMap::Name2},
    cColumnName{u"konto2", &cColumnMap::Account2},
    cColumnName{u"blz2", &cColumnMap::BankCode2},
    cColumnName{u"eigenkonto", &cColumnMap::OwnAccount},
    cColumnName{u"eigenblz", &cColumnMap::OwnBankCode},
    cColumnName{u"status", &cColumnMap::Status},
    cColumnName{u"saldo", &cColumnMap::Balance},
};

constexpr std::array purposes = {u"zweck", u"zweck2", u"zweck3"};

QStringList CharsetNames()
{
    QStringList names;
    for (const cCharsetName& known : charsets) {
        names.append(QString::fromUtf16(known.Name));
    }
    return names;
}

QStringList ColumnNames()
{
    QStringList names;
    for (const cColumnName& column : columns) {
        names.append(QString::fromUtf16(column.Name));
    }
    for (const char16_t* purpose : purposes) {
        names.append(QString::fromUtf16(purpose));
    }
    return names;
}

// Where the map keeps the column; null when there is none of that name.
int* PlaceOf(cColumnMap& map, const QString& name)
{
    const QString spelled = name.toLower().replace(u'ä', u"ae"_s);
    for (std::size_t i = 0; i < purposes.size(); ++i) {
        if (spelled == QStringView(purposes.at(i))) {
            return &map.Purpose.at(i);
        }
    }
    const auto* const found = std::find_if(
        columns.begin(), columns.end(), [&](const cColumnName& column) { return spelled == QStringView(column.Name); });
    return found == columns.end() ? nullptr : &(map.*(found->Place));
}

// "betrag=5". False when it is not of that form.
bool Take(const QString& part, cColumnMap& map)
{
    int* const place = PlaceOf(map, part.section(u'=', 0, 0).trimmed());
    bool isNumber = false;
    const int column = part.section(u'=', 1).trimmed().toInt(&isNumber);
    if (place == nullptr || !isNumber || column < 0) {
        return false;
    }
    *place = column;
    return true;
}

cColumnMap ReadMap(const QString& text, cCliReader& reader)
{
    cColumnMap map;
    const QStringList parts = text.split(u',');
    for (const QString& part : parts) {
        if (!Take(part, map)) {
            reader.Misused(cText::Tr("'{0}' ist keine Spalte. Möglich sind: {1}, jeweils mit der Nummer der Spalte, ab "
                                     "0 gezählt: \"datum=0,betrag=5,zweck=3\".",
                                     {part, ColumnNames().join(u", "_s)}));
        }
    }
    if (map.Date < 0 || (map.Amount < 0 && map.Debit < 0 && map.Credit < 0)) {
        reader.Misused(cText::Tr("--map braucht wenigstens \"datum\" und \"betrag\" (oder \"soll\", \"haben\")."));
    }
    return map;
}

eCharset ReadCharset(const QString& text, cCliReader& reader)
{
    const auto* const found = std::find_if(charsets.begin(), charsets.end(), [&](const cCharsetName& known) {
        return text.compare(QStringView(known.Name), Qt::CaseInsensitive) == 0;
    });
    if (found == charsets.end()) {
        reader.Misused(
            cText::Tr("Den Zeichensatz '{0}' gibt es nicht. Möglich sind: {1}.", {text, CharsetNames().join(u", "_s)}));
        return eCharset::Detect;
    }
    return found->Charset;
}

QString ReadProfile(const QString& text, cCliReader& reader)
{
    QStringList names = modTableProfile::Names();
    names.removeDuplicates();
    if (text == noProfile || names.contains(text)) {
        return text;
    }
    reader.Misused(
        cText::Tr("Das Profil '{0}' gibt es nicht. Möglich sind: {1}.", {text, u'"' + names.join(u"\", \""_s) + u'"'}));
    return {};
}

// Calls `take` with the name and the number of every column that there is.
template <typename tTake>
void ForEach(const cColumnMap& map, const tTake& take)
{
    cColumnMap copy = map;
    const QStringList names = ColumnNames();
    for (const QString& name : names) {
        if (const int column = *PlaceOf(copy, name); column >= 0) {
            take(name, column);
        }
    }
}

} // namespace

QList<cCliOption> modCliTableChoice::Options()
{
    return {{u"charset"_s, u"NAME"_s,
             cText::Tr("Zeichensatz, wenn Umlaute falsch erscheinen: {0}", {CharsetNames().join(u", "_s)})},
            {u"profile-name"_s, u"NAME"_s,
             cText::Tr("bekannter Aufbau einer CSV-Datei, zum Beispiel \"DKB\"; \"-\" für keinen")},
            {u"map"_s, u"SPALTEN"_s,
             cText::Tr("alle Spalten einer CSV-Datei mit ihrer Nummer, ab 0 gezählt: \"datum=0,betrag=5,zweck=3\"; "
                       "möglich sind {0}",
                       {ColumnNames().join(u", "_s)})}};
}

cTableChoice modCliTableChoice::Read(const cCliCall& call, cCliReader& reader)
{
    cTableChoice choice;
    if (call.Has(u"charset"_s)) {
        choice.Charset = ReadCharset(call.Value(u"charset"_s), reader);
    }
    if (call.Has(u"profile-name"_s)) {
        choice.Profile = ReadProfile(call.Value(u"profile-name"_s), reader);
    }
    if (call.Has(u"map"_s)) {
        choice.Map = ReadMap(call.Value(u"map"_s), reader);
    }
    return choice;
}

QString modCliTableChoice::Name(eCharset charset)
{
    const auto* const found = std::find_if(charsets.begin(), charsets.end(),
                                           [&](const cCharsetName& known) { return known.Charset == charset; });
    return found == charsets.end() ? QString() : QString::fromUtf16(found->Name);
}

QString modCliTableChoice::MapText(const cColumnMap& map)
{
    QStringList parts;
    ForEach(map, [&](const QString& name, int column) { parts.append(name + u'=' + QString::number(column)); });
    return parts.join(u',');
}

cJsonObject modCliTableChoice::MapJson(const cColumnMap& map)
{
    cJsonObject json;
    ForEach(map, [&](const QString& name, int column) { json.Number(name, column); });
    return json;
}
