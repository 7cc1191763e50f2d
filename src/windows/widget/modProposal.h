#pragma once

#include <QStringList>

#include <functional>

class cEntrySuggestions;
class cPickList;
class QLineEdit;

// Proposals for text fields.
namespace modProposal {

// Offers earlier descriptions below the field, each with the category of its latest use, and behind a "#" the tags that
// they hold. The list belongs to the field.
cPickList* AddDescriptions(QLineEdit& edit, cEntrySuggestions& suggestions);

// Offers tags behind a "#" in the field, out of those that `known` gives.
cPickList* AddTags(QLineEdit& edit, std::function<QStringList()> known);

} // namespace modProposal
