#include "views/entry/modEntryDraft.h"

#include "base/cText.h"
#include "core/cRecordFields.h"

using namespace Qt::Literals::StringLiterals;

template <>
struct cRecordFields<cSplitPart>
{
    static void Each(auto& part, const auto& take)
    {
        take("ID", part.ID);
        take("Category", part.Category);
        take("Description", part.Description);
        take("Amount", part.Amount);
        take("CategoryText", part.CategoryText);
    }
};

template <>
struct cRecordFields<cEntryItemFixMod>
{
    static void Each(auto& fixMod, const auto& take)
    {
        take("ID", fixMod.ID);
        take("EntryRelation", fixMod.EntryRelation);
        take("EntryModType", fixMod.EntryModType);
        take("EntryStartDate", fixMod.EntryStartDate);
        take("EntryEndDate", fixMod.EntryEndDate);
        take("EntryValue", fixMod.EntryValue);
        take("EntryComment", fixMod.EntryComment);
        take("EntryDay", fixMod.EntryDay);
    }
};

template <>
struct cRecordFields<cReceiptSource>
{
    static void Each(auto& source, const auto& take)
    {
        take("Path", source.Path);
        take("Bytes", source.Bytes);
    }
};

template <>
struct cRecordFields<cEntryFields>
{
    static void Each(auto& fields, const auto& take)
    {
        take("Face", fields.Face);
        take("Amount", fields.Amount);
        take("IsAmountTyped", fields.IsAmountTyped);
        take("IsAccountChosen", fields.IsAccountChosen);
        take("Description", fields.Description);
        take("Category", fields.Category);
        take("CategoryText", fields.CategoryText);
        take("Type", fields.Type);
        take("BroughtType", fields.BroughtType);
        take("OpenType", fields.OpenType);
        take("Account", fields.Account);
        take("Target", fields.Target);
        take("Payer", fields.Payer);
        take("Date", fields.Date);
        take("DateText", fields.DateText);
        take("IsDayKept", fields.IsDayKept);
        take("HasEnd", fields.HasEnd);
        take("End", fields.End);
        take("EndText", fields.EndText);
        take("CancelBy", fields.CancelBy);
        take("CancelByText", fields.CancelByText);
        take("Interval", fields.Interval);
        take("BroughtInterval", fields.BroughtInterval);
        take("Parts", fields.Parts);
        take("Corrections", fields.Corrections);
        take("NewReceipts", fields.NewReceipts);
    }
};

template <>
struct cRecordFields<cEntryDraft>
{
    static void Each(auto& draft, const auto& take)
    {
        take("Kept", draft.Kept);
        take("EntryId", draft.EntryId);
        take("From", draft.From);
        take("Fields", draft.Fields);
    }
};

QJsonObject modEntryDraft::ToJson(const cEntryDraft& draft)
{
    return modRecordJson::Written(draft).toObject();
}

std::optional<cEntryDraft> modEntryDraft::FromJson(const QJsonObject& json)
{
    cEntryDraft draft;
    modRecordJson::Read(json, draft);
    if (eEntryFace& face = draft.Fields.Face; face != eEntryFace::Split && face != eEntryFace::StartBalance) {
        face = eEntryFace::Normal; // also where a later version has more of them
    }
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
