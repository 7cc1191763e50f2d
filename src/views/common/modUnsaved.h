#pragma once

#include "base/cUser.h"

// What every form asks before typed contents are lost, always in the same words, so that a yes never loses anything. A
// form in which nothing was typed closes without a question.
namespace modUnsaved {

// Yes: they are to be saved, and the form stays where that is refused. No: they are given up. Cancel: nothing happens.
[[nodiscard]] eAnswer Ask(cUser& user);

} // namespace modUnsaved
