#include "import/table/modTableContents.h"

#include "base/modChar.h"
#include "import/cell/modTableValue.h"
#include "import/table/cColumnSurvey.h"
#include "import/table/modTableMoney.h"
#include "import/table/modTableParties.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView dayWords = u"*Booking*|*Booked*|*Buchung*|*Completed*|*Abschluss*|Date|Datum|*Transaction*|"
                                 u"*Posting*|Boekdatum|*Trade*|Data|*comptable*|*Ecriture*|*Finished*|*Settlement*";

void CompleteDate(cColumnSurvey& survey)
{
    int& date = survey.Map().Date;
    if (date >= 0 && (survey.Facts(date).Dates > 0 || survey.Rows() == 0)) {
        return;
    }
    const auto isDay = [&](int column) {
        const cColumnFacts& facts = survey.Facts(column);
        return facts.Dates > 0 && facts.Dates * 2 >= facts.Filled && facts.Filled * 2 >= survey.Rows();
    };
    // The day of a report, or the period that it covers, is the same in every row.
    const auto isChanging = [&](int column) { return isDay(column) && !survey.Facts(column).IsConstant(); };
    const auto isBest = [&](int column) {
        return isChanging(column) && survey.IsFull(column) && survey.IsNamed(column, dayWords);
    };
    for (const int found : {survey.First(isBest), survey.First(isChanging), survey.First(isDay)}) {
        if (found >= 0) {
            date = found;
            return;
        }
    }
}

// A part above 12 that cannot be the month decides for all rows. Only with strokes the month may come first.
void DecideDateOrder(cColumnSurvey& survey)
{
    bool isOther = false;
    bool isOpen = false;
    for (int place = 0; place < survey.Rows(); ++place) {
        const QStringView cell = survey.Cell(place, survey.Map().Date);
        if (!modTableValue::IsDate(cell)) {
            continue;
        }
        if (!modTableValue::ReadDate(cell, eDateOrder::MonthDayYear).isValid()) {
            return;
        }
        isOther = isOther || !modTableValue::ReadDate(cell).isValid();
        isOpen = isOpen
            || (cell.contains(u'/')
                && modTableValue::ReadDate(cell) != modTableValue::ReadDate(cell, eDateOrder::MonthDayYear));
    }
    survey.Layout().IsDateGuess = isOpen && !isOther;
    survey.Layout().Date = isOther ? eDateOrder::MonthDayYear : survey.Layout().Date;
}

// "EUR" in "Betrag (EUR)", "Umsatz in EUR", "Betrag (€)".
QString CurrencyIn(const QString& name)
{
    if (name.contains(u'€')) {
        return u"EUR"_s;
    }
    for (const QStringView word : QStringView(name).split(u' ')) {
        const QStringView code = word.startsWith(u'(') && word.endsWith(u')') ? word.mid(1, word.size() - 2) : word;
        if (modChar::IsCurrencyCode(code)) {
            return code.toString();
        }
    }
    return {};
}

} // namespace

void modTableContents::Complete(const cTable& table, cTableLayout& layout)
{
    cColumnSurvey survey(table, layout);
    CompleteDate(survey);
    DecideDateOrder(survey);
    modTableMoney::Complete(survey);
    modTableParties::Complete(survey);
}

void modTableContents::CompleteCurrency(cTableLayout& layout)
{
    const cColumnMap& map = layout.Map;
    for (const int column : {map.Amount, map.Debit, map.Credit}) {
        if (layout.Currency.isEmpty() && column >= 0 && column < map.Names.size()) {
            layout.Currency = CurrencyIn(map.Names.at(column));
        }
    }
}
