#pragma once

#include "base/cBankUser.h"
#include "model/bank/TanVerfahrenItem.h"

#include <QString>

struct cTanChallenge;

// What a bank asks a TAN for, made ready for the person who is to type it.
namespace modChallenge {

// The bank's words as they are shown: lines instead of "<br>", "<p>" and "<li>", no marks of bold, italic or underlined
// type, and without the code for a TAN generator that some banks put in front of them.
[[nodiscard]] QString Cleaned(const QString& challenge);

// Everything that the question for a TAN shows. Where the picture or the code of the bars cannot be read, a question
// in words is left.
[[nodiscard]] cTanQuestion Question(const cTanChallenge& challenge, const TanVerfahrenItem& method, const QString& bank,
                                    const QString& medium);

} // namespace modChallenge
