#include "views/modCommand.h"

#include "base/cText.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace modCommand;

namespace {

constexpr std::array<cCommand, 13> commands{{
    {ImportStatement, QT_TRANSLATE_NOOP("cText", "Datei"), QT_TRANSLATE_NOOP("cText", "Kontoauszug importieren"), "K",
     "Ctrl+I", "import", "", true, true, QT_TRANSLATE_NOOP("cText", "Liest Kontoauszüge aus Dateien Ihrer Bank ein.")},
    {Quit, QT_TRANSLATE_NOOP("cText", "Datei"), QT_TRANSLATE_NOOP("cText", "Beenden"), "B", "Alt+Q", "", "", false,
     false, QT_TRANSLATE_NOOP("cText", "Beendet das Programm.")},
    {NewEntry, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "Neuer Eintrag"), "N", "Ctrl+N|F5",
     "neu", "", true, true, QT_TRANSLATE_NOOP("cText", "Erfasst eine Einnahme, Ausgabe oder Umbuchung.")},
    {EditEntry, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "Eintrag bearbeiten"), "b",
     "Ctrl+E", "bearbeiten", "", true, false, QT_TRANSLATE_NOOP("cText", "Öffnet den ausgewählten Eintrag.")},
    {DeleteEntry, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "Eintrag löschen"), "l", "Del",
     "loeschen", "", true, true, QT_TRANSLATE_NOOP("cText", "Löscht die ausgewählten Einträge nach einer Rückfrage.")},
    {ViewAccountValues, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "Kontostand (aller Konten)"),
     "K", "", "", "ViewAccountValueAll", false, false,
     QT_TRANSLATE_NOOP("cText", "Zeigt die Kontostände bis heute statt nur des gewählten Zeitraums.")},
    {ViewSingle, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "Einmalige-Buchungen"), "E", "", "",
     "ViewSingleBooking", false, false, QT_TRANSLATE_NOOP("cText", "Zeigt Einträge, die nur einmal vorkommen.")},
    {ViewFix, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "Fixe-Buchungen"), "F", "", "",
     "ViewFixBooking", false, false, QT_TRANSLATE_NOOP("cText", "Zeigt Einträge, die sich wiederholen.")},
    {ViewFuture, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "Zukünftige-Buchung"), "Z", "",
     "zukunft", "ViewFutureBooking", true, false,
     QT_TRANSLATE_NOOP("cText", "Zeigt auch Einträge nach dem heutigen Tag.")},
    {ViewStart, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "Startguthaben"), "S", "", "",
     "ViewStartBooking", false, false, QT_TRANSLATE_NOOP("cText", "Zeigt auch die Startguthaben der Konten.")},
    {ChooseColumns, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "Spalten modifizieren"), "p", "",
     "spalten", "", false, false, QT_TRANSLATE_NOOP("cText", "Wählt, welche Spalten die Liste zeigt.")},
    {ResetView, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "Einstellungen zurücksetzen"), "r",
     "", "", "", false, false,
     QT_TRANSLATE_NOOP("cText", "Stellt Ansicht, Spalten und Fenstergröße auf den Anfang zurück.")},
    {Calculator, QT_TRANSLATE_NOOP("cText", "Extras"), QT_TRANSLATE_NOOP("cText", "Taschenrechner"), "T", "", "rechner",
     "", false, false, QT_TRANSLATE_NOOP("cText", "Startet den Taschenrechner des Systems.")},
}};

} // namespace

std::span<const cCommand> modCommand::All()
{
    return commands;
}

const cCommand* modCommand::Find(int id)
{
    const auto* const found =
        std::find_if(commands.begin(), commands.end(), [id](const cCommand& command) { return command.Id == id; });
    return found == commands.end() ? nullptr : found;
}

QString modCommand::MenuText(const cCommand& command)
{
    QString text = cText::Tr(command.Caption);
    const qsizetype at = text.indexOf(QString::fromUtf8(command.Mnemonic));
    return at < 0 ? text : text.insert(at, u'&');
}

QStringList modCommand::Keys(const cCommand& command)
{
    return QString::fromUtf8(command.Keys).split(u'|', Qt::SkipEmptyParts);
}
