#include "views/main/modStartOption.h"

#include "base/cText.h"

using namespace Qt::Literals::StringLiterals;

QList<modStartOption::cOption> modStartOption::All()
{
    return {
        {Profile, u"ORDNER"_s, cText::Tr("Ordner für Daten und Einstellungen statt der üblichen.")},
    };
}

QString modStartOption::FilesHelp()
{
    return cText::Tr("Datenbank, die geöffnet wird.");
}
