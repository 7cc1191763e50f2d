#pragma once

#include "base/cSecret.h"

class QLineEdit;

// Fields into which a PIN or a TAN is typed.
namespace modSecretField {

// Keeps what is typed out of the dictionaries of input methods.
void Prepare(QLineEdit& field);

// Empties the field; what it held is overwritten.
void Clear(QLineEdit& field);

// The text of the field, which is empty afterwards.
[[nodiscard]] cSecret Take(QLineEdit& field);

} // namespace modSecretField
