#include "app/cli/modCliCommands.h"

#include "base/cText.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Any = std::numeric_limits<int>::max();

cCliOption Json()
{
    return {u"json"_s, {}, cText::Tr("Ausgabe als JSON")};
}

cCliCommand ImportCommand()
{
    return {.Name = u"import"_s,
            .Arguments = u"DATEI..."_s,
            .Help = cText::Tr("liest Kontoauszüge ein; die Umsätze warten dann auf das Buchen"),
            .MinArguments = 1,
            .MaxArguments = Any,
            .Access = eCliAccess::Write,
            .Options = {{u"account"_s, u"NUMMER"_s, cText::Tr("eigene Kontonummer für Auszüge, die keine nennen")},
                        {u"book-account"_s, u"NAME"_s, cText::Tr("Konto im Haushaltsbuch für neue Kontonummern")},
                        {u"keep-duplicates"_s, {}, cText::Tr("auch Umsätze übernehmen, die schon vorhanden sind")},
                        Json()},
            .Run = modCliCommands::Import};
}

cCliCommand StagedCommand()
{
    return {.Name = u"staged"_s,
            .Help = cText::Tr("zeigt die eingelesenen Umsätze"),
            .Options = {{u"open"_s, {}, cText::Tr("nur die noch nicht gebuchten")}, Json()},
            .Run = modCliCommands::Staged};
}

cCliCommand ProposeCommand()
{
    return {.Name = u"propose"_s,
            .Help = cText::Tr("zeigt zu jedem offenen Umsatz, wie er gebucht würde, und warum"),
            .Options = {Json()},
            .Run = modCliCommands::Propose};
}

cCliCommand BookCommand()
{
    return {.Name = u"book"_s,
            .Arguments = u"(--all | --id N...)"_s,
            .Help = cText::Tr("bucht offene Umsätze so, wie \"propose\" es zeigt"),
            .MaxArguments = Any,
            .Access = eCliAccess::Write,
            .Options = {{u"all"_s, {}, cText::Tr("alle offenen Umsätze")},
                        {u"id"_s, u"N..."_s, cText::Tr("die Umsätze mit diesen Nummern (Spalte ID)")},
                        {u"dry-run"_s, {}, cText::Tr("nur zeigen, nichts ändern")}},
            .Run = modCliCommands::Book};
}

cCliCommand EntriesCommand()
{
    return {.Name = u"entries"_s,
            .Help = cText::Tr("zeigt die Einträge eines Zeitraums, wiederkehrende mit jedem Vorkommen; ohne Angabe das "
                              "aktuelle Jahr"),
            .Options = {{u"period"_s, u"NAME"_s,
                         cText::Tr("Zeitraum, zum Beispiel \"Letzter Monat\" oder \"Alle Buchungen\"")},
                        {u"from"_s, u"DATUM"_s, cText::Tr("erster Tag, als 2026-01-31 oder 31.01.2026")},
                        {u"to"_s, u"DATUM"_s, cText::Tr("letzter Tag")},
                        {u"account"_s, u"NAME"_s, cText::Tr("nur dieses Konto")},
                        {u"kind"_s, u"ART"_s, cText::Tr("Einnahme, Ausgabe oder Umbuchung")},
                        {u"category"_s, u"PFAD"_s,
                         cText::Tr("diese Kategorie und ihre Unterkategorien: \"Wohnung\", \"Wohnung; Miete\"")},
                        {u"filter"_s, u"TEXT"_s, cText::Tr("nur Einträge, die alle diese Wörter enthalten")},
                        Json(),
                        {u"csv"_s, {}, cText::Tr("Ausgabe als CSV-Datei für Tabellenprogramme")}},
            .Run = modCliCommands::Entries};
}

cCliCommand BalancesCommand()
{
    return {.Name = u"balances"_s,
            .Help = cText::Tr("zeigt die Kontostände von heute"),
            .Options = {Json()},
            .Run = modCliCommands::Balances};
}

cCliCommand CheckCommand()
{
    return {.Name = u"check"_s,
            .Help = cText::Tr("prüft die Datenbank und sagt, was beim Öffnen ergänzt wurde"),
            .Access = eCliAccess::Write,
            .Run = modCliCommands::Check};
}

cCliCommand DemoCommand()
{
    return {.Name = u"demo"_s,
            .Arguments = u"DATEI"_s,
            .Help = cText::Tr("schreibt den Beispielhaushalt in eine neue Datenbank"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::None,
            .Options = {{u"entries"_s, u"ANZAHL"_s, cText::Tr("größeres Buch mit so vielen Einträgen")}},
            .Run = modCliCommands::Demo};
}

} // namespace

const QList<cCliCommand>& modCliCommands::All()
{
    static const QList<cCliCommand> commands{ImportCommand(),  StagedCommand(),   ProposeCommand(), BookCommand(),
                                             EntriesCommand(), BalancesCommand(), CheckCommand(),   DemoCommand()};
    return commands;
}
