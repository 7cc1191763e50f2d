// The part of cTestBank that does what it is asked for.

#include "testbank/cTestBank.h"

#include <QDate>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

void cTestBank::Do(const cBankRequest& request, bool isStrong)
{
    const cRequestSegment& first = request.Business.constFirst();
    if (first.Code == "HKIDN") {
        Open(request, isStrong);
    } else if (first.Code == "HKKAZ") {
        TellStatements(first);
    } else if (first.Code == "HKCAZ") {
        TellCamt(first);
    } else if (first.Code == "HKSAL") {
        TellBalance(first);
    } else if (first.Code == "HKTAB") {
        TellMedia(first);
    } else if (first.Code == "HKSPA") {
        TellSepa(first);
    } else {
        Complain(u"unknown order"_s);
    }
}

void cTestBank::Open(const cBankRequest& request, bool isStrong)
{
    const cRequestSegment preparation = request.Of("HKVVB");
    Say(preparation.Number, "0020::Angemeldet.");
    if (!Profile.InitWords.isEmpty()) {
        Say(preparation.Number, Profile.InitWords);
    }
    if (Profile.IsListed) {
        QByteArray functions = Profile.Functions;
        for (const cOfferedMethod& method : std::as_const(Profile.Methods)) {
            functions += Profile.Functions.isEmpty() ? ":" + method.Function : QByteArray();
        }
        Say(preparation.Number, "3920::Zugelassene Verfahren:" + functions.mid(functions.startsWith(':')));
    }
    TellParameters(preparation);
    Synchronise(request);
    if (isStrong || request.Function != "999" || Profile.TellsAccountsAtOnce) {
        TellAccounts(preparation);
    }
}

// The row of a procedure as the bank writes it, 21 fields in version 6 and 26 in version 7.
static QByteArray RowOf(const cOfferedMethod& method)
{
    const QByteArray begin = ":" + method.Function + ":" + method.Process + ":" + method.Technical + ":" + method.Zka
        + ":" + method.ZkaVersion + ":" + method.Name + ":6:1:TAN:999:N:1:N:0:0:N:N:00:" + method.MediumRequired
        + ":N:1";
    return method.Version < 7 ? begin : begin + ":" + method.Polls;
}

void cTestBank::TellParameters(const cRequestSegment& preparation)
{
    if (preparation.At(1) == Profile.Bpd && Profile.RepeatsNothing) {
        return;
    }
    const int reference = preparation.Number;
    Add("HIBPA:3", reference, "+" + Profile.Bpd + "+280:" + Profile.Code + "+" + Profile.Name + "+3+1+300+9999");
    for (const QByteArray& parameter : std::as_const(Profile.Parameters)) {
        const qsizetype head = parameter.indexOf('+');
        Add(parameter.left(head), reference, parameter.mid(head));
    }
    const QByteArray oneStep = Profile.IsOneStepAllowed ? "J" : "N";
    for (const int version : {6, 7}) {
        QByteArray rows;
        for (const cOfferedMethod& method : std::as_const(Profile.Methods)) {
            rows += method.Version == version ? RowOf(method) : QByteArray();
        }
        if (!rows.isEmpty()) {
            Add("HITANS:" + QByteArray::number(version), reference, "+1+1+1+" + oneStep + ":N:0" + rows);
        }
    }
    const qsizetype head = Profile.OldMethods.indexOf('+');
    if (head > 0) {
        Add(Profile.OldMethods.left(head), reference, Profile.OldMethods.mid(head));
    }
}

void cTestBank::TellAccounts(const cRequestSegment& preparation)
{
    if (preparation.At(2) == Profile.Upd && Profile.RepeatsNothing) {
        return;
    }
    Add("HIUPA:4", preparation.Number, "+" + Profile.User + "+" + Profile.Upd + "+0");
    for (const cOfferedAccount& account : std::as_const(Profile.Accounts)) {
        Add("HIUPD:6", preparation.Number,
            "+" + National(account) + "+" + account.Iban + "+" + Profile.User + "+1+EUR+Erika Muster++"
                + account.Product + "++" + account.Orders);
    }
}

void cTestBank::Synchronise(const cBankRequest& request)
{
    const cRequestSegment order = request.Of("HKSYN");
    if (order.Code.isEmpty()) {
        return;
    }
    const QByteArray id = "SYS?+" + QByteArray::number(Profile.Systems.size() + 1);
    Profile.Systems.append(id);
    m_systemId = id;
    Add("HISYN:4", order.Number, "+" + id);
}

// Some banks tell it only when they are asked for it.
QByteArray cTestBank::IbanOf(const cOfferedAccount& account) const
{
    return account.Iban.isEmpty() ? "DE00" + Profile.Code + account.Number : account.Iban;
}

