#include "import/table/modLayoutFile.h"

#include "base/cText.h"
#include "import/table/modColumnField.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView firstLine = u"Kontorelle-Aufbau 1";
constexpr QStringView notRead = u"-";
constexpr qsizetype mostColumns = 256;
constexpr qsizetype longestName = 60;

// Words of the file stay as they are whatever the language of the program is.
template <typename tValue>
struct cWord
{
    const char16_t* Text;
    tValue Value;
};

constexpr std::array numbers = {cWord<eNumberFormat>{u"automatisch", eNumberFormat::Detect},
                                cWord<eNumberFormat>{u"1.234,50", eNumberFormat::German},
                                cWord<eNumberFormat>{u"1,234.50", eNumberFormat::English}};
constexpr std::array dates = {cWord<eDateOrder>{u"Tag Monat Jahr", eDateOrder::DayMonthYear},
                              cWord<eDateOrder>{u"Monat Tag Jahr", eDateOrder::MonthDayYear},
                              cWord<eDateOrder>{u"Jahr Monat Tag", eDateOrder::YearMonthDay}};
constexpr std::array signs = {cWord<eSignRule>{u"wie in der Datei", eSignRule::AsWritten},
                              cWord<eSignRule>{u"umgekehrt", eSignRule::Negated}};
constexpr std::array details = {cWord<eDetails>{u"einfach", eDetails::None},
                                cWord<eDetails>{u"mit Beschriftung", eDetails::Labelled},
                                cWord<eDetails>{u"österreichisch", eDetails::Austrian},
                                cWord<eDetails>{u"durch Leerzeichen getrennt", eDetails::Spaced}};

template <typename tValue>
QString TextOf(const auto& words, tValue value)
{
    const auto* const found =
        std::find_if(words.begin(), words.end(), [&](const auto& word) { return word.Value == value; });
    return found == words.end() ? QString() : QString::fromUtf16(found->Text);
}

// False when it is none of the words.
template <typename tValue>
bool Take(const auto& words, const QString& text, tValue& value)
{
    const auto* const found = std::find_if(words.begin(), words.end(), [&](const auto& word) {
        return text.compare(QStringView(word.Text), Qt::CaseInsensitive) == 0;
    });
    if (found == words.end()) {
        return false;
    }
    value = found->Value;
    return true;
}

// "zweck+name" for a column that holds both.
QString FieldsOf(const cColumnMap& map, int column)
{
    cColumnMap copy = map;
    QStringList fields;
    const QStringList names = modColumnField::Names();
    std::copy_if(names.begin(), names.end(), std::back_inserter(fields),
                 [&](const QString& name) { return *modColumnField::PlaceOf(copy, name) == column; });
    return fields.isEmpty() ? notRead.toString() : fields.join(u'+');
}

class cReader
{
public:
    [[nodiscard]] modLayoutFile::cRead Run(const QString& text)
    {
        const QStringList lines = text.split(u'\n');
        bool hasBegun = false;
        for (qsizetype i = 0; i < lines.size() && m_read.Fault.isEmpty(); ++i) {
            const QString line = lines.at(i).trimmed();
            if (line.isEmpty() || line.startsWith(u'#')) {
                continue;
            }
            if (!hasBegun && line != firstLine) {
                return {{},
                        cText::Tr("Die Datei ist kein Aufbau: sie beginnt nicht mit \"{0}\".", {firstLine.toString()})};
            }
            if (hasBegun && !TakeLine(line)) {
                m_read.Fault =
                    cText::Tr("Zeile {0} ist nicht zu verstehen: {1}", {QString::number(i + 1), line.left(60)});
            }
            hasBegun = true;
        }
        Finish(hasBegun);
        return std::move(m_read);
    }

private:
    [[nodiscard]] bool TakeLine(const QString& line)
    {
        cTableLayout& layout = m_read.Layout;
        if (line.compare(u"Spalten:", Qt::CaseInsensitive) == 0) {
            m_isInColumns = true;
            return true;
        }
        const qsizetype colon = line.indexOf(u':');
        const QString word = line.left(colon).trimmed();
        const QString value = colon < 0 ? QString() : line.mid(colon + 1).trimmed();
        if (colon < 1 || m_isInColumns) {
            return colon > 0 && TakeColumn(word, value);
        }
        const auto is = [&](QStringView name) { return word.compare(name, Qt::CaseInsensitive) == 0; };
        if (is(u"Name")) {
            layout.Profile = value.left(longestName).remove(u';');
        } else if (is(u"Währung")) {
            layout.Currency = value.left(3);
        } else if (is(u"Nur Währung")) {
            layout.OnlyCurrency = value.left(3);
        } else {
            return (is(u"Zahlen") && Take(numbers, value, layout.Number))
                || (is(u"Tage") && Take(dates, value, layout.Date))
                || (is(u"Vorzeichen") && Take(signs, value, layout.Sign))
                || (is(u"Texte") && Take(details, value, layout.Details));
        }
        return true;
    }

    // "betrag: Umsatz in EUR"
    [[nodiscard]] bool TakeColumn(const QString& fields, const QString& name)
    {
        cColumnMap& map = m_read.Layout.Map;
        const auto column = static_cast<int>(map.Names.size());
        if (column >= mostColumns) {
            return false;
        }
        map.Names.append(name);
        const QStringList names = fields == notRead ? QStringList() : fields.split(u'+');
        return std::all_of(names.begin(), names.end(), [&](const QString& field) {
            int* const place = modColumnField::PlaceOf(map, field.trimmed());
            if (place == nullptr || *place >= 0) {
                return false; // unknown, or held by another column already
            }
            *place = column;
            return true;
        });
    }

    void Finish(bool hasBegun)
    {
        cTableLayout& layout = m_read.Layout;
        layout.Map.ColumnCount = static_cast<int>(layout.Map.Names.size());
        layout.Origin = eMapOrigin::Memory;
        if (m_read.Fault.isEmpty() && !hasBegun) {
            m_read.Fault = cText::Tr("Die Datei ist leer.");
        } else if (m_read.Fault.isEmpty() && !layout.IsReadable()) {
            m_read.Fault = cText::Tr("Dem Aufbau fehlen die Spalten für Tag und Betrag.");
        }
    }

    modLayoutFile::cRead m_read;
    bool m_isInColumns = false;
};

} // namespace

QString modLayoutFile::ToText(const cTableLayout& layout, const QString& name)
{
    if (layout.Map.Names.isEmpty() || !layout.IsReadable()) {
        return {};
    }
    QStringList lines{firstLine.toString(), u"Name: "_s + name.simplified().left(longestName)};
    lines.append(u"Zahlen: "_s + TextOf(numbers, layout.Number));
    lines.append(u"Tage: "_s + TextOf(dates, layout.Date));
    lines.append(u"Vorzeichen: "_s + TextOf(signs, layout.Sign));
    lines.append(u"Texte: "_s + TextOf(details, layout.Details));
    if (!layout.Currency.isEmpty()) {
        lines.append(u"Währung: "_s + layout.Currency);
    }
    if (!layout.OnlyCurrency.isEmpty()) {
        lines.append(u"Nur Währung: "_s + layout.OnlyCurrency);
    }
    lines.append(u"Spalten:"_s);
    for (int column = 0; column < layout.Map.Names.size(); ++column) {
        lines.append(FieldsOf(layout.Map, column) + u": "_s + layout.Map.Names.at(column));
    }
    return lines.join(u'\n') + u'\n';
}

modLayoutFile::cRead modLayoutFile::FromText(const QString& text)
{
    return cReader().Run(text);
}
