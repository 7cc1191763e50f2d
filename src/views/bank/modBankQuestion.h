#pragma once

#include "base/cBankUser.h"

#include <QString>

// Texts around the questions of a bank, the same in windows and in the terminal.
namespace modBankQuestion {

// "chipTAN optisch, Karte 1"; what is empty is left out.
[[nodiscard]] QString Way(const QString& procedure, const QString& medium);
// The way, and in a second line what is asked for; that is the login where nothing is said.
[[nodiscard]] QString WayAndPurpose(const QString& way, const QString& purpose);
// What to do without the bars or the picture.
[[nodiscard]] QString Unreadable();

// "VR-NetKey: 4711", with the name that this bank has for it.
[[nodiscard]] QString Login(const cPinQuestion& question);

// The bank's words in lines, without what a screen would obey instead of showing it; a sentence of ours when the bank
// says nothing.
[[nodiscard]] QString Words(const cTanQuestion& question);
[[nodiscard]] QString Words(const cApproval& approval);

// How long the TAN may be and of what it is made: "Höchstens 6 Ziffern"; empty when that is not known.
[[nodiscard]] QString Form(const cTanQuestion& question);

// Takes out of a typed or pasted text what is no part of a TAN and moves the cursor with it. False when the rest is
// longer than a TAN of this procedure.
[[nodiscard]] bool Fit(const cTanQuestion& question, QString& typed, int& cursor);

} // namespace modBankQuestion
