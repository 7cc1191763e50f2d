#pragma once

#include "store/cDatabase.h"

#include <QString>

#include <exception>

class cUser;

// What a failed operation says.
namespace modFailure {

// Why, in German. A fault of a statement has no other description than the database's own words.
[[nodiscard]] QString Reason(const std::exception& error);

// "ERROR: operation", a line break and the reason.
void Show(cUser& user, const QString& operation, const std::exception& error);

} // namespace modFailure
