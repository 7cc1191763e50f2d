#include "views/overview/cFirstSteps.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "import/propose/modCash.h"
#include "model/modBalance.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/ledger/cOpeningBalance.h"
#include "views/ledger/cStatementLedger.h"
#include "views/template/cTemplateFlow.h"

#include <QSet>
#include <QUuid>

#include <algorithm>
#include <utility>

namespace {

bool IsPurse(const cTemplateItem& account)
{
    return !modCash::Accounts({account}, {}).isEmpty();
}

// The account under the name that was typed over its own. Where that makes it another kind, nothing else of it is right
// either: what stands in the group of cash takes every withdrawal.
cTemplateItem Retyped(const cTemplateItem& account, cTemplateItemList others, const QString& name)
{
    others.removeIf([&](const cTemplateItem& other) { return other.ID == account.ID; });
    const cTemplateItem fresh = modTemplate::NewAccount(others, name);
    cTemplateItem retyped = IsPurse(account) == IsPurse(fresh) ? account : fresh;
    retyped.ID = account.ID;
    retyped.TemplateName = fresh.TemplateName;
    return retyped;
}

std::optional<qint64> StartOf(const std::optional<cEntryItem>& stored)
{
    return stored ? std::optional(modBalance::Effect(*stored, stored->EntryAccount)) : std::nullopt;
}

QString Failure()
{
    return cText::Tr("Die Konten konnten nicht gespeichert werden.");
}

} // namespace

QList<cFirstSteps::cRow> cFirstSteps::Start() const
{
    QList<cRow> rows;
    const cTemplateItemList accounts = modTemplate::InOrder(m_tools.Data.GetAccounts());
    for (const cTemplateItem& account : accounts) {
        if (!modTemplate::IsVisible(account)) {
            continue;
        }
        const auto stored = m_tools.Data.GetStartGuthaben(account.TemplateName);
        const std::optional<cTold> told = Told(account.TemplateName);
        const std::optional<qint64> cents = told ? told->Cents : StartOf(stored);
        rows.append(
            {account.TemplateName, cents ? modSum::ToText(*cents, Decimal()) : QString(), account.TemplateName});
    }
    while (rows.size() < Rows) {
        rows.append(cRow{});
    }
    return rows;
}

eDecimal cFirstSteps::Decimal() const
{
    return m_tools.Format.Decimal();
}

QString cFirstSteps::Problem(const QList<cRow>& rows, eDecimal decimal)
{
    QSet<QString> names;
    for (const cRow& row : rows) {
        const QString name = row.Name.simplified().toCaseFolded();
        if (!name.isEmpty() && names.contains(name)) {
            return cText::Tr("Das Konto '{0}' steht zweimal da. Bitte ändern Sie einen der beiden Namen.",
                             {row.Name.trimmed()});
        }
        names.insert(name);
        if (name.isEmpty() && !row.Former.isEmpty()) {
            return cText::Tr(
                "Das Konto '{0}' braucht einen Namen. Löschen können Sie es unter „Kategorien und Konten“.",
                {row.Former});
        }
        if (row.Amount.trimmed().isEmpty()) {
            continue;
        }
        if (name.isEmpty()) {
            return cText::Tr("Zu welchem Konto gehört der Betrag {0}? Bitte tragen Sie seinen Namen ein.",
                             {row.Amount});
        }
        if (!modSum::Evaluate(row.Amount, decimal)) {
            return modSum::Fault(row.Amount, decimal);
        }
    }
    return {};
}

QString cFirstSteps::Save(const QList<cRow>& rows) const
{
    if (const QString objection = Problem(rows, Decimal()); !objection.isEmpty()) {
        return objection;
    }
    cUndoStep step(m_tools.Data, cText::Tr("Konten und Kontostände eingetragen"));
    QString problem = Rename(rows);
    for (auto row = rows.begin(); row != rows.end() && problem.isEmpty(); ++row) {
        problem = Store(*row);
    }
    if (!problem.isEmpty()) {
        (void)step.Revert();
        return problem;
    }
    return step.Done() ? QString() : Failure();
}

