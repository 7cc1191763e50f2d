#include "cli/argument/modCliTableChoice.h"

#include "base/cText.h"
#include "cli/argument/cCliReader.h"
#include "views/statement/modTableOption.h"

using namespace Qt::Literals::StringLiterals;

QList<cCliOption> modCliTableChoice::Options()
{
    return {
        {u"charset"_s, u"NAME"_s,
         cText::Tr("Zeichensatz, wenn Umlaute falsch erscheinen: {0}", {modTableOption::CharsetNames().join(u", "_s)})},
        {u"profile-name"_s, u"NAME"_s,
         cText::Tr("bekannter Aufbau einer CSV-Datei, zum Beispiel \"DKB\"; \"-\" für keinen")},
        {u"map"_s, u"SPALTEN"_s,
         cText::Tr("alle Spalten einer CSV-Datei mit ihrer Nummer, ab 0 gezählt: \"datum=0,betrag=5,zweck=3\"; "
                   "möglich sind {0}",
                   {modTableOption::ColumnNames().join(u", "_s)})},
        {u"sign"_s, u"WIE"_s,
         cText::Tr("wenn eine Tabelle nicht sagt, was Ausgaben sind: {0}; \"import\" merkt es sich für dieselben "
                   "Spaltennamen und dasselbe Konto",
                   {modTableOption::SignNames().join(u", "_s)})}};
}

cFileWish modCliTableChoice::Read(const cCliCall& call, cCliReader& reader)
{
    cFileWish wish;
    wish.Account = call.Value(u"account"_s);
    wish.Charset = call.Value(u"charset"_s);
    wish.Profile = call.Value(u"profile-name"_s);
    wish.Columns = call.Value(u"map"_s);
    wish.Sign = call.Value(u"sign"_s);
    if (const QString fault = modTableOption::Fault(wish); !fault.isEmpty()) {
        reader.Misused(fault);
    }
    return wish;
}
