#include "views/common/modUnread.h"

#include "base/cText.h"
#include "store/cDataAccess.h"

using namespace Qt::Literals::StringLiterals;

bool modUnread::IsMissing(const cDataAccess& data, qsizetype rows)
{
    return rows == 0 && !data.IsWhole();
}

QString modUnread::Title()
{
    return cText::Tr("Das Buch konnte nicht gelesen werden");
}

QString modUnread::Hint()
{
    return cText::Tr("Was hier stehen müsste, ist nicht bekannt. Ist die Datei beschädigt, laden Sie mit „Datei“, "
                     "„Datensicherung laden“ eine Sicherung.");
}

QString modUnread::Sum()
{
    return u"–"_s;
}
