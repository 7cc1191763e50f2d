#include "store/modFailure.h"

#include "base/cText.h"
#include "base/cUser.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString Reason(eDatabaseFault fault, const QString& text)
{
    switch (fault) {
    case eDatabaseFault::Busy:
        return cText::Tr("Die Datenbank ist gesperrt: Ein anderes Programm schreibt gerade hinein. Bitte versuchen Sie "
                         "es gleich noch einmal.");
    case eDatabaseFault::Damaged:
        return cText::Tr("Die Datei der Datenbank ist beschädigt. Bitte spielen Sie eine Sicherung zurück.");
    case eDatabaseFault::ReadOnly:
        return cText::Tr("Die Datenbank kann nur gelesen werden. Bitte prüfen Sie die Zugriffsrechte der Datei und "
                         "ihres Ordners und versuchen Sie es noch einmal.");
    case eDatabaseFault::Full:
        return cText::Tr("Der Datenträger ist voll. Bitte schaffen Sie Platz und versuchen Sie es noch einmal.");
    case eDatabaseFault::NoAccess:
        return cText::Tr(
            "Auf die Datei der Datenbank kann nicht zugegriffen werden. Bitte prüfen Sie die Zugriffsrechte "
            "der Datei und ihres Ordners und versuchen Sie es noch einmal.");
    case eDatabaseFault::Device:
        return cText::Tr("Der Datenträger meldet einen Fehler beim Lesen oder Schreiben ({0}).", {text});
    case eDatabaseFault::RolledBack:
        return cText::Tr("Der Vorgang wurde abgebrochen und nichts davon gespeichert, weil vorher ein Fehler auftrat.");
    case eDatabaseFault::Unread:
        return cText::Tr("Es wurde nichts gespeichert, weil vorher etwas nicht gelesen werden konnte und der Vorgang "
                         "davon abhängen kann. Bitte versuchen Sie es noch einmal.");
    case eDatabaseFault::None:
    case eDatabaseFault::Other: break;
    }
    return text;
}

} // namespace

QString modFailure::Reason(const std::exception& error)
{
    const auto* fault = dynamic_cast<const cDatabaseError*>(&error);
    return fault != nullptr ? ::Reason(fault->Fault(), fault->Text()) : QString::fromUtf8(error.what());
}

void modFailure::Show(cUser& user, const QString& operation, const std::exception& error)
{
    // Two names stand in the texts with another word before them, and one says no more than that it failed.
    const bool isGerman = operation == u"GetImportEntries";
    const QString reason = operation == u"DeleteEntryMod" ? QString() : Reason(error);
    user.Show(eTone::Critical, (isGerman ? u"FEHLER: "_s : u"ERROR: "_s) + operation + u'\n' + reason);
}
