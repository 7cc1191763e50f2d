#include "views/template/modTemplateText.h"

#include "base/cText.h"
#include "base/modCount.h"
#include "model/modWord.h"

QString modTemplateText::Entries(int count)
{
    return modCount::Bookings(count);
}

QString modTemplateText::ShownPath(const QString& path)
{
    if (path.isEmpty()) {
        return cText::Tr("(leere Kategorie)");
    }
    return path == modTemplate::NoPath ? cText::Tr("Keine Angabe") : path;
}

QString modTemplateText::State(const cTemplateItem& item)
{
    if (item.ID == 0) {
        return cText::Tr("nicht angelegt");
    }
    if (modTemplate::IsVisible(item)) {
        return {};
    }
    return modTemplate::IsAccount(item) ? cText::Tr("geschlossen") : cText::Tr("ausgeblendet");
}

bool modTemplateText::IsProtected(const QString& path)
{
    return path.compare(modWord::Startguthaben, Qt::CaseInsensitive) == 0;
}

QString modTemplateText::ProtectedHint()
{
    return cText::Tr(
        "An der Kategorie '{0}' erkennt das Programm die Startguthaben der Konten.\nSie kann deshalb weder "
        "umbenannt noch gelöscht werden.",
        {modWord::Startguthaben});
}
