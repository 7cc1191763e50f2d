#include "base/cText.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/cJsonObject.h"
#include "cli/console/modCliRecord.h"
#include "views/people/cPeople.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString Shared()
{
    return cText::Tr("Gemeinsames");
}

// What all share first.
QStringList Places(const cPeople& people)
{
    return QStringList{QString()} + people.Accounts();
}

void PrintJson(const cPeople& people)
{
    QStringList names;
    QStringList places;
    const QStringList all = people.Names();
    for (const QString& name : all) {
        cJsonObject json;
        names.append(json.Text(u"Name"_s, name).Number(u"Entries"_s, people.CountOf(name)).ToString());
    }
    const QStringList accounts = Places(people);
    for (const QString& account : accounts) {
        cJsonObject json;
        places.append(json.Text(u"Account"_s, account)
                          .Truth(u"IsSet"_s, !people.Stored(account).isEmpty())
                          .Raw(u"Shares"_s, modCliRecord::Shares(people.SharesOf(account)))
                          .ToString());
    }
    cJsonObject json;
    json.Raw(u"People"_s, modJson::Array(names)).Raw(u"Accounts"_s, modJson::Array(places));
    modConsole::Out(json.ToString() + u'\n');
}

void Print(const cPeople& people)
{
    cCliTable names({{cText::Tr("Person")}, {cText::Tr("Einträge"), eAlign::Right}});
    const QStringList all = people.Names();
    for (const QString& name : all) {
        names.Add({name, QString::number(people.CountOf(name))});
    }
    cCliTable shares({{cText::Tr("Konto")}, {cText::Tr("Gehört")}, {cText::Tr("Festgelegt")}});
    const QStringList accounts = Places(people);
    for (const QString& account : accounts) {
        shares.Add({account.isEmpty() ? Shared() : account, cPeople::SharesText(people.SharesOf(account)),
                    people.Stored(account).isEmpty() ? QString() : cText::Tr("ja")});
    }
    modConsole::Out(names.ToString() + u'\n' + shares.ToString());
}

int List(const cCliContext& context)
{
    const cPeople people(context.Book->Tools);
    if (context.Call.Has(u"json"_s)) {
        PrintJson(people);
    } else if (people.HasAny()) {
        Print(people);
    } else {
        modConsole::Out(cText::Tr("Noch gibt es keine Personen. \"people add NAME\" legt eine an.") + u'\n');
    }
    return modExit::Done;
}

int Add(const cCliContext& context)
{
    return modCliFlow::Finish(context, cPeople(context.Book->Tools).Add(context.Call.Arguments().constFirst()));
}

int Rename(const cCliContext& context)
{
    cCliReader reader(context);
    const QString name = reader.Person(context.Call.Arguments().at(0));
    if (!reader.IsGood()) {
        return reader.Report();
    }
    return modCliFlow::Finish(context, cPeople(context.Book->Tools).Rename(name, context.Call.Arguments().at(1)));
}

int Delete(const cCliContext& context)
{
    cCliReader reader(context);
    const QString name = reader.Person(context.Call.Arguments().constFirst());
    if (!reader.IsGood()) {
        return reader.Report();
    }
    context.User.Prepare(modCliFlow::Answers(context, cText::Tr("Mit --yes wird gelöscht.")));
    return modCliFlow::Finish(context, cPeople(context.Book->Tools).Remove(name));
}

// "Anna=60 Ben=40" as percentages in the order of the people, of two the rest for the one who is not named; "ohne" is
// none at all.
QStringList ReadPercents(const QStringList& texts, const QStringList& names, cCliReader& reader)
{
    QStringList percents(names.size());
    if (texts.size() == 1 && cCliReader::IsNone(texts.constFirst())) {
        return percents;
    }
    for (const QString& text : texts) {
        const QString typed = text.section(u'=', 0, -2);
        if (typed.isEmpty()) {
            reader.Misused(cText::Tr("'{0}' ist kein Anteil. Bitte geben Sie Name und Prozent an: Anna=60.", {text}));
        }
        const qsizetype person = names.indexOf(reader.Person(typed));
        if (!reader.IsGood()) {
            return percents;
        }
        percents[person] = text.section(u'=', -1);
        percents = texts.size() == 1 ? cPeople::WithRest(percents, person) : percents;
    }
    return percents;
}

int Shares(const cCliContext& context)
{
    cCliReader reader(context);
    cPeople people(context.Book->Tools);
    const QString place = context.Call.Arguments().constFirst();
    const bool isShared = place.compare(u"Gemeinsames"_s, Qt::CaseInsensitive) == 0 // in all languages
        && !people.Accounts().contains(place);
    if (place.isEmpty()) { // of an account it would mean what all share
        reader.Misused(cText::Tr("Bitte nennen Sie ein Konto oder \"Gemeinsames\"."));
    }
    const QString account = isShared ? QString() : reader.Account(place);
    const QStringList percents = ReadPercents(context.Call.Arguments().mid(1), people.Names(), reader);
    if (!reader.IsGood()) {
        return reader.Report();
    }
    const QString shown = isShared ? Shared() : account;
    if (const QString wrong = people.TakeShares(account, percents); !wrong.isEmpty()) {
        modConsole::Error(shown + u": "_s + wrong);
        return modExit::Failed;
    }
    modConsole::Out(shown + u": "_s + cPeople::SharesText(people.SharesOf(account)) + u'\n');
    return modExit::Done;
}

} // namespace

cCliCommand modCliCommands::PeopleCommand()
{
    return {.Name = u"people"_s,
            .Help = cText::Tr("zeigt die Personen des Haushalts und wem welches Konto gehört"),
            .Options = {Json()},
            .Run = List};
}

cCliCommand modCliCommands::PeopleAddCommand()
{
    return {.Name = u"people add"_s,
            .Arguments = u"NAME"_s,
            .Help = cText::Tr("legt eine Person an"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::Write,
            .Run = Add};
}

cCliCommand modCliCommands::PeopleRenameCommand()
{
    return {.Name = u"people rename"_s,
            .Arguments = u"NAME NEU"_s,
            .Help = cText::Tr("benennt eine Person um, auch an ihren Einträgen"),
            .MinArguments = 2,
            .MaxArguments = 2,
            .Access = eCliAccess::Write,
            .Run = Rename};
}

cCliCommand modCliCommands::PeopleDeleteCommand()
{
    return {.Name = u"people delete"_s,
            .Arguments = u"NAME"_s,
            .Help = cText::Tr("löscht eine Person; ihr Anteil geht an die anderen"),
            .MinArguments = 1,
            .MaxArguments = 1,
            .Access = eCliAccess::Write,
            .Options = {{u"yes"_s, {}, cText::Tr("wirklich löschen")}},
            .Run = Delete};
}

cCliCommand modCliCommands::PeopleSharesCommand()
{
    return {.Name = u"people shares"_s,
            .Arguments = u"KONTO NAME=PROZENT..."_s,
            .Help =
                cText::Tr("legt fest, wem ein Konto zu wie viel Prozent gehört: Girokonto Anna=60 Ben=40; "
                          "\"Gemeinsames\" statt des Kontos gilt für alle, \"ohne\" statt der Anteile nimmt sie weg"),
            .MinArguments = 2,
            .MaxArguments = Any,
            .Access = eCliAccess::Write,
            .Run = Shares};
}
