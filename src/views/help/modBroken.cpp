#include "views/help/modBroken.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"

using namespace Qt::Literals::StringLiterals;

modBroken::eWish modBroken::Ask(cUser& user, const cRun& run)
{
    const QString when = modDate::ToText(run.Last.date()) + run.Last.toString(u" HH:mm"_s);
    const QString what = run.IsCrash
        ? cText::Tr("Kontorelle ist beim letzten Mal abgestürzt ({0}).", {when})
        : cText::Tr("Kontorelle wurde beim letzten Mal nicht ordentlich beendet ({0}): Das Programm wurde abgebrochen, "
                    "oder der Rechner ging aus.",
                    {when});
    // Enter goes on, because what was saved is there in nearly all cases.
    QStringList options{cText::Tr("&Weiterarbeiten"), cText::Tr("&Fehlerprotokoll ansehen")};
    if (run.Copy.isValid()) {
        options.append(cText::Tr("Sicherung vom {0} &laden…", {modDate::ToText(run.Copy)}));
    }
    const int chosen =
        user.Decide({.Text = what + u"\n\n"_s
                         + cText::Tr("Was gespeichert war, ist da. Eine Eingabe, die noch offen war, kann fehlen."),
                     .Title = cText::Tr("Nicht ordentlich beendet"),
                     .Options = options});
    return chosen == 1 ? eWish::Log : chosen == 2 ? eWish::Backup : eWish::Nothing;
}