// Who types over a name means the account that stood there. All of them step aside before the first takes its new name,
// which may be the old one of another.
QString cFirstSteps::Rename(const QList<cRow>& rows) const
{
    cTemplateFlow flow(m_tools);
    const cTemplateItemList accounts = m_tools.Data.GetAccounts();
    QList<std::pair<QString, cTemplateItem>> moves;
    for (const cRow& row : rows) {
        std::optional<cTemplateItem> account = m_tools.Data.FindAccount(row.Former);
        if (!account || row.Former.isEmpty()) {
            continue;
        }
        const cTemplateItem retyped = Retyped(*account, accounts, row.Name);
        if (retyped.TemplateName.isEmpty() || retyped.TemplateName == row.Former) {
            continue;
        }
        account->TemplateName = QUuid::createUuid().toString(QUuid::WithoutBraces);
        if (!flow.RenameWithEntries(row.Former, *account)) {
            return Failure();
        }
        moves.append({account->TemplateName, retyped});
    }
    for (const auto& [aside, account] : std::as_const(moves)) {
        if (flow.IsTaken(account)) {
            return cText::Tr("Ein Konto '{0}' gibt es schon. Bitte wählen Sie einen anderen Namen.",
                             {account.TemplateName});
        }
        if (!flow.RenameWithEntries(aside, account)) {
            return Failure();
        }
    }
    return {};
}

QString cFirstSteps::Store(const cRow& row) const
{
    if (row.Name.trimmed().isEmpty()) {
        return {};
    }
    const cTemplateItemList accounts = m_tools.Data.GetAccounts();
    cTemplateItem item = modTemplate::NewAccount(accounts, row.Name);
    if (item.TemplateName.isEmpty()) {
        return cText::Tr("'{0}' kann kein Konto heißen. Bitte wählen Sie einen anderen Namen.", {row.Name});
    }
    const QString known = modTemplate::AccountLike(accounts, item.TemplateName);
    const QString name = known.isEmpty() ? item.TemplateName : known;
    if (known.isEmpty() && !m_tools.Data.AddNewTemplate(item)) {
        return Failure();
    }
    if (row.Amount.trimmed().isEmpty()) {
        return {};
    }
    const std::optional<qint64> cents = modSum::Evaluate(row.Amount, Decimal());
    return cents ? StoreBalance(name, *cents) : Failure();
}

std::optional<cFirstSteps::cTold> cFirstSteps::Told(const QString& account) const
{
    cStatementLedger ledger(m_tools.Data, m_tools.Settings);
    const QStringList numbers = ledger.Numbers();
    const auto own = std::find_if(numbers.begin(), numbers.end(),
                                  [&](const QString& number) { return ledger.AccountOf(number) == account; });
    if (own == numbers.end()) {
        return std::nullopt;
    }
    ledger.LoadOnce(*own);
    if (ledger.Rows().isEmpty() || ledger.IsShared()) {
        return std::nullopt;
    }
    cTold told{*own, ledger.Rows().constLast().ImportDate, StartOf(m_tools.Data.GetStartGuthaben(account)),
               ledger.Check().IsAnchored};
    if (told.IsBank) {
        told.Cents = ledger.BankOn(told.Day);
    } else if (told.Cents) {
        for (const cImportEntry& row : ledger.Rows()) {
            *told.Cents += row.ImportValue;
        }
    }
    return told;
}

// An amount of today beside rows of days before leads back to what was there before the first of them; stored as it is,
// all rows would count on top of it.
QString cFirstSteps::StoreBalance(const QString& account, qint64 cents) const
{
    const std::optional<cTold> told = Told(account);
    const std::optional<qint64> shown = told ? told->Cents : StartOf(m_tools.Data.GetStartGuthaben(account));
    if (shown == cents && !(told && told->IsBank)) {
        return {}; // and keeps its day
    }
    if (told && told->IsBank && shown != cents) {
        return cText::Tr("Laut Kontoauszug waren am {1} {2} auf dem Konto '{0}'. Ist seither etwas dazugekommen, lesen "
                         "Sie bitte den nächsten Kontoauszug ein.",
                         {account, modDate::ToText(told->Day), m_tools.Format.Cents(*shown)});
    }
    if (!told) {
        return m_tools.Data.SetStartGuthaben(account, cents, m_tools.Clock.Today()) ? QString() : Failure();
    }
    const cOpeningBalance opening(m_tools);
    const auto offer = opening.For(told->Number, told->IsBank ? told->Day : m_tools.Clock.Today(), cents);
    return !offer || opening.Take(*offer) ? QString() : Failure();
}
