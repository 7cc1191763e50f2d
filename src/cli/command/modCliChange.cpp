#include "base/cText.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/cCliEntryForm.h"
#include "cli/command/modCliCorrect.h"
#include "cli/command/modCliFlow.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList Changes(const cCliCall& call)
{
    QStringList names;
    const QList<cCliOption> options = cCliEntryForm::Options();
    for (const cCliOption& option : options) {
        if (!option.Value.isEmpty() && call.Has(option.Name)) {
            names.append(option.Name);
        }
    }
    return names;
}

// Empty when the options fit together.
QString Misuse(const cCliCall& call)
{
    const QStringList changes = Changes(call);
    if (changes.isEmpty()) {
        return cText::Tr("Bitte nennen Sie, was sich ändern soll, zum Beispiel --amount.");
    }
    if (call.Has(u"only"_s) && call.Has(u"from"_s)) {
        return cText::Tr("Bitte entweder --only oder --from angeben.");
    }
    const QStringList amount{u"amount"_s};
    return call.Has(u"only"_s) && changes != amount ? cText::Tr("Mit --only kann nur der Betrag geändert werden.")
                                                    : QString();
}

int RunChange(const cCliContext& context)
{
    const cCliCall& call = context.Call;
    cCliReader reader(context);
    if (const QString misuse = Misuse(call); !misuse.isEmpty()) {
        reader.Misused(misuse);
    }
    const int id = reader.Id(call.Arguments().constFirst());
    const qint64 cents = reader.Cents(call.Value(u"amount"_s));
    const QDate day = call.Has(u"only"_s) ? reader.Occurrence(id, call.Value(u"only"_s)) : QDate();
    if (!reader.IsGood()) {
        return reader.Report();
    }
    if (day.isValid()) {
        return modCliCorrect::Correct(context, {id, day}, cents, std::nullopt);
    }
    return call.Has(u"from"_s) ? cCliEntryForm(context).ChangeFrom(id, call.Value(u"from"_s))
                               : cCliEntryForm(context).Change(id);
}

} // namespace

cCliCommand modCliCommands::ChangeCommand()
{
    return {.Name = u"change"_s,
            .Arguments = u"ID"_s,
            .Help = cText::Tr("ändert an einem Eintrag, was die Optionen nennen; von einer Serie alles, ein Vorkommen "
                              "oder alles ab einem Tag"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::Write,
            .Options = cCliEntryForm::Options()
                + QList<cCliOption>{{u"only"_s, u"DATUM"_s, cText::Tr("nur den Betrag des Vorkommens an diesem Tag")},
                                    {u"from"_s, u"DATUM"_s,
                                     cText::Tr("die Serie vom ersten Vorkommen an, das nicht davor liegt")},
                                    modCliFlow::Yes()},
            .Run = RunChange};
}
