#include "windows/widget/modProposal.h"

#include "model/modTag.h"
#include "views/entry/cEntrySuggestions.h"
#include "views/list/modTagTyping.h"
#include "windows/widget/cPickList.h"

#include <QLineEdit>

#include <algorithm>
#include <utility>

namespace {

constexpr qsizetype mostTags = 12;

QList<cPickRow> TagRows(const QStringList& known, const QLineEdit& edit)
{
    const QList<modTagTyping::cOffer> offers = modTagTyping::Offers(known, edit.text(), edit.cursorPosition());
    QList<cPickRow> rows;
    for (const modTagTyping::cOffer& offer : offers.first(std::min(offers.size(), mostTags))) {
        rows.append({.Text = offer.Tag, .Note = {}, .Line = offer.Line, .Cursor = offer.Cursor});
    }
    // Behind "#" alone nothing is meant yet: Enter there belongs to the window.
    const bool hasLetters = modTag::Typed(edit.text(), edit.cursorPosition()).Length > 1;
    if (!rows.isEmpty()) {
        rows.first().IsMeant = hasLetters;
    }
    return rows;
}

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
    return new cPickList(edit, edit, cPickList::eChosen::NoRow, [&edit, &suggestions](const QString& typed) {
        if (modTag::Typed(edit.text(), edit.cursorPosition()).Length > 0) {
            return TagRows(modTagTyping::Known(suggestions.Descriptions()), edit);
        }
        return Rows(suggestions, typed);
    });
}

cPickList* modProposal::AddTags(QLineEdit& edit, std::function<QStringList()> known)
{
    return new cPickList(edit, edit, cPickList::eChosen::NoRow, [&edit, known = std::move(known)](const QString&) {
        const bool isTag = modTag::Typed(edit.text(), edit.cursorPosition()).Length > 0;
        return isTag ? TagRows(known(), edit) : QList<cPickRow>();
    });
}
