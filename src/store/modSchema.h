#pragma once

#include "store/cDatabase.h"

#include <QString>
#include <QStringList>

class cShell;
class cUser;

// The tables of a database: where they come from and how an older file gets those of today.
namespace modSchema {

// The default database file. Where it is missing it is copied from the template; what goes wrong is shown, and the path
// is returned all the same.
[[nodiscard]] QString GetDefaultDatabase(cShell& shell, cUser& user);

// The same path without making the file.
[[nodiscard]] QString DefaultDatabasePath(cShell& shell);

// Makes a new book at a path where no file is. What went wrong; empty when it is there.
[[nodiscard]] QString FromTemplate(cShell& shell, const QString& path);

// That no book can be made at the path.
[[nodiscard]] QString CannotCreate(const QString& path);

// Opens a file and looks whether it is a usable database. None when it is, and the connection stays open; any other
// fault leaves the connection closed. `Damaged` means that the content is no database of this program.
[[nodiscard]] eDatabaseFault OpenValid(cDatabase& database, const QString& path, eOpenMode mode);

// Brings the open database to the tables of today. Runs on every opening and changes nothing on a current file; what a
// statement has against it is ignored. Returns what was added, in words for the user.
QStringList Upgrade(cDatabase& database);

// Tables and columns that the program needs and the database does not have, in words for the user.
[[nodiscard]] QStringList Missing(cDatabase& database);

// The same for what no upgrade brings back. A file that lacks such a part is incomplete, however old it is.
[[nodiscard]] QStringList Lost(cDatabase& database);

// Lets queries see a database that must not be written as it will be after its upgrade: temporary tables take the place
// of what the upgrade would add or change, and of what is lost. The connection refuses all writes from then on. None
// when that is done.
[[nodiscard]] eDatabaseFault StandIn(cDatabase& database);

// True when this version of the program, its window or its command line, has opened the database for writing before.
[[nodiscard]] bool WasOpenedBy(cDatabase& database, const QString& version);

// Puts exactly one separator between a folder and a name.
[[nodiscard]] QString JoinPath(const QString& folder, const QString& name);

} // namespace modSchema
