#include "cli/modCliCommands.h"

#include "base/cText.h"

using namespace Qt::Literals::StringLiterals;

cCliOption modCliCommands::Json()
{
    return {u"json"_s, {}, cText::Tr("Ausgabe als JSON")};
}

const QList<cCliCommand>& modCliCommands::All()
{
    static const QList<cCliCommand> commands{
        ImportCommand(),
        DetectCommand(),
        StagedCommand(),
        StatementCommand(),
        ProposeCommand(),
        BookCommand(),
        MatchCommand(),
        AssignCommand(),
        ReleaseCommand(),
        RulesCommand(),
        RulesAddCommand(),
        RulesDeleteCommand(),
        RulesMoveCommand(),
        RulesSwitchCommand(),
        RulesTestCommand(),
        EntriesCommand(),
        SearchCommand(),
        ExportCommand(),
        ReportCommand(),
        ChartCommand(),
        ForecastCommand(),
        AddCommand(),
        ChangeCommand(),
        DeleteCommand(),
        CorrectCommand(),
        CategoriesCommand(),
        CategoriesAddCommand(),
        CategoriesChangeCommand(),
        CategoriesRenameCommand(),
        CategoriesMergeCommand(),
        CategoriesDeleteCommand(),
        AccountsCommand(),
        AccountsAddCommand(),
        AccountsRenameCommand(),
        AccountsDeleteCommand(),
        AccountsStartCommand(),
        AccountsLimitCommand(),
        BalancesCommand(),
        BankSearchCommand(),
        CheckCommand(),
        DemoCommand(),
        BackupCommand(),
        RestoreCommand(),
        PasswordCommand(),
    };
    return commands;
}
