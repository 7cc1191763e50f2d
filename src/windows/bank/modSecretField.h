#pragma once

#include "base/cSecret.h"

class QLineEdit;

// Fields into which a PIN or a TAN is typed.
namespace modSecretField {

// Keeps what the field holds out of its memory of earlier texts and of the input method's dictionary.
void Prepare(QLineEdit& field);

// Empties the field; what it held is overwritten.
void Clear(QLineEdit& field);

// The text of the field, which is empty afterwards.
[[nodiscard]] cSecret Take(QLineEdit& field);

} // namespace modSecretField
