#include "app/cli/modCliCommands.h"

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
        ProposeCommand(),
        BookCommand(),
        MatchCommand(),
        AssignCommand(),
        ReleaseCommand(),
        EntriesCommand(),
        SearchCommand(),
        ExportCommand(),
        AddCommand(),
        ChangeCommand(),
        DeleteCommand(),
        CorrectCommand(),
        CategoriesCommand(),
        CategoriesAddCommand(),
        CategoriesRenameCommand(),
        CategoriesMergeCommand(),
        CategoriesDeleteCommand(),
        AccountsCommand(),
        AccountsAddCommand(),
        AccountsRenameCommand(),
        AccountsDeleteCommand(),
        AccountsStartCommand(),
        BalancesCommand(),
        CheckCommand(),
        DemoCommand(),
        BackupCommand(),
        RestoreCommand(),
        PasswordCommand(),
    };
    return commands;
}
