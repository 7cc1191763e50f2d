#include "base/cText.h"
#include "cli/call/modCliCommands.h"
#include "cli/console/cConsoleUser.h"
#include "cli/help/modCliHelp.h"
#include "cli/help/modRoff.h"
#include "views/main/modStartOption.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString windowProgram = u"kontorelle"_s;
const QString cliProgram = u"kontorelle-cli"_s;

QString Head(const QString& program, const QString& version, const QString& what, const QString& call)
{
    return modRoff::Title(program, version) + modRoff::Section(u"NAME"_s) + modRoff::Text(program + u" - "_s + what)
        + modRoff::Section(cText::Tr("ÜBERSICHT")) + u".B "_s + modRoff::Text(call);
}

QString Files()
{
    return modRoff::Section(cText::Tr("DATEIEN"))
        + modRoff::Item(u"~/.local/share/Veltrino Kontorelle/data.db"_s,
                        cText::Tr("das Haushaltsbuch, wenn kein anderes gewählt ist; daneben die Sicherungen"));
}

QString CommandText(const cCliCommand& command)
{
    QString text = modRoff::Subsection(modCliHelp::Call(command)) + modRoff::Text(command.Help + u'.');
    for (const cCliOption& option : command.Options) {
        text += modRoff::Item(modCliHelp::Option(option), option.Help);
    }
    return text;
}

QString CliPage(const QString& version)
{
    QString text = Head(cliProgram, version, cText::Tr("das Haushaltsbuch auf der Befehlszeile"),
                        cliProgram + u" [--database DATEI] [--profile ORDNER] BEFEHL ..."_s)
        + modRoff::Section(cText::Tr("BESCHREIBUNG"))
        + modRoff::Text(cText::Tr("Liest und schreibt dieselbe Datenbank wie das Fenster: Kontoauszüge einlesen oder "
                                  "abrufen, Umsätze zuordnen und buchen, Einträge ausgeben, Berichte und Diagramme."))
        + modRoff::Section(cText::Tr("BEFEHLE"));
    for (const cCliCommand& command : modCliCommands::All()) {
        text += CommandText(command);
    }
    return text + modRoff::Section(cText::Tr("ALLGEMEINE OPTIONEN"))
        + modRoff::Item(u"--database DATEI"_s, cText::Tr("die Datenbank; ohne Angabe die, die auch das Fenster öffnet"))
        + modRoff::Item(u"--profile ORDNER"_s, cText::Tr("Datenordner und Einstellungen liegen unter diesem Ordner"))
        + modRoff::Item(u"--version"_s, cText::Tr("zeigt die Version"))
        + modRoff::Item(u"--debug-info"_s, cText::Tr("zeigt Versionen, Ordner und Dateigrößen, keine Daten"))
        + modRoff::Section(cText::Tr("ERGEBNIS"))
        + modRoff::Text(cText::Tr("0 erledigt, 1 fehlgeschlagen, 2 falscher Aufruf. Meldungen gehen auf die "
                                  "Fehlerausgabe."))
        + Files() + modRoff::Section(cText::Tr("SIEHE AUCH")) + u".BR kontorelle (1)\n"_s;
}

QString WindowPage(const QString& version)
{
    QString text =
        Head(windowProgram, version, cText::Tr("das Haushaltsbuch"), windowProgram + u" [OPTIONEN] [DATEI...]"_s)
        + modRoff::Section(cText::Tr("BESCHREIBUNG"))
        + modRoff::Text(
            cText::Tr("Einnahmen und Ausgaben eines Haushalts, einmalig, wiederkehrend oder aufgeteilt, mit "
                      "Kontoauszügen aus Dateien oder von der Bank, Berichten und Diagrammen."))
        + modRoff::Item(u"DATEI"_s, modStartOption::FilesHelp()) + modRoff::Section(cText::Tr("OPTIONEN"));
    for (const modStartOption::cOption& option : modStartOption::All()) {
        text += modRoff::Item(modCliHelp::Option({option.Name, option.Value, {}}), option.Help);
    }
    return text + Files() + modRoff::Section(cText::Tr("SIEHE AUCH")) + u".BR kontorelle\\-cli (1)\n"_s;
}

int RunManPage(const cCliContext& context)
{
    const QString program = context.Call.Arguments().constFirst();
    if (program != cliProgram && program != windowProgram) {
        modConsole::Error(cText::Tr("Handbuchseiten gibt es für {0} und {1}.", {windowProgram, cliProgram}));
        return modExit::Usage;
    }
    const QString& version = context.Ports.Version;
    modConsole::Out(program == cliProgram ? CliPage(version) : WindowPage(version));
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::ManPageCommand()
{
    return {.Name = u"manpage"_s,
            .Arguments = u"(kontorelle | kontorelle-cli)"_s,
            .Help = cText::Tr("schreibt die Handbuchseite (man) eines der beiden Programme"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::None,
            .Run = RunManPage};
}
