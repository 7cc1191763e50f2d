#include "base/cText.h"
#include "base/modDate.h"
#include "cli/argument/cCliReader.h"
#include "cli/call/cCliBook.h"
#include "cli/call/modCliCommands.h"
#include "cli/command/modCliFlow.h"
#include "cli/console/cCliTable.h"
#include "cli/console/cConsoleBankUser.h"
#include "cli/console/cJsonObject.h"
#include "views/bank/cBankAccess.h"
#include "views/bank/cBankDirectory.h"
#include "views/bank/cBankListModel.h"
#include "views/bank/cBankSetup.h"
#include "views/bank/modBankText.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString BankCode(const cCliContext& context)
{
    return cCliReader::Compact(context.Call.Value(u"blz"_s));
}

QString UserId(const cCliContext& context)
{
    return context.Call.Value(u"login"_s).trimmed();
}

QString ToJson(const cBankListModel::cLine& line)
{
    return cJsonObject()
        .Text(u"bank"_s, line.Bank.BankName)
        .Text(u"bankCode"_s, line.Bank.BankCode)
        .Text(u"login"_s, line.Bank.UserId)
        .Text(u"url"_s, line.Bank.Url)
        .Text(u"hbci"_s, line.Bank.HbciVersion)
        .Text(u"method"_s, line.Bank.Method ? line.Bank.Method->SecurityFunction : QString())
        .Text(u"medium"_s, line.Bank.Medium)
        .Text(u"number"_s, cBankAccess::NumberOf(line.Bank, line.Account))
        .Text(u"iban"_s, line.Account.Iban)
        .Text(u"product"_s, line.Account.ProductName)
        .Text(u"account"_s, line.BookAccount)
        .Date(u"lastFetch"_s, line.LastFetch)
        .ToString();
}

void PrintList(const cCliContext& context, const QList<cBankListModel::cLine>& lines)
{
    QStringList objects;
    cCliTable table({{cText::Tr("BLZ")},
                     {cText::Tr("Bank"), eAlign::Left, 40},
                     {cText::Tr("Anmeldename")},
                     {cText::Tr("Konto der Bank")},
                     {cText::Tr("Konto im Buch")},
                     {cText::Tr("Zuletzt abgerufen")},
                     {cText::Tr("TAN-Verfahren")}});
    for (const cBankListModel::cLine& line : lines) {
        objects.append(ToJson(line));
        table.Add({line.Bank.BankCode, line.Bank.BankName, line.Bank.UserId, modBankText::Number(line.Account),
                   line.BookAccount, modDate::ToText(line.LastFetch),
                   line.Bank.Method ? modBankText::Method(*line.Bank.Method) : QString()});
    }
    modConsole::Out(context.Call.Has(u"json"_s) ? modJson::Array(objects) + u'\n' : table.ToString());
}

int List(const cCliContext& context)
{
    PrintList(context, cBankListModel(context.Book->Tools).Lines());
    return modExit::Done;
}

int Refuse(const QString& text, const QString& words = {})
{
    modConsole::Error(text);
    if (!words.isEmpty()) {
        modConsole::Error(cText::Tr("Die Bank schreibt:\n{0}", {words}));
    }
    return modExit::Failed;
}

int Refuse(const cBankSetup& setup)
{
    return Refuse(setup.Failure().Text, setup.Failure().BankWords);
}

// What a command that talks to a bank works with. The login of the call is loaded when the book has it.
struct cTalk
{
    explicit cTalk(const cCliContext& context)
        : Directory(context.Shell),
          Customer({.PinFd = modCliCommands::Fd(context, u"pin-fd"_s),
                    .TanFd = modCliCommands::Fd(context, u"tan-fd"_s),
                    .TanImage = context.Call.Value(u"tan-image"_s)}),
          Setup({context.Book->Tools, Directory, *context.Ports.Https, Customer, context.Ports.Version})
    {
        const std::optional<cBankState> known =
            cBankAccess(context.Book->Tools).Find(BankCode(context), UserId(context));
        if (known) {
            Setup.Load(*known);
        } else {
            Setup.ChooseCode(BankCode(context));
            Setup.SetUserId(UserId(context));
        }
        const cCliCall& call = context.Call;
        if (call.Has(u"url"_s)) {
            Setup.SetUrl(call.Value(u"url"_s));
        }
        if (call.Has(u"product"_s)) {
            Setup.SetProductId(call.Value(u"product"_s));
        }
        if (call.Has(u"hbci"_s)) {
            Setup.SetHbciVersion(call.Value(u"hbci"_s) == u"2.2" ? u"220"_s : u"300"_s);
        }
    }

