#include "base/cText.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/cCliEntryForm.h"

using namespace Qt::Literals::StringLiterals;

namespace {

int RunAdd(const cCliContext& context)
{
    return cCliEntryForm(context).Add();
}

} // namespace

cCliCommand modCliCommands::AddCommand()
{
    return {.Name = u"add"_s,
            .Help =
                cText::Tr("legt einen Eintrag an; was fehlt, kommt von der Kategorie und von früheren Einträgen, der "
                          "Tag ist sonst heute"),
            .Access = eCliAccess::Write,
            .Options = cCliEntryForm::Options(),
            .Run = RunAdd};
}
