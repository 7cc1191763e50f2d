#include "views/main/modStartOption.h"

#include "base/cText.h"

using namespace Qt::Literals::StringLiterals;

QList<modStartOption::cOption> modStartOption::All()
{
    return {
        {Profile, u"ORDNER"_s, cText::Tr("Ordner für Daten und Einstellungen statt der üblichen.")},
        {Import, {}, cText::Tr("lässt Kontoauszüge zum Einlesen auswählen, auch im laufenden Programm.")},
        {NewEntry, {}, cText::Tr("öffnet einen neuen Eintrag, auch im laufenden Programm.")},
        {DebugInfo, {}, cText::Tr("zeigt Versionen, Ordner und Dateigrößen, keine Daten, und endet.")},
    };
}

QString modStartOption::FilesHelp()
{
    return cText::Tr("Haushaltsbuch, das geöffnet wird, oder Kontoauszüge, die eingelesen werden.");
}
