#include "views/bank/modBankRow.h"

#include "base/modDate.h"
#include "store/modAccountColumns.h"

#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace {

// The place of a column; a name that is none does not compile.
consteval std::size_t At(std::string_view name)
{
    std::size_t place = 0;
    while (modAccountColumns::Names.at(place) != name) {
        ++place;
    }
    return place;
}

const QString germany = u"280"_s; // as banks write it
const QString none = u"0"_s;      // a version or a system ID that nobody has got yet

// As messages of the bank have truth values.
QString Truth(bool value)
{
    return value ? u"J"_s : u"N"_s;
}

QString OrNone(const QString& value)
{
    return value.isEmpty() ? none : value;
}

void WriteMethod(cOnlineAccount& row, const TanVerfahrenItem& method)
{
    row.Values[At("AccountTanSecurityFunction")] = method.SecurityFunction;
    row.Values[At("AccountTanTechnicalIdentification")] = method.TechnicalIdentification;
    row.Values[At("AccountTanName")] = method.Name;
    row.Values[At("AccountTanChallengeLabel")] = method.ChallengeLabel;
    row.Values[At("AccountTanChallengeClassReqd")] = Truth(method.IsChallengeClassRequired);
    row.Values[At("AccountTanChallengeAmountReqd")] = Truth(method.IsChallengeAmountRequired);
    row.Values[At("AccountTanChallengeStructd")] = Truth(method.IsChallengeStructured);
    row.Values[At("AccountTanMediaInitMode")] = method.InitMode;
    row.Values[At("AccountTanResponseHHDUCReqd")] = Truth(method.IsHhdUcRequired);
    row.Values[At("AccountTanActiveTanMediaCount")] = QString::number(method.ActiveMediaCount);
    row.Values[At("AccountTANProcessId")] = method.TanProcess;
    row.Values[At("AccountTANMediaNameReqd")] = method.MediaNameRequired;
    row.Values[At("AccountTANSegmentVersion")] = QString::number(method.SegmentVersion);
}

TanVerfahrenItem ReadMethod(const cOnlineAccount& row)
{
    TanVerfahrenItem method;
    method.SecurityFunction = row.Values[At("AccountTanSecurityFunction")];
    method.TechnicalIdentification = row.Values[At("AccountTanTechnicalIdentification")];
    method.Name = row.Values[At("AccountTanName")];
    method.ChallengeLabel = row.Values[At("AccountTanChallengeLabel")];
    method.IsChallengeClassRequired = row.Values[At("AccountTanChallengeClassReqd")] == u"J";
    method.IsChallengeAmountRequired = row.Values[At("AccountTanChallengeAmountReqd")] == u"J";
    method.IsChallengeStructured = row.Values[At("AccountTanChallengeStructd")] == u"J";
    method.InitMode = row.Values[At("AccountTanMediaInitMode")];
    method.IsHhdUcRequired = row.Values[At("AccountTanResponseHHDUCReqd")] == u"J";
    method.ActiveMediaCount = row.Values[At("AccountTanActiveTanMediaCount")].toInt();
    method.TanProcess = row.Values[At("AccountTANProcessId")];
    method.MediaNameRequired = OrNone(row.Values[At("AccountTANMediaNameReqd")]);
    method.SegmentVersion = row.Values[At("AccountTANSegmentVersion")].toInt();
    return method;
}

} // namespace

bool modBankRow::IsOf(const cOnlineAccount& row, const QString& bankCode, const QString& userId)
{
    return BankCode(row) == bankCode && UserId(row) == userId;
}

QString modBankRow::BankCode(const cOnlineAccount& row)
{
    return row.Values[At("AccountBLZ")];
}

QString modBankRow::UserId(const cOnlineAccount& row)
{
    return row.Values[At("AccountCustomerID")];
}

QString modBankRow::NumberOf(const cBankAccount& account)
{
    return account.Number.isEmpty() ? account.Iban : account.Number;
}

