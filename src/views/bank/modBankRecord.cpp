#include "views/bank/modBankRecord.h"

#include "core/cRecordFields.h"

#include <QJsonDocument>

template <>
struct cRecordFields<TanVerfahrenItem>
{
    static void Each(auto& item, const auto& take)
    {
        take("Function", item.SecurityFunction);
        take("Process", item.TanProcess);
        take("Version", item.SegmentVersion);
        take("Technical", item.TechnicalIdentification);
        take("ZkaName", item.ZkaName);
        take("ZkaVersion", item.ZkaVersion);
        take("Name", item.Name);
        take("TanLength", item.TanLength);
        take("IsNumber", item.IsNumber);
        take("Label", item.ChallengeLabel);
        take("ChallengeLength", item.ChallengeLength);
        take("IsStructured", item.IsChallengeStructured);
        take("IsClassRequired", item.IsChallengeClassRequired);
        take("IsAmountRequired", item.IsChallengeAmountRequired);
        take("InitMode", item.InitMode);
        take("MediaName", item.MediaNameRequired);
        take("IsHhdUcRequired", item.IsHhdUcRequired);
        take("MediaCount", item.ActiveMediaCount);
        take("MostPolls", item.MostPolls);
        take("WaitFirst", item.WaitBeforeFirst);
        take("WaitNext", item.WaitBeforeNext);
        take("IsManual", item.IsManualAllowed);
        take("IsAutomatic", item.IsAutomaticAllowed);
    }
};

template <>
struct cRecordFields<cBankAccount>
{
    static void Each(auto& account, const auto& take)
    {
        take("Number", account.Number);
        take("SubNumber", account.SubNumber);
        take("BankCode", account.BankCode);
        take("Iban", account.Iban);
        take("Bic", account.Bic);
        take("CustomerId", account.CustomerId);
        take("Currency", account.Currency);
        take("Owner1", account.Owner1);
        take("Owner2", account.Owner2);
        take("Product", account.ProductName);
        take("Limit", account.Limit);
        take("Orders", account.Orders);
    }
};

template <>
struct cRecordFields<cBankState>
{
    static void Each(auto& state, const auto& take)
    {
        take("BankCode", state.BankCode);
        take("BankName", state.BankName);
        take("UserId", state.UserId);
        take("Url", state.Url);
        take("Bic", state.Bic);
        take("Hbci", state.HbciVersion);
        take("SystemId", state.SystemId);
        take("BpdVersion", state.BpdVersion);
        take("UpdVersion", state.UpdVersion);
        take("Parameters", state.Parameters);
        take("Functions", state.AllowedFunctions);
        take("Accounts", state.Accounts);
        take("Methods", state.Methods);
        take("Method", state.Method);
        take("Media", state.Media);
        take("Medium", state.Medium);
    }
};

QString modBankRecord::Write(const cBankState& state)
{
    return QString::fromUtf8(QJsonDocument(modRecordJson::Written(state).toObject()).toJson(QJsonDocument::Compact));
}

std::optional<cBankState> modBankRecord::Read(const QString& text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (!document.isObject()) {
        return {};
    }
    cBankState state;
    modRecordJson::Read(document.object(), state);
    return state;
}
