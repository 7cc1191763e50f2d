#pragma once

#include <QString>

class cConfiguration;
class cRescue;

// The password in front of the data. It keeps out a curious look, no more: the file itself is not encrypted.
namespace modPassword {

// The text to store for a password: its MD5 digest.
[[nodiscard]] QString ToStored(const QString& password);

// Whether `typed` is the stored password. Files of older versions may hold the password itself. Takes the same time
// wherever the two differ.
[[nodiscard]] bool Matches(const QString& typed, const QString& stored);

// True when the user wants to be asked.
[[nodiscard]] bool IsActive(const cConfiguration& configuration);

// Protects the open book with a password, which is stored in it and so travels with it. False when the book refuses.
[[nodiscard]] bool Set(cConfiguration& configuration, const QString& password);

// The book asks no longer, not even for a password that older versions left in the registry.
[[nodiscard]] bool Remove(cConfiguration& configuration);

// Lets the user in: asks when the switch is on. False when the user gives up, and when nobody knows whether it is on:
// of settings that cannot be read the user has been told.
[[nodiscard]] bool Admit(const cConfiguration& configuration, cRescue& rescue);

} // namespace modPassword
