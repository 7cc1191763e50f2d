#include "views/statement/modTableOption.h"

#include "base/cText.h"
#include "import/read/cTableChoice.h"
#include "import/table/modColumnField.h"
#include "import/table/modTableProfile.h"
#include "views/statement/cFileWish.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cSignName
{
    eSignRule Sign;
    const char16_t* Name;
};

constexpr std::array signs = {
    cSignName{eSignRule::AsWritten, u"wie-datei"},
    cSignName{eSignRule::Negated, u"umgekehrt"},
};

// "betrag=5". False when it is not of that form.
bool Take(const QString& part, cColumnMap& map)
{
    int* const place = modColumnField::PlaceOf(map, part.section(u'=', 0, 0).trimmed());
    bool isNumber = false;
    const int column = part.section(u'=', 1).trimmed().toInt(&isNumber);
    if (place == nullptr || !isNumber || column < 0) {
        return false;
    }
    *place = column;
    return true;
}

QString CharsetFault(const QString& text)
{
    const QStringList names = modTableOption::CharsetNames();
    return text.isEmpty() || names.contains(text, Qt::CaseInsensitive)
        ? QString()
        : cText::Tr("Den Zeichensatz '{0}' gibt es nicht. Möglich sind: {1}.", {text, names.join(u", "_s)});
}

QString SignFault(const QString& text)
{
    const QStringList names = modTableOption::SignNames();
    return text.isEmpty() || names.contains(text, Qt::CaseInsensitive)
        ? QString()
        : cText::Tr("Das Vorzeichen '{0}' gibt es nicht. Möglich sind: {1}.", {text, names.join(u", "_s)});
}

QString ProfileFault(const QString& text)
{
    QStringList names = modTableProfile::Names();
    names.removeDuplicates();
    return text.isEmpty() || text == noProfile || names.contains(text)
        ? QString()
        : cText::Tr("Das Profil '{0}' gibt es nicht. Möglich sind: {1}.",
                    {text, u'"' + names.join(u"\", \""_s) + u'"'});
}

QString ColumnsFault(const QString& text)
{
    cColumnMap map;
    const QStringList parts = text.isEmpty() ? QStringList() : text.split(u',');
    for (const QString& part : parts) {
        if (!Take(part, map)) {
            return cText::Tr("'{0}' ist keine Spalte. Möglich sind: {1}, jeweils mit der Nummer der Spalte, ab 0 "
                             "gezählt: \"datum=0,betrag=5,zweck=3\".",
                             {part, modTableOption::ColumnNames().join(u", "_s)});
        }
    }
    const bool isEnough = map.Date >= 0 && (map.Amount >= 0 || map.Debit >= 0 || map.Credit >= 0);
    return text.isEmpty() || isEnough
        ? QString()
        : cText::Tr("--map braucht wenigstens \"datum\" und \"betrag\" (oder \"soll\", \"haben\").");
}

} // namespace

const QList<modTableOption::cCharset>& modTableOption::Charsets()
{
    static const QList<cCharset> all{{eCharset::Utf8, u"UTF-8"_s, u"utf-8"_s},
                                     {eCharset::Windows1252, u"Windows-1252"_s, u"windows-1252"_s},
                                     {eCharset::Cp850, u"CP850 (DOS)"_s, u"cp850"_s},
                                     {eCharset::Utf16LE, u"UTF-16"_s, u"utf-16"_s},
                                     {eCharset::Utf16BE, u"UTF-16 (BE)"_s, u"utf-16be"_s}};
    return all;
}

QStringList modTableOption::CharsetNames()
{
    QStringList names;
    for (const cCharset& known : Charsets()) {
        names.append(known.Name);
    }
    return names;
}

QStringList modTableOption::SignNames()
{
    QStringList names;
    for (const cSignName& known : signs) {
        names.append(QString::fromUtf16(known.Name));
    }
    return names;
}

QStringList modTableOption::ColumnNames()
{
    return modColumnField::Names();
}

QString modTableOption::Fault(const cFileWish& wish)
{
    for (const QString& fault :
         {CharsetFault(wish.Charset), ProfileFault(wish.Profile), ColumnsFault(wish.Columns), SignFault(wish.Sign)}) {
        if (!fault.isEmpty()) {
            return fault;
        }
    }
    return {};
}

cTableChoice modTableOption::Choice(const cFileWish& wish)
{
    cTableChoice choice;
    const QList<cCharset>& charsets = Charsets();
    const auto charset = std::find_if(charsets.begin(), charsets.end(), [&](const cCharset& known) {
        return wish.Charset.compare(known.Name, Qt::CaseInsensitive) == 0;
    });
    choice.Charset = charset == charsets.end() ? eCharset::Detect : charset->Charset;
    choice.Profile = wish.Profile;
    if (!wish.Columns.isEmpty()) {
        cColumnMap map;
        const QStringList parts = wish.Columns.split(u',');
        for (const QString& part : parts) {
            Take(part, map);
        }
        choice.Map = map;
        choice.Sign = eSignRule::AsWritten; // who names the columns knows what they hold
    }
    const auto* const sign = std::find_if(signs.begin(), signs.end(), [&](const cSignName& known) {
        return wish.Sign.compare(QStringView(known.Name), Qt::CaseInsensitive) == 0;
    });
    if (sign != signs.end()) {
        choice.Sign = sign->Sign;
    }
    return choice;
}

QString modTableOption::CharsetName(eCharset charset)
{
    const auto found = std::find_if(Charsets().begin(), Charsets().end(),
                                    [&](const cCharset& known) { return known.Charset == charset; });
    return found == Charsets().end() ? QString() : found->Name;
}

QList<std::pair<QString, int>> modTableOption::Columns(const cColumnMap& map)
{
    cColumnMap copy = map;
    QList<std::pair<QString, int>> list;
    const QStringList names = ColumnNames();
    for (const QString& name : names) {
        if (const int column = *modColumnField::PlaceOf(copy, name); column >= 0) {
            list.append({name, column});
        }
    }
    return list;
}
