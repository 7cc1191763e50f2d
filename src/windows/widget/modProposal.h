#pragma once

class cEntrySuggestions;
class cPickList;
class QLineEdit;

// Proposals for text fields.
namespace modProposal {

// Offers earlier descriptions below the field, each with the category of its latest use. The list belongs to the field.
cPickList* AddDescriptions(QLineEdit& edit, cEntrySuggestions& suggestions);

} // namespace modProposal
