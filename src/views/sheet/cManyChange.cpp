#include "views/sheet/cManyChange.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modCount.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "model/modRecurrence.h"
#include "model/modSplit.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/common/modUnsaved.h"
#include "views/entry/cEntryWriter.h"
#include "views/entry/cReconciledDays.h"
#include "views/entry/cSplitGroup.h"
#include "views/entry/cStartBalance.h"

#include <QSet>

#include <algorithm>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsSeries(const cEntryItem& entry)
{
    return modRecurrence::IsRecurring(entry.EntryInterval);
}

// Whether the account by which a list shows the entry is the one where its money arrives.
bool LeadsTo(const cEntryItem& entry, const QString& shown)
{
    return entry.IsTransfer() && !shown.isEmpty() && entry.EntryAccountMove == shown;
}

cEntryItem Applied(cEntryItem entry, const cManyFields& fields, const QString& shown)
{
    const auto take = [](QString& now, const QString& wanted) { now = wanted.isEmpty() ? now : wanted; };
    take(entry.EntryCategory, fields.Category);
    take(LeadsTo(entry, shown) ? entry.EntryAccountMove : entry.EntryAccount, fields.Account);
    take(entry.EntryDescription, fields.Description);
    take(entry.EntryType, fields.Type);
    if (entry.IsTransfer()) {
        take(entry.EntryAccountMove, fields.Target);
    } else {
        entry.EntryAccountMove.clear();
    }
    return entry;
}

} // namespace

cManyChange::cManyChange(const cBookTools& tools, const QList<cEntryListModel::cKey>& rows, eParts parts)
    : m_tools(tools),
      m_suggestions(tools.Data, tools.User)
{
    QSet<int> seen;
    for (const cEntryListModel::cKey& row : rows) {
        const std::optional<cEntryItem> entry = seen.contains(row.ID) ? std::nullopt : m_tools.Data.LoadEntry(row.ID);
        if (!entry) {
            continue;
        }
        const cEntryItemList group = parts == eParts::All ? cSplitGroup(m_tools.Data).Parts(*entry) : cEntryItemList();
        const cEntryItemList meant = group.isEmpty() ? cEntryItemList{*entry} : group;
        for (const cEntryItem& each : meant) {
            seen.insert(each.ID);
            Take(each);
        }
    }
    QSet<int> chosen;
    for (const cEntryListModel::cKey& row : rows) {
        chosen.insert(row.ID);
    }
    m_hasMore = std::any_of(m_entries.begin(), m_entries.end(),
                            [&](const cEntryItem& entry) { return !chosen.contains(entry.ID); });
}

void cManyChange::Take(const cEntryItem& entry)
{
    if (cStartBalance(m_tools.Data, m_tools.Format.Decimal()).IsOne(entry)) {
        ++m_startBalances;
    } else {
        m_entries.append(entry);
    }
}

QString cManyChange::Summary() const
{
    const qsizetype series = std::count_if(m_entries.begin(), m_entries.end(), IsSeries);
    QStringList lines{
        cText::Tr("Geändert wird, was Sie hier wählen, bei: {0}.", {modCount::Entries(m_entries.size())})};
    if (series > 0) {
        lines.append(series == 1 ? cText::Tr("Darunter ist eine Serie. Bei ihr ändern sich alle Vorkommen, vergangene "
                                             "wie zukünftige.")
                                 : cText::Tr("Darunter sind {0} Serien. Bei ihnen ändern sich alle Vorkommen, "
                                             "vergangene wie zukünftige.",
                                             {QString::number(series)}));
    }
    return (lines + Left()).join(u'\n');
}

QStringList cManyChange::Left() const
{
    return m_startBalances == 0 ? QStringList() : QStringList(cText::Tr("Startguthaben bleiben, wie sie sind."));
}

QStringList cManyChange::Accounts() const
{
    return cEntrySuggestions::VisibleAccounts(m_tools.Data);
}

bool cManyChange::ShowsTarget(const QString& type) const
{
    return type == modWord::Umbuchung
        || (type.isEmpty() && std::any_of(m_entries.begin(), m_entries.end(), std::mem_fn(&cEntryItem::IsTransfer)));
}

// As they are stored, with the parts that have to go along.
cEntryItemList cManyChange::Affected(const cManyFields& fields) const
{
    cEntryItemList all = m_entries;
    if (fields.Account.isEmpty()) {
        return all;
    }
    QSet<int> known;
    for (const cEntryItem& entry : m_entries) {
        known.insert(entry.ID);
    }
    for (const cEntryItem& entry : m_entries) {
        const cEntryItemList parts =
            modSplit::Group(entry) == 0 ? cEntryItemList() : cSplitGroup(m_tools.Data).Parts(entry);
        for (const cEntryItem& part : parts) {
            if (!known.contains(part.ID)) {
                known.insert(part.ID);
                all.append(part);
            }
        }
    }
    return all;
}

bool cManyChange::HasAny() const
{
    if (m_entries.isEmpty() && m_startBalances > 0) {
        (void)Refuse(cText::Tr(
            "Ein Startguthaben lässt sich nur einzeln ändern: Öffnen Sie seinen Eintrag mit der Eingabetaste."));
    }
    return !m_entries.isEmpty();
}

// As they are to be stored, without those that are like that already.
cEntryItemList cManyChange::Changed(const cManyFields& fields, const QString& shown) const
{
    cEntryItemList changed;
    const cEntryItemList affected = Affected(fields);
    for (const cEntryItem& entry : affected) {
        cManyFields own = fields;
        const bool isAlong = std::none_of(m_entries.begin(), m_entries.end(),
                                          [&](const cEntryItem& chosen) { return chosen.ID == entry.ID; });
        if (isAlong) {
            own = {.Account = fields.Account};
        }
        if (const cEntryItem now = Applied(entry, own, shown); now != entry) {
            changed.append(now);
        }
    }
    return changed;
}

