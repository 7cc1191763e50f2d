#include "windows/widget/modProposal.h"

#include "views/entry/cEntrySuggestions.h"
#include "windows/widget/cPickList.h"

#include <QLineEdit>

namespace {

QList<cPickRow> Rows(cEntrySuggestions& suggestions, const QString& typed)
{
    const QStringList descriptions = suggestions.Descriptions(typed, 12);
    QList<cPickRow> rows;
    for (const QString& description : descriptions) {
        rows.append({description, suggestions.LatestUse(description).Category});
    }
    return rows;
}

} // namespace

cPickList* modProposal::AddDescriptions(QLineEdit& edit, cEntrySuggestions& suggestions)
{
    return new cPickList(edit, edit, cPickList::eChosen::NoRow,
                         [&suggestions](const QString& typed) { return Rows(suggestions, typed); });
}
