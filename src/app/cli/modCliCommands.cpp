#include "app/cli/modCliCommands.h"

#include "base/cText.h"

using namespace Qt::Literals::StringLiterals;

namespace {

cCliCommand BackupCommand()
{
    return {.Name = u"backup"_s,
            .Arguments = u"[DATEI]"_s,
            .Help = cText::Tr("schreibt eine Datensicherung und prüft sie; ohne Angabe neben die Datenbank"),
            .MaxArguments = 1,
            .Options = {{u"yes"_s, {}, cText::Tr("eine vorhandene Datei ersetzen")}},
            .Run = modCliCommands::Backup};
}

cCliCommand RestoreCommand()
{
    return {.Name = u"restore"_s,
            .Arguments = u"DATEI"_s,
            .Help = cText::Tr("zeigt, was eine Datensicherung enthält, und lädt sie anstelle der Datenbank"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::None,
            .Options = {{u"yes"_s, {}, cText::Tr("wirklich laden; die bisherige Datei bleibt unter anderem Namen")}},
            .Run = modCliCommands::Restore};
}

cCliCommand PasswordCommand()
{
    return {.Name = u"password"_s,
            .Help = cText::Tr("sagt, ob die Datenbank ein Passwort hat, und entfernt ein vergessenes"),
            .Access = eCliAccess::Unlock,
            .Options = {{u"remove"_s, {}, cText::Tr("das Passwort entfernen; die Datei ist nicht verschlüsselt")}},
            .Run = modCliCommands::Password};
}

} // namespace

cCliOption modCliCommands::Json()
{
    return {u"json"_s, {}, cText::Tr("Ausgabe als JSON")};
}

const QList<cCliCommand>& modCliCommands::All()
{
    static const QList<cCliCommand> commands{
        ImportCommand(),
        StagedCommand(),
        ProposeCommand(),
        BookCommand(),
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