// The account that an order means, named in the way of its version.
const cOfferedAccount* cTestBank::Account(const cRequestSegment& order, bool isIban)
{
    const QList<QByteArray> parts = order.Group(1);
    const QByteArray number = parts.value(isIban ? 2 : 0);
    const QByteArray sub = parts.value(isIban ? 3 : 1);
    const auto found =
        std::find_if(Profile.Accounts.begin(), Profile.Accounts.end(), [&](const cOfferedAccount& account) {
            return isIban && number.isEmpty() ? IbanOf(account) == parts.value(0)
                                              : account.Number == number && account.Sub == sub;
        });
    const bool isFound = found != Profile.Accounts.end();
    if (!isIban) {
        Check(isFound && order.At(1) == National(*found), u"account"_s);
    } else {
        Check(isFound && parts.value(0) == IbanOf(*found) && !parts.value(1).isEmpty(), u"account with IBAN and BIC"_s);
    }
    if (!isFound) {
        return nullptr;
    }
    Journal.last() += u' ' + QString::fromLatin1(found->Number);
    return &*found;
}

void cTestBank::CheckPeriod(const cRequestSegment& order, int from)
{
    const auto day = [&](int place) { return QDate::fromString(QString::fromLatin1(order.At(place)), u"yyyyMMdd"); };
    Check(day(from).isValid() && day(from) <= day(from + 1), u"period"_s);
    Check(order.At(from - 1) == "N" && order.At(from + 2).isEmpty(), u"one account, no limit"_s);
}

// Which page is asked for; the point of the next one is said when there is one.
qsizetype cTestBank::PageOf(const cRequestSegment& order, int place, qsizetype count)
{
    qsizetype page = 0;
    if (!order.At(place).isEmpty()) {
        Check(order.At(place).startsWith(Profile.Point), u"continuation point"_s);
        page = order.At(place).mid(Profile.Point.size()).toInt();
        Check(page > 0 && page < count, u"page of the continuation point"_s);
        Journal.last() += u" page "_s + QString::number(page + 1);
    }
    if (page + 1 < count) {
        Say(order.Number, "3040::Es liegen weitere Informationen vor.:" + Profile.Point + QByteArray::number(page + 1));
    }
    return page;
}

static QByteArray Binary(const QByteArray& data)
{
    return "@" + QByteArray::number(data.size()) + "@" + data;
}

void cTestBank::TellStatements(const cRequestSegment& order)
{
    const cOfferedAccount* account = Account(order, order.Version > 6);
    CheckPeriod(order, 3);
    if (account == nullptr) {
        return;
    }
    if (!account->Refusal.isEmpty()) {
        return Say(order.Number, account->Refusal);
    }
    if (account->Pages.isEmpty()) {
        return Say(order.Number, "3010::Keine Buchungen.");
    }
    const qsizetype page = PageOf(order, 6, account->Pages.size());
    QByteArray body = "+" + Binary(account->Pages.value(page));
    if (!account->Pending.value(page).isEmpty()) {
        body += "+" + Binary(account->Pending.value(page));
    }
    Add("HIKAZ:" + QByteArray::number(order.Version), order.Number, body);
}

void cTestBank::TellCamt(const cRequestSegment& order)
{
    const cOfferedAccount* account = Account(order, true);
    CheckPeriod(order, 4);
    Check(order.At(2).contains("camt.052"), u"format"_s);
    if (account == nullptr) {
        return;
    }
    if (account->Camt.isEmpty()) {
        return Say(order.Number, "3010::Keine Buchungen.");
    }
    const qsizetype page = PageOf(order, 7, account->Camt.size());
    Add("HICAZ:1", order.Number, "+" + order.Elements.at(0) + "+" + order.At(2) + "+" + Binary(account->Camt.at(page)));
}

void cTestBank::TellBalance(const cRequestSegment& order)
{
    const cOfferedAccount* account = Account(order, order.Version > 6);
    if (account == nullptr) {
        return;
    }
    Check(order.At(2) == "N" && order.Elements.size() == 2, u"balance of one account"_s);
    const QList<QByteArray> parts = account->Balance.split(':');
    Add("HISAL:" + QByteArray::number(order.Version), order.Number,
        "+" + order.At(1) + "+" + account->Product + "+EUR+" + parts.value(0) + ":" + parts.value(1) + ":"
            + parts.value(2) + ":" + parts.value(3));
}

void cTestBank::TellMedia(const cRequestSegment& order)
{
    Check((order.Version == 4 || order.Version == 5) && order.At(1) == "0" && order.At(2) == "A"
              && order.Elements.size() == 2,
          u"request of the media"_s);
    QByteArray body = "+0";
    for (const QByteArray& medium : std::as_const(Profile.Media)) {
        body += "+A:1" + QByteArray(order.Version == 5 ? 12 : 11, ':') + medium;
    }
    Add("HITAB:" + QByteArray::number(order.Version), order.Number, body);
}

void cTestBank::TellSepa(const cRequestSegment& order)
{
    QByteArray body;
    for (const cOfferedAccount& account : std::as_const(Profile.Accounts)) {
        body += "+J:" + IbanOf(account) + ":TESTDEFFXXX:" + National(account);
    }
    Add("HISPA:1", order.Number, body);
}
