#include "base/cText.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "views/entry/cEntryDelete.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// The occurrence that --only or --from names; an invalid day when neither does.
QDate Occurrence(const cCliContext& context, const QList<int>& ids, cCliReader& reader)
{
    const cCliCall& call = context.Call;
    if (!call.Has(u"only"_s) && !call.Has(u"from"_s)) {
        return {};
    }
    if (call.Has(u"only"_s) && call.Has(u"from"_s)) {
        reader.Misused(cText::Tr("Bitte entweder --only oder --from angeben."));
    } else if (ids.size() != 1) {
        reader.Misused(cText::Tr("Mit --only und --from nennen Sie bitte nur eine Serie."));
    }
    return call.Has(u"only"_s) ? reader.Occurrence(ids.constFirst(), call.Value(u"only"_s), eOccurrence::Exact)
                               : reader.Occurrence(ids.constFirst(), call.Value(u"from"_s), eOccurrence::From);
}

int RunDelete(const cCliContext& context)
{
    cCliReader reader(context);
    QList<int> ids;
    const QList<int> named = reader.Ids(context.Call.Arguments());
    for (const int id : named) {
        if (!ids.contains(id)) {
            ids.append(id);
        }
    }
    const QDate day = Occurrence(context, ids, reader);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    cCliBook& book = *context.Book;
    cEntryDelete remover(book.Tools);
    const bool hasParts = std::any_of(ids.begin(), ids.end(), [&](int id) { return remover.CountParts(id) > 1; });
    cConsoleUser::cAnswers answers = modCliFlow::Answers(
        context,
        hasParts ? cText::Tr("Mit --yes wird gelöscht, mit --yes --all-parts auch die anderen Teile.")
                 : cText::Tr("Mit --yes wird gelöscht."));
    if (answers.Answer) {
        answers.Decision = context.Call.Has(u"all-parts"_s) ? 1 : 0;
    }
    context.User.Prepare(answers);
    const eSeriesPart part = context.Call.Has(u"only"_s) ? eSeriesPart::OnlyThis : eSeriesPart::FromHere;
    return modCliFlow::Finish(context,
                              day.isValid() ? remover.Delete({ids.constFirst(), day}, part) : remover.Delete(ids));
}

} // namespace

cCliCommand modCliCommands::DeleteCommand()
{
    return {.Name = u"delete"_s,
            .Arguments = u"ID..."_s,
            .Help = cText::Tr("sagt, was gelöscht würde, und löscht es mit --yes; von einer Serie alles mit ihren "
                              "Korrekturen, ein Vorkommen oder alles ab einem Tag"),
            .MinArguments = 1,
            .MaxArguments = Any,
            .Access = eCliAccess::Write,
            .Options = {{u"only"_s, u"DATUM"_s, cText::Tr("nur das Vorkommen an diesem Tag: sein Betrag wird null")},
                        {u"from"_s, u"DATUM"_s, cText::Tr("die Serie vom ersten Vorkommen an, das nicht davor liegt")},
                        {u"yes"_s, {}, cText::Tr("wirklich löschen")},
                        {u"all-parts"_s, {}, cText::Tr("alle Teile einer aufgeteilten Buchung, nicht nur diesen")}},
            .Run = RunDelete};
}
