#include "views/entry/cStartBalance.h"

#include "base/cText.h"
#include "base/modSum.h"
#include "model/modBalance.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"

bool cStartBalance::IsOne(const cEntryItem& entry) const
{
    if (entry.EntryCategory != modWord::Startguthaben || entry.IsTransfer()) {
        return false;
    }
    const std::optional<cEntryItem> stored = m_data.GetStartGuthaben(entry.EntryAccount);
    return stored && stored->ID == entry.ID;
}

cEntryFields cStartBalance::Show(const QString& account) const
{
    const std::optional<cEntryItem> stored = m_data.GetStartGuthaben(account);
    cEntryFields fields;
    fields.Face = eEntryFace::StartBalance;
    fields.Account = account;
    fields.Amount = modSum::ToText(stored ? modBalance::Effect(*stored, {}) : 0, m_decimal);
    fields.Decimal = m_decimal;
    fields.Date = stored ? stored->EntryDate : QDate();
    fields.IsDayKept = stored && !fields.Date.isValid();
    return fields;
}

bool cStartBalance::Save(const QString& account, qint64 cents, QDate day) const
{
    cUndoStep step(m_data, cText::Tr("Startguthaben von '{0}' festgelegt", {account}));
    return step.DoneIf(m_data.SetStartGuthaben(account, cents, day));
}
