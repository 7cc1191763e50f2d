#include "views/statement/modColumnMeaning.h"

#include "base/cText.h"
#include "import/read/cColumnMap.h"

#include <QList>

#include <array>

namespace {

// In the order of the list, and of Places below.
constexpr std::array names = {
    QT_TRANSLATE_NOOP("cText", "nicht lesen"),
    QT_TRANSLATE_NOOP("cText", "Buchungstag"),
    QT_TRANSLATE_NOOP("cText", "Betrag"),
    QT_TRANSLATE_NOOP("cText", "Soll (Ausgaben)"),
    QT_TRANSLATE_NOOP("cText", "Haben (Einnahmen)"),
    QT_TRANSLATE_NOOP("cText", "Soll/Haben-Kennzeichen"),
    QT_TRANSLATE_NOOP("cText", "Verwendungszweck"),
    QT_TRANSLATE_NOOP("cText", "Verwendungszweck 2"),
    QT_TRANSLATE_NOOP("cText", "Verwendungszweck 3"),
    QT_TRANSLATE_NOOP("cText", "Empfänger/Auftraggeber"),
    QT_TRANSLATE_NOOP("cText", "Auftraggeber bei Eingängen"),
    QT_TRANSLATE_NOOP("cText", "Gegenkonto"),
    QT_TRANSLATE_NOOP("cText", "Bankleitzahl/BIC des Gegenkontos"),
    QT_TRANSLATE_NOOP("cText", "Art des Umsatzes"),
    QT_TRANSLATE_NOOP("cText", "Währung"),
    QT_TRANSLATE_NOOP("cText", "eigenes Konto"),
    QT_TRANSLATE_NOOP("cText", "eigene Bankleitzahl"),
    QT_TRANSLATE_NOOP("cText", "Stand (vorgemerkt, gebucht)"),
    QT_TRANSLATE_NOOP("cText", "Saldo"),
    QT_TRANSLATE_NOOP("cText", "Gebühr (kommt zum Betrag hinzu)"),
    QT_TRANSLATE_NOOP("cText", "Empfänger, wenn keiner genannt ist"),
};

// Where the map keeps each meaning but the first; the second side of tables that list both comes last and has no name.
QList<int*> Places(cColumnMap& map)
{
    return {&map.Date,       &map.Amount,     &map.Debit,      &map.Credit,      &map.Indicator, &map.Purpose[0],
            &map.Purpose[1], &map.Purpose[2], &map.Name,       &map.Payer,       &map.Account,   &map.BankCode,
            &map.Text,       &map.Currency,   &map.OwnAccount, &map.OwnBankCode, &map.Status,    &map.Balance,
            &map.Fee,        &map.OtherName,  &map.Name2,      &map.Account2,    &map.BankCode2};
}

} // namespace

QStringList modColumnMeaning::Names()
{
    QStringList texts;
    for (const char* name : names) {
        texts.append(cText::Tr(name));
    }
    return texts;
}

int modColumnMeaning::Of(const cColumnMap& map, int column)
{
    cColumnMap copy = map;
    const QList<int*> places = Places(copy);
    for (qsizetype i = 0; i + 1 < static_cast<qsizetype>(names.size()); ++i) {
        if (*places.at(i) == column) {
            return static_cast<int>(i) + 1;
        }
    }
    return 0;
}

void modColumnMeaning::Set(cColumnMap& map, int column, int meaning)
{
    const QList<int*> places = Places(map);
    for (int* place : places) {
        if (*place == column) {
            *place = -1;
        }
    }
    if (meaning > 0) {
        *places.at(meaning - 1) = column;
    }
}
