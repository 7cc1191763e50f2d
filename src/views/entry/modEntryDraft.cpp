#include "views/entry/modEntryDraft.h"

#include "base/cText.h"

#include <QJsonArray>

#include <concepts>
#include <type_traits>

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename tAny, typename tRecord>
concept cIs = std::same_as<std::remove_const_t<tAny>, tRecord>;

// The one list of what is stored of each record. `take` gets name and field, to write it or to read it.
template <cIs<cSplitPart> tPart, typename tTake>
void Each(tPart& part, const tTake& take)
{
    take(u"ID"_s, part.ID);
    take(u"Category"_s, part.Category);
    take(u"Description"_s, part.Description);
    take(u"Amount"_s, part.Amount);
    take(u"CategoryText"_s, part.CategoryText);
}

template <cIs<cEntryItemFixMod> tFixMod, typename tTake>
void Each(tFixMod& fixMod, const tTake& take)
{
    take(u"ID"_s, fixMod.ID);
    take(u"EntryRelation"_s, fixMod.EntryRelation);
    take(u"EntryModType"_s, fixMod.EntryModType);
    take(u"EntryStartDate"_s, fixMod.EntryStartDate);
    take(u"EntryEndDate"_s, fixMod.EntryEndDate);
    take(u"EntryValue"_s, fixMod.EntryValue);
    take(u"EntryComment"_s, fixMod.EntryComment);
    take(u"EntryDay"_s, fixMod.EntryDay);
}

template <cIs<cReceiptSource> tSource, typename tTake>
void Each(tSource& source, const tTake& take)
{
    take(u"Path"_s, source.Path);
    take(u"Bytes"_s, source.Bytes);
}

template <cIs<cEntryFields> tFields, typename tTake>
void Each(tFields& fields, const tTake& take)
{
    take(u"Face"_s, fields.Face);
    take(u"Amount"_s, fields.Amount);
    take(u"IsAmountTyped"_s, fields.IsAmountTyped);
    take(u"IsAccountChosen"_s, fields.IsAccountChosen);
    take(u"Description"_s, fields.Description);
    take(u"Category"_s, fields.Category);
    take(u"CategoryText"_s, fields.CategoryText);
    take(u"Type"_s, fields.Type);
    take(u"BroughtType"_s, fields.BroughtType);
    take(u"OpenType"_s, fields.OpenType);
    take(u"Account"_s, fields.Account);
    take(u"Target"_s, fields.Target);
    take(u"Payer"_s, fields.Payer);
    take(u"Date"_s, fields.Date);
    take(u"DateText"_s, fields.DateText);
    take(u"IsDayKept"_s, fields.IsDayKept);
    take(u"HasEnd"_s, fields.HasEnd);
    take(u"End"_s, fields.End);
    take(u"EndText"_s, fields.EndText);
    take(u"CancelBy"_s, fields.CancelBy);
    take(u"CancelByText"_s, fields.CancelByText);
    take(u"Interval"_s, fields.Interval);
    take(u"BroughtInterval"_s, fields.BroughtInterval);
    take(u"Parts"_s, fields.Parts);
    take(u"Corrections"_s, fields.Corrections);
    take(u"NewReceipts"_s, fields.NewReceipts);
}

template <cIs<cEntryDraft> tDraft, typename tTake>
void Each(tDraft& draft, const tTake& take)
{
    take(u"Kept"_s, draft.Kept);
    take(u"EntryId"_s, draft.EntryId);
    take(u"From"_s, draft.From);
    take(u"Fields"_s, draft.Fields);
}

struct cWriter
{
    QJsonObject& Json;

    void operator()(const QString& name, const QString& value) const { Json.insert(name, value); }
    void operator()(const QString& name, const QByteArray& value) const
    {
        Json.insert(name, QString::fromLatin1(value.toBase64()));
    }
    void operator()(const QString& name, bool value) const { Json.insert(name, value); }
    void operator()(const QString& name, int value) const { Json.insert(name, value); }
    void operator()(const QString& name, qint64 value) const { Json.insert(name, value); }
    void operator()(const QString& name, QDate value) const { Json.insert(name, value.toString(Qt::ISODate)); }
    void operator()(const QString& name, const QDateTime& value) const
    {
        Json.insert(name, value.toString(Qt::ISODateWithMs));
    }
    void operator()(const QString& name, eEntryFace value) const { Json.insert(name, static_cast<int>(value)); }
    void operator()(const QString& name, const cEntryFields& value) const
    {
        QJsonObject json;
        Each(value, cWriter{json});
        Json.insert(name, json);
    }
    template <typename tItem>
    void operator()(const QString& name, const QList<tItem>& value) const
    {
        QJsonArray list;
        for (const tItem& item : value) {
            QJsonObject json;
            Each(item, cWriter{json});
            list.append(json);
        }
        Json.insert(name, list);
    }
};

struct cReader
{
    const QJsonObject& Json;

    void operator()(const QString& name, QString& value) const { value = Json.value(name).toString(); }
    void operator()(const QString& name, QByteArray& value) const
    {
        value = QByteArray::fromBase64(Json.value(name).toString().toLatin1());
    }
    void operator()(const QString& name, bool& value) const { value = Json.value(name).toBool(); }
    void operator()(const QString& name, int& value) const { value = Json.value(name).toInt(); }
    void operator()(const QString& name, qint64& value) const { value = Json.value(name).toInteger(); }
    void operator()(const QString& name, QDate& value) const
    {
        value = QDate::fromString(Json.value(name).toString(), Qt::ISODate);
    }
    void operator()(const QString& name, QDateTime& value) const
    {
        value = QDateTime::fromString(Json.value(name).toString(), Qt::ISODateWithMs);
    }
    void operator()(const QString& name, eEntryFace& value) const
    {
        const int face = Json.value(name).toInt();
        value = face == static_cast<int>(eEntryFace::Split)      ? eEntryFace::Split
            : face == static_cast<int>(eEntryFace::StartBalance) ? eEntryFace::StartBalance
                                                                 : eEntryFace::Normal;
    }
    void operator()(const QString& name, cEntryFields& value) const
    {
        const QJsonObject json = Json.value(name).toObject();
        Each(value, cReader{json});
    }
    template <typename tItem>
    void operator()(const QString& name, QList<tItem>& value) const
    {
        const QJsonArray list = Json.value(name).toArray();
        for (const auto& item : list) {
            const QJsonObject json = item.toObject();
            Each(value.emplaceBack(), cReader{json});
        }
    }
};

} // namespace

QJsonObject modEntryDraft::ToJson(const cEntryDraft& draft)
{
    QJsonObject json;
    Each(draft, cWriter{json});
    return json;
}

std::optional<cEntryDraft> modEntryDraft::FromJson(const QJsonObject& json)
{
    cEntryDraft draft;
    Each(draft, cReader{json});
    return draft.Kept.isValid() ? std::optional(draft) : std::nullopt;
}

QString modEntryDraft::Summary(const cEntryFields& fields)
{
    QStringList words{fields.Amount};
    if (fields.Face == eEntryFace::StartBalance) {
        words.append({cText::Tr("Startguthaben"), fields.Account});
    } else if (fields.Face == eEntryFace::Split) {
        for (const cSplitPart& part : fields.Parts) {
            words.append(part.Category.isEmpty() ? part.CategoryText : part.Category);
        }
    } else {
        words.append({fields.Category.isEmpty() ? fields.CategoryText : fields.Category, fields.Description});
    }
    words.removeAll(QString());
    return words.join(u" - "_s);
}