    cBankDirectory Directory;
    cConsoleBankUser Customer;
    cBankSetup Setup;
};

// False, with what to do, when the call or the book lacks something that the first dialog needs.
bool CheckCall(const cCliContext& context)
{
    cCliReader reader(context);
    if (!cBankSetup::IsCode(context.Call.Value(u"blz"_s)) || UserId(context).isEmpty()) {
        reader.Misused(cText::Tr("Nötig sind --blz mit einer Bankleitzahl und --login."));
    }
    if (const QString version = context.Call.Value(u"hbci"_s);
        context.Call.Has(u"hbci"_s) && version != u"2.2" && version != u"3.0") {
        reader.Misused(cText::Tr("Mit --hbci sind 2.2 und 3.0 möglich."));
    }
    reader.CheckOpenFile(u"pin-fd"_s);
    reader.CheckOpenFile(u"tan-fd"_s);
    if (!reader.IsGood()) {
        (void)reader.Report();
    }
    return reader.IsGood();
}

QString Missing(const cBankSetup& setup)
{
    const QString bank = setup.BankProblem();
    const QString login = bank.isEmpty() ? setup.LoginProblem() : bank;
    return login.isEmpty() || bank.isEmpty() ? login : login + u'\n' + cText::Tr("Hier gibt --url sie an.");
}

// The names below each other, for a choice that the call does not make.
QString Choices(const QStringList& names)
{
    return u"\n  "_s + names.join(u"\n  "_s);
}

// The place of what the text names among the names or their codes; -1 when that is not clear.
qsizetype PlaceOf(const QString& text, const QStringList& names, const QStringList& codes = {})
{
    const auto is = [&](const QString& name) { return name.compare(text, Qt::CaseInsensitive) == 0; };
    const auto exact = std::find_if(names.begin(), names.end(), is);
    if (exact != names.end()) {
        return exact - names.begin();
    }
    if (const qsizetype code = codes.indexOf(text); code >= 0) {
        return code;
    }
    const QStringList like = names.filter(text, Qt::CaseInsensitive);
    return like.size() == 1 ? names.indexOf(like.constFirst()) : -1;
}

QStringList Codes(const cBankSetup& setup)
{
    QStringList codes;
    for (const TanVerfahrenItem& method : setup.State().Methods) {
        codes.append(method.SecurityFunction);
    }
    return codes;
}

bool ChooseMethod(const cCliContext& context, cBankSetup& setup)
{
    if (context.Call.Has(u"method"_s)) {
        const qsizetype place = PlaceOf(context.Call.Value(u"method"_s), setup.Methods(), Codes(setup));
        if (place < 0) {
            (void)Refuse(cText::Tr("Dieses TAN-Verfahren bietet die Bank nicht an. Möglich sind:{0}",
                                   {Choices(setup.Methods())}));
            return false;
        }
        setup.ChooseMethod(static_cast<int>(place));
    }
    if (setup.Method() < 0) {
        (void)Refuse(cText::Tr("Wählen Sie mit --method ein TAN-Verfahren:{0}", {Choices(setup.Methods())}));
        return false;
    }
    return true;
}

bool ChooseMedium(const cCliContext& context, cBankSetup& setup)
{
    const qsizetype place = PlaceOf(context.Call.Value(u"medium"_s), setup.State().Media);
    if (place < 0) {
        (void)Refuse(cText::Tr("Wählen Sie mit --medium ein TAN-Medium:{0}", {Choices(setup.State().Media)}));
        return false;
    }
    setup.ChooseMedium(static_cast<int>(place));
    return true;
}

