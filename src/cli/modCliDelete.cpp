#include "base/cText.h"
#include "cli/cCliBook.h"
#include "cli/cCliReader.h"
#include "cli/modCliCommands.h"
#include "cli/modCliFlow.h"
#include "views/entry/cEntryDelete.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

int Run(const cCliContext& context)
{
    cCliReader reader(context);
    QList<int> ids;
    const QList<int> named = reader.Ids(context.Call.Arguments());
    for (const int id : named) {
        if (!ids.contains(id)) {
            ids.append(id);
        }
    }
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cCliBook& book = *context.Book;
    cEntryDelete remover(book.Data, context.User, book.Format());
    const bool hasParts = std::any_of(ids.begin(), ids.end(), [&](int id) { return remover.CountParts(id) > 1; });
    cConsoleUser::cAnswers answers = modCliFlow::Answers(
        context,
        hasParts ? cText::Tr("Mit --yes wird gelöscht, mit --yes --all-parts auch die anderen Teile.")
                 : cText::Tr("Mit --yes wird gelöscht."));
    if (answers.Answer) {
        answers.Decision = context.Call.Has(u"all-parts"_s) ? 1 : 0;
    }
    context.User.Prepare(answers);
    return modCliFlow::Finish(context, remover.Delete(ids));
}

} // namespace

cCliCommand modCliCommands::DeleteCommand()
{
    return {.Name = u"delete"_s,
            .Arguments = u"ID..."_s,
            .Help = cText::Tr("sagt, was gelöscht würde, und löscht es mit --yes; Serien ganz, mit ihren Korrekturen"),
            .MinArguments = 1,
            .MaxArguments = Any,
            .Access = eCliAccess::Write,
            .Options = {{u"yes"_s, {}, cText::Tr("wirklich löschen")},
                        {u"all-parts"_s, {}, cText::Tr("alle Teile einer aufgeteilten Buchung, nicht nur diesen")}},
            .Run = Run};
}
