#include "views/rule/cRuleEditor.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "import/propose/modOwnRule.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/common/modBookNames.h"
#include "views/common/modUnsaved.h"
#include "views/entry/cEntrySuggestions.h"
#include "views/ledger/modImportText.h"
#include "views/rule/cRuleTrial.h"
#include "views/rule/modRuleText.h"

cRuleEditor::cRuleEditor(const cBookTools& tools, QObject* parent)
    : QObject(parent),
      m_tools(tools),
      m_list(tools),
      m_suggestions(std::make_unique<cEntrySuggestions>(tools.Data, tools.User))
{
    connect(&m_list, &cRuleListModel::RulesChanged, this, &cRuleEditor::FollowSwitch);
    if (m_list.Stored().isEmpty()) {
        StartNew();
    } else {
        Open(0);
    }
}

cRuleEditor::~cRuleEditor() = default;

void cRuleEditor::Edit(const cOwnRule& rule, int place, bool isNew)
{
    m_draft = rule;
    m_start = rule;
    m_place = place;
    m_isNew = isNew;
    Q_EMIT DraftChanged();
}

// The list itself can switch the edited rule on and off.
void cRuleEditor::FollowSwitch()
{
    if (!m_isNew && m_place < m_list.rowCount()) {
        m_draft.IsOn = m_list.Stored().at(m_place).IsOn;
        m_start.IsOn = m_draft.IsOn;
    }
}

void cRuleEditor::Open(int place)
{
    if (place >= 0 && place < m_list.rowCount()) {
        Edit(m_list.Stored().at(place), place, false);
    }
}

void cRuleEditor::StartNew()
{
    Edit({}, m_list.rowCount(), true);
}

void cRuleEditor::StartFrom(const cImportEntry& row, const QString& category, const QString& interval)
{
    cOwnRule rule = modOwnRule::FromRow(row);
    rule.Category = category;
    rule.Interval = interval;
    // Behind the rule that the transaction has now the new one would never see it.
    const int place = m_list.Trial().PlaceFor(row);
    Edit(rule, place < 0 ? m_list.rowCount() : place, true);
    m_start = {}; // a proposal is worth a question before it is dropped
}

void cRuleEditor::SetDraft(const cOwnRule& draft)
{
    m_draft = draft;
}

bool cRuleEditor::IsChanged() const
{
    return CanEdit() && m_draft != m_start;
}

QString cRuleEditor::TypeOf(const cOwnRule& rule)
{
    return rule.Sign == eRuleSign::Any ? QString() : rule.Sign == eRuleSign::In ? modWord::Einnahme : modWord::Ausgabe;
}

bool cRuleEditor::Save()
{
    const QString problem = modRuleText::Problem(m_draft);
    if (!problem.isEmpty()) {
        return m_tools.User.Refuse(problem);
    }
    if (!m_draft.Category.isEmpty() && !modBookNames::UsedCategories(m_tools.Data).contains(m_draft.Category)) {
        const QString path = m_suggestions->OfferNew(m_draft.Category, TypeOf(m_draft));
        if (path.isEmpty()) {
            return false;
        }
        m_draft.Category = path;
    }
    const bool isStored = m_isNew ? m_list.Add(m_place, m_draft) : m_list.Change(m_place, m_draft);
    if (!isStored) {
        return false;
    }
    Open(m_place);
    return true;
}

bool cRuleEditor::Leave()
{
    if (!IsChanged()) {
        return true;
    }
    const eAnswer answer = modUnsaved::Ask(m_tools.User);
    return answer == eAnswer::No || (answer == eAnswer::Yes && Save());
}

bool cRuleEditor::Choose(int place)
{
    const int before = m_list.rowCount();
    const int saved = m_place;
    if (!Leave()) {
        return false;
    }
    const bool isPushed = m_list.rowCount() > before && saved <= place;
    Open(isPushed ? place + 1 : place);
    return true;
}

bool cRuleEditor::Delete()
{
    if (m_isNew || !m_list.Delete(m_place)) {
        return false;
    }
    if (m_list.rowCount() == 0) {
        StartNew();
    } else {
        Open(qMin(m_place, m_list.rowCount() - 1));
    }
    return true;
}

bool cRuleEditor::CanMove(eMove way) const
{
    return !m_isNew && Target(way) >= 0 && Target(way) < m_list.rowCount();
}

bool cRuleEditor::Move(eMove way)
{
    if (!Leave() || !CanMove(way)) {
        return false;
    }
    const int target = Target(way);
    if (!m_list.MoveTo(m_place, target)) {
        return false;
    }
    Open(target);
    return true;
}

QString cRuleEditor::TrialText() const
{
    if (!CanEdit()) {
        return modRuleText::Problem(m_draft);
    }
    const int total = m_list.Trial().Total();
    if (total == 0) {
        return cText::Tr("Es sind keine Umsätze eingelesen, an denen sich die Regel erproben ließe.");
    }
    const cRuleTrial::cFound found = m_list.Trial().Try(m_draft, m_place);
    const QStringList numbers{QString::number(found.Count), QString::number(total)};
    const QString text = total == 1 ? cText::Tr("passt auf {0} von {1} Umsatz", numbers)
                                    : cText::Tr("passt auf {0} von {1} Umsätzen", numbers);
    return found.Earlier == 0
        ? text
        : text + cText::Tr("; bei {0} davon gilt schon eine Regel weiter oben", {QString::number(found.Earlier)});
}

QStringList cRuleEditor::Examples() const
{
    QStringList lines;
    const cImportEntryList rows = m_list.Trial().Try(m_draft, m_place).Examples;
    for (const cImportEntry& row : rows) {
        lines.append(modImportText::Row(row, m_tools.Format));
    }
    return lines;
}

QStringList cRuleEditor::Accounts() const
{
    return cEntrySuggestions::VisibleAccounts(m_tools.Data);
}