// A bank that wants a medium named tells its media first.
bool Refresh(const cCliContext& context, cBankSetup& setup)
{
    if (setup.Refresh()) {
        return !context.Call.Has(u"medium"_s) || ChooseMedium(context, setup);
    }
    if (setup.Failure().Fault == eBankFault::MediumMissing) {
        if (!ChooseMedium(context, setup)) {
            return false;
        }
        if (setup.Refresh()) {
            return true;
        }
    }
    (void)Refuse(setup);
    return false;
}

// With --account only the named accounts are fetched, else all that can be.
bool ChooseAccounts(const cCliContext& context, cBankSetup& setup)
{
    cBankAccountChoice& accounts = setup.Accounts();
    const QStringList wanted = context.Call.Values(u"account"_s);
    for (qsizetype line = 0; !wanted.isEmpty() && line < accounts.Lines().size(); ++line) {
        accounts.Choose(line, false);
    }
    for (const QString& text : wanted) {
        const QString number = cCliReader::Compact(text.section(u'=', 0, 0));
        const auto& lines = accounts.Lines();
        const auto found = std::find_if(lines.begin(), lines.end(), [&](const cBankAccountChoice::cLine& line) {
            return number == cCliReader::Compact(line.Number)
                || number == cBankAccess::NumberOf(setup.State(), line.Account);
        });
        if (found == lines.end() || !found->Reason.isEmpty()) {
            QStringList names;
            for (const cBankAccountChoice::cLine& line : lines) {
                names.append(line.Number + (line.Reason.isEmpty() ? QString() : u": "_s + line.Reason));
            }
            (void)Refuse(
                cText::Tr("Das Konto {0} kann nicht abgerufen werden. Die Bank nennt:{1}", {number, Choices(names)}));
            return false;
        }
        const qsizetype line = found - lines.begin();
        accounts.Choose(line, true);
        if (const QString name = text.section(u'=', 1); !name.trimmed().isEmpty()) {
            accounts.SetBookAccount(line, name);
        }
    }
    return true;
}

// Asks the bank; what is missing or went wrong is said.
bool Discover(cBankSetup& setup)
{
    if (const QString missing = Missing(setup); !missing.isEmpty()) {
        (void)Refuse(missing);
        return false;
    }
    if (!setup.Discover()) {
        (void)Refuse(setup);
        return false;
    }
    return true;
}

int Add(const cCliContext& context)
{
    if (!CheckCall(context)) {
        return modExit::Usage;
    }
    cTalk talk(context);
    cBankSetup& setup = talk.Setup;
    if (!Discover(setup)) {
        return modExit::Failed;
    }
    if (!ChooseMethod(context, setup) || !Refresh(context, setup) || !ChooseAccounts(context, setup)) {
        return modExit::Failed;
    }
    context.Book->File().CopyIfChanged();
    if (!setup.Save()) {
        return setup.Problem().isEmpty() ? modExit::Failed : Refuse(setup.Problem());
    }
    QList<cBankListModel::cLine> lines = cBankListModel(context.Book->Tools).Lines();
    lines.removeIf([&](const cBankListModel::cLine& line) {
        return line.Bank.BankCode != setup.State().BankCode || line.Bank.UserId != setup.State().UserId;
    });
    PrintList(context, lines);
    if (const QString note = setup.AddressNote(); !note.isEmpty()) {
        modConsole::Error(note);
    }
    return modExit::Done;
}

int Methods(const cCliContext& context)
{
    if (!CheckCall(context)) {
        return modExit::Usage;
    }
    cTalk talk(context);
    cBankSetup& setup = talk.Setup;
    if (!Discover(setup) || !cBankAccess(context.Book->Tools).SetProductId(setup.ProductId())) {
        return modExit::Failed;
    }
    QStringList objects;
    cCliTable table({{cText::Tr("Nr.")}, {cText::Tr("TAN-Verfahren")}, {cText::Tr("Gewählt")}});
    const QList<TanVerfahrenItem>& methods = setup.State().Methods;
    for (qsizetype i = 0; i < methods.size(); ++i) {
        const bool isChosen = i == setup.Method();
        objects.append(cJsonObject()
                           .Text(u"method"_s, methods.at(i).SecurityFunction)
                           .Text(u"name"_s, methods.at(i).Name)
                           .Truth(u"needsMedium"_s, methods.at(i).MediaNameRequired == u"2")
                           .Truth(u"chosen"_s, isChosen)
                           .ToString());
        table.Add({methods.at(i).SecurityFunction, setup.Methods().at(i), isChosen ? cText::Tr("ja") : QString()});
    }
    modConsole::Out(context.Call.Has(u"json"_s) ? modJson::Array(objects) + u'\n' : table.ToString());
    return modExit::Done;
}

