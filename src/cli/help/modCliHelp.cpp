#include "cli/help/modCliHelp.h"

#include "base/cText.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString Column(const QString& text, int width)
{
    return u"  "_s + text.leftJustified(width) + u"  "_s;
}

} // namespace

QString modCliHelp::Option(const cCliOption& option)
{
    return u"--"_s + option.Name + (option.Value.isEmpty() ? QString() : u' ' + option.Value);
}

QString modCliHelp::Call(const cCliCommand& command)
{
    return command.Arguments.isEmpty() ? command.Name : command.Name + u' ' + command.Arguments;
}

QString modCliHelp::All(const QList<cCliCommand>& commands)
{
    QString text = cText::Tr("Kontorelle auf der Befehlszeile\n\n"
                             "Aufruf: kontorelle-cli [--database DATEI] [--profile ORDNER] BEFEHL ...\n\n"
                             "Befehle:\n");
    qsizetype longest = 10;
    for (const cCliCommand& command : commands) {
        longest = qMax(longest, command.Name.size());
    }
    const int width = static_cast<int>(longest);
    for (const cCliCommand& command : commands) {
        text += Column(command.Name, width) + command.Help + u'\n';
    }
    text +=
        Column(u"hilfe"_s, width) + cText::Tr("zeigt diese Hilfe; \"hilfe BEFEHL\" zeigt die eines Befehls") + u'\n';
    return text
        + cText::Tr(
               "\nAllgemein:\n"
               "  --database DATEI   die Datenbank; ohne Angabe die, die auch das Fenster öffnet\n"
               "  --profile ORDNER   Datenordner und Einstellungen liegen unter diesem Ordner\n"
               "  --version          zeigt die Version\n"
               "  --debug-info       zeigt Versionen, Ordner und Dateigrößen, keine Daten\n\n"
               "Ergebnis: 0 erledigt, 1 fehlgeschlagen, 2 falscher Aufruf. Meldungen gehen auf die Fehlerausgabe.\n");
}

QString modCliHelp::Of(const cCliCommand& command)
{
    QString text = cText::Tr("Aufruf: kontorelle-cli [--database DATEI] [--profile ORDNER] {0}", {Call(command)});
    text += (command.Options.isEmpty() ? QString() : cText::Tr(" [OPTIONEN]")) + u"\n\n"_s + command.Help + u".\n"_s;
    if (!command.Options.isEmpty()) {
        text += u'\n' + cText::Tr("Optionen:") + u'\n';
    }
    for (const cCliOption& option : command.Options) {
        text += Column(Option(option), 24) + option.Help + u'\n';
    }
    return text;
}