cManyChange::eSaved cManyChange::Save(const cManyFields& fields)
{
    const cEntryItemList changed = Changed(fields, {});
    const eSaved checked = Check(fields, changed);
    return checked == eSaved::Saved ? Store(changed) : checked;
}

eAnswer cManyChange::AskToSave() const
{
    return modUnsaved::Ask(m_tools.User);
}

cManyChange::eSaved cManyChange::Store(const cEntryItemList& changed) const
{
    cReconciledGuard guard(m_tools);
    cUndoStep step(m_tools.Data,
                   changed.size() == 1 ? cText::Tr("Eintrag '{0}' geändert", {changed.first().Name()})
                                       : cText::Tr("{0} Einträge geändert", {QString::number(changed.size())}));
    return step.DoneIf(Write(changed) && guard.Allows()) ? eSaved::Saved : eSaved::Refused;
}

cManyChange::eSaved cManyChange::Check(const cManyFields& fields, const cEntryItemList& changed) const
{
    if (changed.isEmpty()) {
        return Refuse(cText::Tr("So, wie Sie es gewählt haben, ändert sich nichts."));
    }
    if (fields.Category == modWord::Startguthaben) {
        return Refuse(
            cText::Tr("Ein Startguthaben legen Sie für jedes Konto einzeln fest. Bitte wählen Sie eine andere "
                      "Kategorie."));
    }
    const bool isSplit = std::any_of(changed.begin(), changed.end(), [](const cEntryItem& entry) {
        return entry.IsTransfer() && modSplit::Group(entry) != 0;
    });
    if (isSplit) {
        return Refuse(cText::Tr("Eine Umbuchung kann nicht aufgeteilt werden."));
    }
    const auto fault = std::find_if(changed.begin(), changed.end(), [](const cEntryItem& entry) {
        return entry.IsTransfer() && (entry.EntryAccountMove.isEmpty() || entry.EntryAccountMove == entry.EntryAccount);
    });
    if (fault == changed.end()) {
        return eSaved::Saved;
    }
    if (fault->EntryAccountMove.isEmpty()) {
        return Refuse(cText::Tr("Nach Konto: Bitte wählen Sie das Konto, auf dem das Geld ankommt."),
                      eSaved::BadTarget);
    }
    const QString why =
        cText::Tr("Nach Konto: Von '{0}' kann das Geld nur auf ein anderes Konto gehen.", {fault->EntryAccount});
    const QString which = cText::Tr("Das betrifft '{0}'.", {fault->Name()});
    return Refuse(fields.Target.isEmpty() && changed.size() > 1 ? why + u'\n' + which : why, eSaved::BadTarget);
}

bool cManyChange::Write(const cEntryItemList& changed) const
{
    cEntryWriter writer(m_tools.Data, m_tools.User);
    return std::all_of(changed.begin(), changed.end(), [&](const cEntryItem& entry) {
        QList<cEntryWrite> row{{entry, m_tools.Data.GetEntryMods(entry.ID)}};
        return writer.Write(row, {}, {});
    });
}

// Which account of the transfers is meant; empty without any.
QString cManyChange::TransferText(const cEntryItemList& changed, const cManyFields& fields, const QString& shown)
{
    const auto to = [&](const cEntryItem& entry) { return LeadsTo(entry, fields.Account); };
    const auto from = [&](const cEntryItem& entry) { return entry.IsTransfer() && !to(entry); };
    QString text;
    if (!fields.Account.isEmpty() && std::any_of(changed.begin(), changed.end(), to)) {
        text += u"\n\n"_s + cText::Tr("Umbuchungen nach '{0}' kommen dann auf '{1}' an.", {shown, fields.Account});
    }
    if (!fields.Account.isEmpty() && std::any_of(changed.begin(), changed.end(), from)) {
        text += u"\n\n"_s + cText::Tr("Umbuchungen gehen dann von '{0}' ab.", {fields.Account});
    }
    return text;
}

cManyChange::eSaved cManyChange::AskAndSave(const cManyFields& fields, const QString& shown)
{
    const cEntryItemList changed = Changed(fields, shown);
    if (!HasAny()) {
        return eSaved::Refused;
    }
    if (const eSaved checked = Check(fields, changed); checked != eSaved::Saved) {
        return checked;
    }
    QStringList wishes;
    if (!fields.Category.isEmpty()) {
        wishes.append(cText::Tr("Kategorie '{0}'", {fields.Category}));
    }
    if (!fields.Account.isEmpty()) {
        wishes.append(cText::Tr("Konto '{0}'", {fields.Account}));
    }
    QString text = cText::Tr("Ändern: {0}\nNeu: {1}", {modCount::Entries(changed.size()), wishes.join(u", "_s)});
    text += TransferText(changed, fields, shown);
    if (std::any_of(changed.begin(), changed.end(), IsSeries)) {
        text += u"\n\n"_s + cText::Tr("Bei Serien ändern sich alle Vorkommen, vergangene wie zukünftige.");
    }
    for (const QString& line : Left()) {
        text += u"\n\n"_s + line;
    }
    const eAnswer answer = m_tools.User.Ask({.Text = text, .Title = cText::Tr("Einträge ändern")});
    return answer == eAnswer::Yes ? Store(changed) : eSaved::Refused;
}

cManyChange::eSaved cManyChange::Refuse(const QString& text, eSaved saved) const
{
    m_tools.User.Show(eTone::Objection, text);
    return saved;
}