int Remove(const cCliContext& context)
{
    if (!CheckCall(context)) {
        return modExit::Usage;
    }
    cBankListModel banks(context.Book->Tools);
    const auto& lines = banks.Lines();
    const auto found = std::find_if(lines.begin(), lines.end(), [&](const cBankListModel::cLine& line) {
        return line.Bank.BankCode == BankCode(context) && line.Bank.UserId == UserId(context);
    });
    if (found == lines.end()) {
        return Refuse(cText::Tr("Diesen Bankzugang gibt es nicht. Die eingerichteten zeigt der Befehl banks."));
    }
    context.User.Prepare(modCliFlow::Answers(context, cText::Tr("Mit --yes wird entfernt.")));
    if (!banks.Remove(static_cast<int>(found - lines.begin()))) {
        return modExit::Failed;
    }
    PrintList(context, banks.Lines());
    return modExit::Done;
}

QList<cCliOption> LoginOptions()
{
    return {{u"blz"_s, u"BLZ"_s, cText::Tr("Bankleitzahl")},
            {u"login"_s, u"NAME"_s, cText::Tr("Anmeldename bei der Bank")}};
}

QList<cCliOption> TalkOptions()
{
    return LoginOptions()
        + QList<cCliOption>{{u"url"_s, u"ADRESSE"_s, cText::Tr("Adresse der Bank; sonst die aus dem Verzeichnis")},
                            {u"product"_s, u"NUMMER"_s,
                             cText::Tr("Produktregistrierung der Deutschen Kreditwirtschaft; das Buch merkt sie sich")},
                            {u"hbci"_s, u"2.2|3.0"_s,
                             cText::Tr("Protokoll aller Zugänge dieser Bank; ohne Angabe das bisherige, zuerst 3.0")},
                            {u"tan-image"_s, u"DATEI"_s, cText::Tr("hierhin kommt das Bild einer photoTAN")}}
    + modCliCommands::BankSecrets();
}

} // namespace

cCliCommand modCliCommands::BanksCommand()
{
    return {.Name = u"banks"_s,
            .Help = cText::Tr("zeigt die Bankzugänge mit ihren Konten"),
            .Options = {Json()},
            .Run = List};
}

cCliCommand modCliCommands::BanksAddCommand()
{
    return {.Name = u"banks add"_s,
            .Help = cText::Tr("richtet einen Bankzugang ein oder ändert ihn"),
            .Access = eCliAccess::Write,
            .IsOnline = true,
            .Options = TalkOptions()
                + QList<cCliOption>{{u"method"_s, u"VERFAHREN"_s,
                                     cText::Tr("TAN-Verfahren: Nummer oder Name aus banks methods")},
                                    {u"medium"_s, u"NAME"_s, cText::Tr("TAN-Medium, wo die Bank eines verlangt")},
                                    {u"account"_s, u"NUMMER=NAME"_s,
                                     cText::Tr("Konto der Bank und Konto im Buch, mehrfach möglich; ohne Angabe alle")},
                                    Json()},
            .Run = Add};
}

cCliCommand modCliCommands::BanksMethodsCommand()
{
    return {.Name = u"banks methods"_s,
            .Help = cText::Tr("fragt die Bank nach ihren TAN-Verfahren"),
            .Access = eCliAccess::Write,
            .IsOnline = true,
            .Options = TalkOptions() + QList<cCliOption>{Json()},
            .Run = Methods};
}

cCliCommand modCliCommands::BanksRemoveCommand()
{
    return {.Name = u"banks remove"_s,
            .Help = cText::Tr("entfernt einen Bankzugang; Konten und Umsätze bleiben"),
            .Access = eCliAccess::Write,
            .Options = LoginOptions() + QList<cCliOption>{modCliFlow::Yes(), Json()},
            .Run = Remove};
}
