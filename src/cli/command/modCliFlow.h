#pragma once

#include "cli/call/modCliCommands.h"
#include "cli/console/cConsoleUser.h"
#include "views/common/modFileWrite.h"
#include "views/statement/cStatementDesk.h"

#include <QString>
#include <QStringList>

// What commands that write have in common.
namespace modCliFlow {

// The option --yes, and the answers that go with it: with it every question is answered with yes, without it `hint` is
// said after the question.
[[nodiscard]] cCliOption Yes();
[[nodiscard]] cConsoleUser::cAnswers Answers(const cCliContext& context, const QString& hint);

// The same for a category or an account that goes: its entries are moved to `target`, or keep what they have where none
// is given.
[[nodiscard]] cConsoleUser::cAnswers RemovalAnswers(const cCliContext& context, const QString& target);

// Checks the files that these options name: none may be the book.
void CheckTargets(const cCliContext& context, cCliReader& reader, const QStringList& options);
// Writes a file that was made from the book; false after a message.
[[nodiscard]] bool WriteFile(const cCliContext& context, const QString& path, const modFileWrite::cContent& content);
// Says that a file was written.
void SayWritten(const QString& path);

// With --correct entries take over the amount of their row, this time only; without it they keep theirs.
[[nodiscard]] cConsoleUser::cAnswers CorrectionAnswers(const cCliContext& context);
// The same for what is booked because it is safe.
[[nodiscard]] cConsoleUser::cAnswers SafeAnswers();

// Says what came of booking and what stays open; beside --json on the error output. The exit code.
[[nodiscard]] int ReportBooked(const cCliContext& context, const cStatementDesk::cBooked& booked);

// Says what was done, or that nothing was where nothing has been said yet. The exit code.
[[nodiscard]] int Finish(const cCliContext& context, bool isDone);

} // namespace modCliFlow
