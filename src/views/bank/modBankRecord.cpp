#include "views/bank/modBankRecord.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

template <typename tArchive>
void Fields(tArchive& archive, TanVerfahrenItem& item);
template <typename tArchive>
void Fields(tArchive& archive, cBankAccount& account);
template <typename tArchive>
void Fields(tArchive& archive, cBankState& state);

// Both archives have the same functions, so that one list of fields serves for both ways.
class cWriter
{
public:
    // The whole record; by value, because the list of fields is one for writing and reading.
    template <typename tRecord>
    static QJsonObject Written(tRecord record)
    {
        cWriter writer;
        Fields(writer, record);
        return writer.m_object;
    }

    void Field(const char* name, const QString& value) { Put(name, value); }
    void Field(const char* name, int value) { Put(name, value); }
    void Field(const char* name, bool value) { Put(name, value); }
    void Field(const char* name, const QByteArray& value) { Put(name, QString::fromLatin1(value.toBase64())); }
    void Field(const char* name, const QStringList& value) { Put(name, QJsonArray::fromStringList(value)); }

    void Field(const char* name, const QList<QByteArray>& values)
    {
        QJsonArray array;
        for (const QByteArray& value : values) {
            array.append(QString::fromLatin1(value.toBase64()));
        }
        Put(name, array);
    }

    template <typename tRecord>
    void Field(const char* name, const QList<tRecord>& records)
    {
        QJsonArray array;
        for (const tRecord& record : records) {
            array.append(Written(record));
        }
        Put(name, array);
    }

    template <typename tRecord>
    void Field(const char* name, const std::optional<tRecord>& record)
    {
        if (record) {
            Put(name, Written(*record));
        }
    }

private:
    void Put(const char* name, const QJsonValue& value) { m_object.insert(QLatin1StringView(name), value); }

    QJsonObject m_object;
};

// What is missing keeps the value that it has.
class cReader
{
public:
    explicit cReader(const QJsonObject& object) : m_object(object) {}

    void Field(const char* name, QString& value) const { value = Get(name).toString(value); }
    void Field(const char* name, int& value) const { value = Get(name).toInt(value); }
    void Field(const char* name, bool& value) const { value = Get(name).toBool(value); }
    void Field(const char* name, QStringList& value) const { value = Get(name).toVariant().toStringList(); }

    void Field(const char* name, QByteArray& value) const
    {
        if (const QJsonValue found = Get(name); found.isString()) {
            value = QByteArray::fromBase64(found.toString().toLatin1());
        }
    }

    void Field(const char* name, QList<QByteArray>& values) const
    {
        const QJsonArray array = Get(name).toArray();
        for (const auto& value : array) {
            values.append(QByteArray::fromBase64(value.toString().toLatin1()));
        }
    }

    template <typename tRecord>
    void Field(const char* name, QList<tRecord>& records) const
    {
        const QJsonArray array = Get(name).toArray();
        for (const auto& value : array) {
            records.append(Read<tRecord>(QJsonValue(value)));
        }
    }

    template <typename tRecord>
    void Field(const char* name, std::optional<tRecord>& record) const
    {
        if (const QJsonValue value = Get(name); value.isObject()) {
            record = Read<tRecord>(QJsonValue(value));
        }
    }

private:
    template <typename tRecord>
    static tRecord Read(const QJsonValue& value)
    {
        tRecord record;
        const cReader reader(value.toObject());
        Fields(reader, record);
        return record;
    }

    [[nodiscard]] QJsonValue Get(const char* name) const { return m_object.value(QLatin1StringView(name)); }

    QJsonObject m_object;
};

template <typename tArchive>
void Fields(tArchive& archive, TanVerfahrenItem& item)
{
    archive.Field("Function", item.SecurityFunction);
    archive.Field("Process", item.TanProcess);
    archive.Field("Version", item.SegmentVersion);
    archive.Field("Technical", item.TechnicalIdentification);
    archive.Field("ZkaName", item.ZkaName);
    archive.Field("ZkaVersion", item.ZkaVersion);
    archive.Field("Name", item.Name);
    archive.Field("TanLength", item.TanLength);
    archive.Field("IsNumber", item.IsNumber);
    archive.Field("Label", item.ChallengeLabel);
    archive.Field("ChallengeLength", item.ChallengeLength);
    archive.Field("IsStructured", item.IsChallengeStructured);
    archive.Field("IsClassRequired", item.IsChallengeClassRequired);
    archive.Field("IsAmountRequired", item.IsChallengeAmountRequired);
    archive.Field("InitMode", item.InitMode);
    archive.Field("MediaName", item.MediaNameRequired);
    archive.Field("IsHhdUcRequired", item.IsHhdUcRequired);
    archive.Field("MediaCount", item.ActiveMediaCount);
    archive.Field("MostPolls", item.MostPolls);
    archive.Field("WaitFirst", item.WaitBeforeFirst);
    archive.Field("WaitNext", item.WaitBeforeNext);
    archive.Field("IsManual", item.IsManualAllowed);
    archive.Field("IsAutomatic", item.IsAutomaticAllowed);
}

template <typename tArchive>
void Fields(tArchive& archive, cBankAccount& account)
{
    archive.Field("Number", account.Number);
    archive.Field("SubNumber", account.SubNumber);
    archive.Field("BankCode", account.BankCode);
    archive.Field("Iban", account.Iban);
    archive.Field("Bic", account.Bic);
    archive.Field("CustomerId", account.CustomerId);
    archive.Field("Currency", account.Currency);
    archive.Field("Owner1", account.Owner1);
    archive.Field("Owner2", account.Owner2);
    archive.Field("Product", account.ProductName);
    archive.Field("Limit", account.Limit);
    archive.Field("Orders", account.Orders);
}

template <typename tArchive>
void Fields(tArchive& archive, cBankState& state)
{
    archive.Field("BankCode", state.BankCode);
    archive.Field("BankName", state.BankName);
    archive.Field("UserId", state.UserId);
    archive.Field("Url", state.Url);
    archive.Field("Bic", state.Bic);
    archive.Field("Hbci", state.HbciVersion);
    archive.Field("SystemId", state.SystemId);
    archive.Field("BpdVersion", state.BpdVersion);
    archive.Field("UpdVersion", state.UpdVersion);
    archive.Field("Parameters", state.Parameters);
    archive.Field("Functions", state.AllowedFunctions);
    archive.Field("Accounts", state.Accounts);
    archive.Field("Methods", state.Methods);
    archive.Field("Method", state.Method);
    archive.Field("Media", state.Media);
    archive.Field("Medium", state.Medium);
}

} // namespace

QString modBankRecord::Write(const cBankState& state)
{
    return QString::fromUtf8(QJsonDocument(cWriter::Written(state)).toJson(QJsonDocument::Compact));
}

std::optional<cBankState> modBankRecord::Read(const QString& text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (!document.isObject()) {
        return {};
    }
    cBankState state;
    const cReader reader(document.object());
    Fields(reader, state);
    return state;
}
