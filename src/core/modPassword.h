#pragma once

#include <QString>

class cConfiguration;
class cRescue;

// The password in front of the data. It keeps out a curious look, no more: the file itself is not encrypted.
namespace modPassword {

// The text to store for a password: its MD5 digest.
[[nodiscard]] QString ToStored(const QString& password);

// Whether `typed` is the stored password. Files of older versions may hold the password itself.
[[nodiscard]] bool Matches(const QString& typed, const QString& stored);

// True when the user wants to be asked.
[[nodiscard]] bool IsActive(const cConfiguration& configuration);

// Lets the user in: asks when the switch is on. False when the user gives up.
[[nodiscard]] bool Admit(const cConfiguration& configuration, cRescue& rescue);

} // namespace modPassword
