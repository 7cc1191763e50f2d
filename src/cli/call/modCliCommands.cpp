#include "cli/call/modCliCommands.h"

#include "base/cText.h"

using namespace Qt::Literals::StringLiterals;

cCliOption modCliCommands::Json()
{
    return {u"json"_s, {}, cText::Tr("Ausgabe als JSON")};
}

QList<cCliOption> modCliCommands::BankSecrets()
{
    return {{u"pin-fd"_s, u"N"_s,
             cText::Tr("liest die PIN als Zeile aus der offenen Datei mit dieser Nummer; sonst fragt das Terminal")},
            {u"tan-fd"_s, u"N"_s, cText::Tr("ebenso TANs, eine je Zeile")}};
}

int modCliCommands::Fd(const cCliContext& context, const QString& option)
{
    bool isNumber = false;
    const int number = context.Call.Value(option).toInt(&isNumber);
    return isNumber ? number : -1;
}

// A table, a line for each. NOLINTNEXTLINE(readability-function-size)
const QList<cCliCommand>& modCliCommands::All()
{
    static const QList<cCliCommand> commands{
        ImportCommand(),
        DetectCommand(),
        LayoutsCommand(),
        LayoutsExportCommand(),
        LayoutsImportCommand(),
        FetchCommand(),
        StagedCommand(),
        StatementCommand(),
        StatementPapersCommand(),
        StatementAddPaperCommand(),
        StatementRemovePaperCommand(),
        ReconcileCommand(),
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
        TagsCommand(),
        ExportCommand(),
        ReportCommand(),
        ChartCommand(),
        ForecastCommand(),
        DueCommand(),
        AddCommand(),
        ChangeCommand(),
        DeleteCommand(),
        CorrectCommand(),
        SeriesCommand(),
        CategoriesCommand(),
        CategoriesAddCommand(),
        CategoriesChangeCommand(),
        CategoriesRenameCommand(),
        CategoriesMergeCommand(),
        CategoriesDeleteCommand(),
        BudgetCommand(),
        BudgetSetCommand(),
        BudgetCarryCommand(),
        BudgetCopyCommand(),
        PeopleCommand(),
        PeopleAddCommand(),
        PeopleRenameCommand(),
        PeopleDeleteCommand(),
        PeopleSharesCommand(),
        SettlementCommand(),
        AccountsCommand(),
        AccountsAddCommand(),
        AccountsRenameCommand(),
        AccountsDeleteCommand(),
        AccountsStartCommand(),
        AccountsLimitCommand(),
        BalancesCommand(),
        BankSearchCommand(),
        BanksCommand(),
        BanksAddCommand(),
        BanksMethodsCommand(),
        BanksRemoveCommand(),
        ReceiptsCommand(),
        ReceiptsAddCommand(),
        ReceiptsRemoveCommand(),
        ReceiptsMissingCommand(),
        CheckCommand(),
        DemoCommand(),
        BackupCommand(),
        RestoreCommand(),
        PasswordCommand(),
        CompletionCommand(),
        ManPageCommand(),
    };
    return commands;
}
