#include "views/overview/cFirstSteps.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "model/modBalance.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/template/cTemplateFlow.h"

#include <QSet>

#include <algorithm>

QList<cFirstSteps::cRow> cFirstSteps::Start() const
{
    QList<cRow> rows;
    const cTemplateItemList accounts = modTemplate::InOrder(m_tools.Data.GetAccounts());
    for (const cTemplateItem& account : accounts) {
        if (!modTemplate::IsVisible(account)) {
            continue;
        }
        const auto stored = m_tools.Data.GetStartGuthaben(account.TemplateName);
        rows.append({account.TemplateName,
                     stored ? modSum::ToText(modBalance::Effect(*stored, account.TemplateName), Decimal()) : QString(),
                     account.TemplateName});
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
        const QString name = row.Name.trimmed().toCaseFolded();
        if (!name.isEmpty() && names.contains(name)) {
            return cText::Tr("Das Konto '{0}' steht zweimal da. Bitte lassen Sie eine der beiden Zeilen leer.",
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
    if (const QString problem = Problem(rows, Decimal()); !problem.isEmpty()) {
        return problem;
    }
    cUndoStep step(m_tools.Data, cText::Tr("Konten und Kontostände eingetragen"));
    for (const cRow& row : rows) {
        if (const QString problem = Store(row); !problem.isEmpty()) {
            (void)step.Revert();
            return problem;
        }
    }
    return step.Done() ? QString() : cText::Tr("Die Konten konnten nicht gespeichert werden.");
}

// Who types over a name means the account that stood there.
QString cFirstSteps::Rename(const cRow& row) const
{
    const QString name = modTemplate::NewAccount({}, row.Name).TemplateName;
    if (row.Former.isEmpty() || name.isEmpty() || name == row.Former || !m_tools.Data.FindAccount(row.Former)) {
        return {};
    }
    cTemplateFlow flow(m_tools);
    if (flow.IsAccountTaken(name, m_tools.Data.FindAccount(row.Former)->ID)) {
        return cText::Tr("Ein Konto '{0}' gibt es schon. Bitte wählen Sie einen anderen Namen.", {name});
    }
    return flow.RenameWithEntries(row.Former, name) ? QString()
                                                    : cText::Tr("Die Konten konnten nicht gespeichert werden.");
}

QString cFirstSteps::Store(const cRow& row) const
{
    if (row.Name.trimmed().isEmpty()) {
        return {};
    }
    if (const QString problem = Rename(row); !problem.isEmpty()) {
        return problem;
    }
    cTemplateItem item = modTemplate::NewAccount(m_tools.Data.GetAccounts(), row.Name);
    if (item.TemplateName.isEmpty()) {
        return cText::Tr("'{0}' kann kein Konto heißen. Bitte wählen Sie einen anderen Namen.", {row.Name});
    }
    const cTemplateItemList accounts = m_tools.Data.GetAccounts();
    const auto known = std::find_if(accounts.begin(), accounts.end(), [&](const cTemplateItem& account) {
        return account.TemplateName.compare(item.TemplateName, Qt::CaseInsensitive) == 0;
    });
    const QString name = known == accounts.end() ? item.TemplateName : known->TemplateName;
    if (known == accounts.end() && !m_tools.Data.AddNewTemplate(item)) {
        return cText::Tr("Die Konten konnten nicht gespeichert werden.");
    }
    const std::optional<qint64> cents = modSum::Evaluate(row.Amount, Decimal());
    const std::optional<cEntryItem> stored = m_tools.Data.GetStartGuthaben(name);
    const bool isSame = stored && cents && modBalance::Effect(*stored, name) == *cents; // and keeps its day
    return row.Amount.trimmed().isEmpty() || isSame
            || (cents && m_tools.Data.SetStartGuthaben(name, *cents, m_tools.Clock.Today()))
        ? QString()
        : cText::Tr("Die Konten konnten nicht gespeichert werden.");
}
