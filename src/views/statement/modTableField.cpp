#include "views/statement/modTableField.h"

#include "base/cText.h"
#include "import/read/cTableLayout.h"
#include "import/table/modTableProfile.h"
#include "views/statement/modTableOption.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

using eField = cImportAssistant::eField;

struct cSeparator
{
    char16_t Separator;
    const char* Name;
};

constexpr std::array separators = {
    cSeparator{u';', QT_TRANSLATE_NOOP("cText", "Semikolon")},
    cSeparator{u',', QT_TRANSLATE_NOOP("cText", "Komma")},
    cSeparator{u'\t', QT_TRANSLATE_NOOP("cText", "Tabulator")},
    cSeparator{u'|', QT_TRANSLATE_NOOP("cText", "senkrechter Strich")},
};

// The item of a list behind "Automatisch"; 0 when it is not there.
int ItemOf(eCharset charset)
{
    const auto& all = modTableOption::Charsets();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const auto& known) { return known.Charset == charset; });
    return found == all.end() ? 0 : static_cast<int>(found - all.begin()) + 1;
}

int ItemOf(QChar separator)
{
    const auto* const found = std::find_if(separators.begin(), separators.end(), [&](const cSeparator& known) {
        return QChar(known.Separator) == separator;
    });
    return found == separators.end() ? 0 : static_cast<int>(found - separators.begin()) + 1;
}

QStringList Profiles()
{
    return QStringList(modTableField::Automatic()) + modTableProfile::Names() + QStringList(cText::Tr("keiner"));
}

QStringList Charsets(eCharset found)
{
    QStringList items{QString()};
    for (const auto& known : modTableOption::Charsets()) {
        items.append(known.Shown);
    }
    items.first() = modTableField::Automatic(items.at(ItemOf(found)));
    return items;
}

QStringList Separators(QChar found)
{
    QStringList items{QString()};
    for (const cSeparator& known : separators) {
        items.append(cText::Tr(known.Name));
    }
    items.first() = modTableField::Automatic(items.at(ItemOf(found)));
    return items;
}

int CurrentProfile(const QString& profile)
{
    const QStringList names = modTableProfile::Names();
    return profile == noProfile ? static_cast<int>(names.size()) + 1 : static_cast<int>(names.indexOf(profile)) + 1;
}

QString ProfileAt(int item)
{
    const QStringList names = modTableProfile::Names();
    return item == 0 ? QString() : names.value(item - 1, noProfile.toString());
}

} // namespace

QString modTableField::Automatic(const QString& found)
{
    return found.isEmpty() ? cText::Tr("Automatisch") : cText::Tr("Automatisch ({0})", {found});
}

QStringList modTableField::Items(eField field, const cTableLayout& layout, eCharset charset)
{
    switch (field) {
    case eField::Profile: return Profiles();
    case eField::Charset: return Charsets(charset);
    case eField::Separator: return Separators(layout.Separator);
    case eField::Number: return {Automatic(), cText::Tr("1.234,50"), cText::Tr("1,234.50")};
    case eField::Date:
        return {cText::Tr("Tag, Monat, Jahr"), cText::Tr("Monat, Tag, Jahr"), cText::Tr("Jahr, Monat, Tag")};
    case eField::Sign: return {cText::Tr("wie in der Datei"), cText::Tr("umgekehrt (Ausgaben ohne Minus)")};
    case eField::Sheet: break;
    }
    return {};
}

int modTableField::Current(eField field, const cTableChoice& choice, const cTableLayout& layout)
{
    switch (field) {
    case eField::Profile: return CurrentProfile(choice.Profile);
    case eField::Charset: return ItemOf(choice.Charset);
    case eField::Separator: return ItemOf(choice.Separator.value_or(QChar()));
    case eField::Number: return static_cast<int>(layout.Number);
    case eField::Date: return static_cast<int>(layout.Date);
    case eField::Sign: return static_cast<int>(layout.Sign);
    case eField::Sheet: break;
    }
    return 0;
}

void modTableField::Choose(eField field, int item, cTableChoice& choice)
{
    switch (field) {
    case eField::Profile: choice.Profile = ProfileAt(item); break;
    case eField::Charset:
        choice.Charset = item == 0 ? eCharset::Detect : modTableOption::Charsets().at(item - 1).Charset;
        break;
    case eField::Separator:
        choice.Separator =
            item == 0 ? std::optional<QChar>() : QChar(separators.at(static_cast<std::size_t>(item - 1)).Separator);
        break;
    case eField::Number: choice.Number = static_cast<eNumberFormat>(item); break;
    case eField::Date: choice.Date = static_cast<eDateOrder>(item); break;
    case eField::Sign: choice.Sign = static_cast<eSignRule>(item); break;
    case eField::Sheet: break;
    }
}

QString modTableField::OriginText(const cTableLayout& layout)
{
    if (!layout.IsReadable()) {
        return cText::Tr("Tag und Betrag nicht erkannt, bitte wählen");
    }
    switch (layout.Origin) {
    case eMapOrigin::Words: return cText::Tr("Spalten an ihren Namen erkannt");
    case eMapOrigin::Contents: return cText::Tr("Spalten aus dem Inhalt geraten, bitte prüfen");
    case eMapOrigin::Profile: return cText::Tr("bekannter Aufbau: {0}", {layout.Profile});
    case eMapOrigin::Memory: return cText::Tr("Spalten wie beim letzten Mal");
    case eMapOrigin::User: return cText::Tr("Spalten von Hand gewählt");
    }
    return {};
}
