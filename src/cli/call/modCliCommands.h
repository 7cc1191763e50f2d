#pragma once

#include "cli/call/cCliCall.h"

#include <limits>

class cBookLock;
class cClock;
class cCliBook;
class cCliPaint;
class cCliReader;
class cConsoleUser;
class cHttps;
class cRegistry;
class cShell;
class cStatementListModel;

// The machine as the command line program sees it.
struct cCliPorts
{
    cShell& Shell;
    cRegistry& Registry;
    const cClock& Clock;
    cBookLock& Lock;
    cCliPaint* Paint; // this and the next are null in the program without windows, see modCliMain::NeedsMore
    cHttps* Https;
    QString Version; // of the program
    QString Build;   // the version with the state of the source
};

// What a command works with.
struct cCliContext
{
    const cCliCall& Call;
    const cCliPorts& Ports;
    cConsoleUser& User;
    const cClock& Clock;
    cShell& Shell;
    cCliBook* Book; // the open database; null for a command that needs none
};

// The commands of the command line program. What one does stands beside its description.
namespace modCliCommands {

[[nodiscard]] cCliCommand ImportCommand();
[[nodiscard]] cCliCommand DetectCommand();
[[nodiscard]] cCliCommand FetchCommand();
[[nodiscard]] cCliCommand StagedCommand();
[[nodiscard]] cCliCommand StatementCommand();
[[nodiscard]] cCliCommand StatementPapersCommand();
[[nodiscard]] cCliCommand StatementAddPaperCommand();
[[nodiscard]] cCliCommand StatementRemovePaperCommand();
[[nodiscard]] cCliCommand ReconcileCommand();
[[nodiscard]] cCliCommand ProposeCommand();
[[nodiscard]] cCliCommand BookCommand();
[[nodiscard]] cCliCommand MatchCommand();
[[nodiscard]] cCliCommand AssignCommand();
[[nodiscard]] cCliCommand ReleaseCommand();
[[nodiscard]] cCliCommand RulesCommand();
[[nodiscard]] cCliCommand RulesAddCommand();
[[nodiscard]] cCliCommand RulesDeleteCommand();
[[nodiscard]] cCliCommand RulesMoveCommand();
[[nodiscard]] cCliCommand RulesSwitchCommand();
[[nodiscard]] cCliCommand RulesTestCommand();
[[nodiscard]] cCliCommand LayoutsCommand();
[[nodiscard]] cCliCommand LayoutsExportCommand();
[[nodiscard]] cCliCommand LayoutsImportCommand();
[[nodiscard]] cCliCommand EntriesCommand();
[[nodiscard]] cCliCommand ExportCommand();
[[nodiscard]] cCliCommand ReportCommand();
[[nodiscard]] cCliCommand ChartCommand();
[[nodiscard]] cCliCommand ForecastCommand();
[[nodiscard]] cCliCommand DueCommand();
[[nodiscard]] cCliCommand SearchCommand();
[[nodiscard]] cCliCommand TagsCommand();
[[nodiscard]] cCliCommand AddCommand();
[[nodiscard]] cCliCommand ChangeCommand();
[[nodiscard]] cCliCommand DeleteCommand();
[[nodiscard]] cCliCommand CorrectCommand();
[[nodiscard]] cCliCommand SeriesCommand();
[[nodiscard]] cCliCommand CategoriesCommand();
[[nodiscard]] cCliCommand CategoriesAddCommand();
[[nodiscard]] cCliCommand CategoriesChangeCommand();
[[nodiscard]] cCliCommand CategoriesRenameCommand();
[[nodiscard]] cCliCommand CategoriesMergeCommand();
[[nodiscard]] cCliCommand CategoriesDeleteCommand();
[[nodiscard]] cCliCommand BudgetCommand();
[[nodiscard]] cCliCommand BudgetSetCommand();
[[nodiscard]] cCliCommand BudgetCarryCommand();
[[nodiscard]] cCliCommand BudgetCopyCommand();
[[nodiscard]] cCliCommand AccountsCommand();
[[nodiscard]] cCliCommand AccountsAddCommand();
[[nodiscard]] cCliCommand AccountsRenameCommand();
[[nodiscard]] cCliCommand AccountsDeleteCommand();
[[nodiscard]] cCliCommand AccountsStartCommand();
[[nodiscard]] cCliCommand AccountsLimitCommand();
[[nodiscard]] cCliCommand BalancesCommand();
[[nodiscard]] cCliCommand BankSearchCommand();
[[nodiscard]] cCliCommand CheckCommand();
[[nodiscard]] cCliCommand PeopleCommand();
[[nodiscard]] cCliCommand PeopleAddCommand();
[[nodiscard]] cCliCommand PeopleRenameCommand();
[[nodiscard]] cCliCommand PeopleDeleteCommand();
[[nodiscard]] cCliCommand PeopleSharesCommand();
[[nodiscard]] cCliCommand SettlementCommand();
[[nodiscard]] cCliCommand ReceiptsCommand();
[[nodiscard]] cCliCommand ReceiptsAddCommand();
[[nodiscard]] cCliCommand ReceiptsRemoveCommand();
[[nodiscard]] cCliCommand ReceiptsMissingCommand();
[[nodiscard]] cCliCommand DemoCommand();
[[nodiscard]] cCliCommand BackupCommand();
[[nodiscard]] cCliCommand RestoreCommand();
[[nodiscard]] cCliCommand PasswordCommand();
[[nodiscard]] cCliCommand BanksCommand();
[[nodiscard]] cCliCommand BanksAddCommand();
[[nodiscard]] cCliCommand BanksMethodsCommand();
[[nodiscard]] cCliCommand BanksRemoveCommand();
[[nodiscard]] cCliCommand CompletionCommand();
[[nodiscard]] cCliCommand ManPageCommand();

inline constexpr int Any = std::numeric_limits<int>::max(); // number of arguments

// The option that several commands share.
[[nodiscard]] cCliOption Json();

// The option of all that read statements, and what is said about equal rows without it.
[[nodiscard]] cCliOption TakeEqual();
[[nodiscard]] QString EqualRows(qsizetype count);
// The same about statements in another currency than the book's.
[[nodiscard]] cCliOption TakeCurrency();
[[nodiscard]] QString CurrencyHint();

// The account number that is meant: itself, its other form, or the account of the book that it belongs to. Empty when
// the reader has been told of a fault. A statement is of a number with rows, paper may be there of any other too, and
// of all numbers of an account.
[[nodiscard]] QString StatementNumber(cCliReader& reader, const cStatementListModel& statement, const QString& text);
[[nodiscard]] QStringList PaperNumbers(cCliReader& reader, const cStatementListModel& statement, const QString& text);
// The only one of those that `text` means; the reader is told where there are more.
[[nodiscard]] QString OneNumber(cCliReader& reader, const QStringList& meant, const QString& text);

// The options that say from which open files PIN and TAN are read, and the number one of them has; -1 without.
[[nodiscard]] QList<cCliOption> BankSecrets();
[[nodiscard]] int Fd(const cCliContext& context, const QString& option);

// All of them, with their options and their help.
[[nodiscard]] const QList<cCliCommand>& All();

} // namespace modCliCommands
