#pragma once

class cColumnSurvey;

// The columns of a table that tell whose account it is, who the other side is and what for.
namespace modTableParties {

// Own account before the other side's, then names, then texts: each takes what is left.
void Complete(cColumnSurvey& survey);

} // namespace modTableParties