void modBankRow::WriteLogin(cOnlineAccount& row, const cBankState& state, QDate today)
{
    const QString systemId = QString::fromLatin1(state.SystemId);
    if (systemId != none && row.Values[At("AccountLastSysID")] != systemId) {
        row.Values[At("AccountLastSysIDSync")] = modDate::ToIso(today);
    }
    row.Values[At("AccountLastSysID")] = systemId;
    row.Values[At("AccountInstitute")] = state.BankName;
    row.Values[At("AccountCountryID")] = germany;
    row.Values[At("AccountBLZ")] = state.BankCode;
    row.Values[At("AccountCustomerID")] = state.UserId;
    row.Values[At("AccountPinTanUrl")] = state.Url;
    row.Values[At("AccountLastBPD")] = state.BpdVersion;
    row.Values[At("AccountLastUPD")] = state.UpdVersion;
    WriteMethod(row, state.Method.value_or(TanVerfahrenItem()));
    row.Values[At("AccountTANMediaName")] = state.Medium;
    row.Values[At("AccountTANMediaSecurityFunction")] =
        state.Method && !state.Medium.isEmpty() ? state.Method->SecurityFunction : QString();
}

void modBankRow::ReadLogin(const cOnlineAccount& row, cBankState& state)
{
    state.BankCode = BankCode(row);
    state.UserId = UserId(row);
    state.BankName = row.Values[At("AccountInstitute")];
    state.Url = row.Values[At("AccountPinTanUrl")];
    state.SystemId = OrNone(row.Values[At("AccountLastSysID")]).toLatin1();
    state.BpdVersion = OrNone(row.Values[At("AccountLastBPD")]);
    state.UpdVersion = OrNone(row.Values[At("AccountLastUPD")]);
    state.Medium = row.Values[At("AccountTANMediaName")];
    const TanVerfahrenItem method = ReadMethod(row);
    if (method.SecurityFunction.isEmpty()) {
        state.Method.reset();
    } else if (!state.Method || state.Method->SecurityFunction != method.SecurityFunction) {
        state.Method = method;
    } // else the record beside the rows knows more of the same one
}

void modBankRow::WriteAccount(cOnlineAccount& row, const cBankAccount& account)
{
    row.Values[At("AccountNumber")] = NumberOf(account);
    row.Values[At("AccountSign")] = account.SubNumber;
    row.Values[At("AccountProductName")] = account.ProductName;
    row.Values[At("AccountOwnerName1")] = account.Owner1;
    row.Values[At("AccountOwnerName2")] = account.Owner2;
    row.Values[At("AccountCurrency")] = account.Currency;
    row.Values[At("AccountLimit")] = account.Limit;
}

cBankAccount modBankRow::ReadAccount(const cOnlineAccount& row)
{
    cBankAccount account;
    account.Number = row.Values[At("AccountNumber")];
    account.BankCode = BankCode(row);
    account.CustomerId = UserId(row);
    account.ProductName = row.Values[At("AccountProductName")];
    account.Owner1 = row.Values[At("AccountOwnerName1")];
    account.Owner2 = row.Values[At("AccountOwnerName2")];
    account.Limit = row.Values[At("AccountLimit")];
    if (const QString currency = row.Values[At("AccountCurrency")]; !currency.isEmpty()) {
        account.Currency = currency;
    }
    return account;
}

QString modBankRow::SubNumber(const cOnlineAccount& row)
{
    return row.Values[At("AccountSign")];
}

void modBankRow::WriteCreated(cOnlineAccount& row, QDate day)
{
    row.Values[At("AccountCreationDate")] = modDate::ToIso(day);
}

void modBankRow::WriteFetched(cOnlineAccount& row, QDate day)
{
    row.Values[At("AccountLastSync")] = modDate::ToIso(day);
}

QDate modBankRow::ReadFetched(const cOnlineAccount& row)
{
    const QString text = row.Values[At("AccountLastSync")];
    const QDate day = modDate::FromIso(text);
    return day.isValid() ? day : modDate::FromGerman(text.section(u' ', 0, 0));
}
