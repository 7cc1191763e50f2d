#include "views/statement/cRuleListModel.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "import/propose/cOwnRules.h"
#include "import/propose/modOwnRule.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "model/cTemplateItem.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/entry/cEntrySuggestions.h"
#include "views/statement/cRuleTrial.h"
#include "views/statement/modImportText.h"
#include "views/statement/modRuleText.h"
#include "views/template/modBookNames.h"

using namespace Qt::Literals::StringLiterals;

struct cRuleListModel::cWorks
{
    explicit cWorks(const cBookTools& tools)
        : Stored(tools.Settings),
          Accounts(tools.Data, tools.Settings),
          Trial(cImportHiveCache(tools.Data).GetImportHive().getImportEntryList(), Accounts)
    {
    }

    cOwnRules Stored;
    cAccountMap Accounts;
    cRuleTrial Trial;
};

cRuleListModel::cRuleListModel(const cBookTools& tools, QObject* parent)
    : QAbstractTableModel(parent),
      m_tools(tools),
      m_works(std::make_unique<cWorks>(tools)),
      m_suggestions(std::make_unique<cEntrySuggestions>(tools.Data, tools.User)),
      m_rules(m_works->Stored.Load())
{
    m_works->Trial.SetRules(m_rules);
    if (m_rules.isEmpty()) {
        StartNew();
    } else {
        Open(0);
    }
}

cRuleListModel::~cRuleListModel() = default;

void cRuleListModel::Edit(const cOwnRule& rule, int place, bool isNew)
{
    m_draft = rule;
    m_start = rule;
    m_place = place;
    m_isNew = isNew;
    Q_EMIT DraftChanged();
}

void cRuleListModel::Open(int place)
{
    if (IsPlace(place)) {
        Edit(m_rules.at(place), place, false);
    }
}

void cRuleListModel::StartNew()
{
    Edit({}, static_cast<int>(m_rules.size()), true);
}

void cRuleListModel::StartFrom(const cImportEntry& row, const QString& category, const QString& interval)
{
    cOwnRule rule = modOwnRule::FromRow(row);
    rule.Category = category;
    rule.Interval = interval;
    // Behind the rule that the transaction has now the new one would never see it.
    const int place = m_works->Trial.PlaceFor(row);
    Edit(rule, place < 0 ? static_cast<int>(m_rules.size()) : place, true);
    m_start = {}; // a proposal is worth a question before it is dropped
}

void cRuleListModel::SetDraft(const cOwnRule& draft)
{
    m_draft = draft;
}

bool cRuleListModel::IsChanged() const
{
    return CanEdit() && m_draft != m_start;
}

QString cRuleListModel::TypeOf(const cOwnRule& rule)
{
    return rule.Sign == eRuleSign::Any ? QString() : rule.Sign == eRuleSign::In ? modWord::Einnahme : modWord::Ausgabe;
}

bool cRuleListModel::Store(const QList<cOwnRule>& rules, const QString& step)
{
    {
        cUndoStep undo(m_tools.Data, step);
        if (!undo.DoneIf(m_works->Stored.Save(rules))) {
            m_tools.Settings.Reload();
            return false;
        }
    }
    // What keeps its number of rows keeps its place in the window too.
    const bool isSameSize = rules.size() == m_rules.size();
    if (!isSameSize) {
        beginResetModel();
    }
    m_rules = rules;
    m_works->Trial.SetRules(rules);
    if (isSameSize) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    } else {
        endResetModel();
    }
    Q_EMIT RulesChanged();
    return true;
}

bool cRuleListModel::Save()
{
    const QString problem = modRuleText::Problem(m_draft);
    if (!problem.isEmpty()) {
        m_tools.User.Show(eTone::Exclamation, problem);
        return false;
    }
    if (!m_draft.Category.isEmpty() && !modBookNames::UsedCategories(m_tools.Data).contains(m_draft.Category)) {
        const QString path = m_suggestions->OfferNew(m_draft.Category, TypeOf(m_draft));
        if (path.isEmpty()) {
            return false;
        }
        m_draft.Category = path;
    }
    QList<cOwnRule> rules = m_rules;
    if (m_isNew) {
        rules.insert(m_place, m_draft);
    } else {
        rules[m_place] = m_draft;
    }
    if (!Store(rules, m_isNew ? cText::Tr("Regel angelegt") : cText::Tr("Regel geändert"))) {
        return false;
    }
    Open(m_place);
    return true;
}

bool cRuleListModel::Leave()
{
    if (!IsChanged()) {
        return true;
    }
    const eAnswer answer =
        m_tools.User.Ask({.Text = cText::Tr("Die Regel wurde geändert. Soll sie gespeichert werden?"),
                          .Title = cText::Tr("Regeln"),
                          .Buttons = eButtons::YesNoCancel});
    return answer == eAnswer::No || (answer == eAnswer::Yes && Save());
}

bool cRuleListModel::Choose(int place)
{
    const auto before = m_rules.size();
    const int saved = m_place;
    if (!Leave()) {
        return false;
    }
    const bool isPushed = m_rules.size() > before && saved <= place;
    Open(isPushed ? place + 1 : place);
    return true;
}

bool cRuleListModel::Delete(int place)
{
    if (!IsPlace(place)) {
        return false;
    }
    const QString question =
        cText::Tr("Soll diese Regel gelöscht werden?\n{0}", {modRuleText::Conditions(m_rules.at(place))});
    if (m_tools.User.Ask({.Text = question, .Title = cText::Tr("Regel löschen")}) != eAnswer::Yes) {
        return false;
    }
    QList<cOwnRule> rules = m_rules;
    rules.removeAt(place);
    if (!Store(rules, cText::Tr("Regel gelöscht"))) {
        return false;
    }
    if (rules.isEmpty()) {
        StartNew();
    } else {
        Open(qMin(place, static_cast<int>(rules.size()) - 1));
    }
    return true;
}

bool cRuleListModel::CanMove(int place, eMove way) const
{
    return IsPlace(place) && IsPlace(way == eMove::Up ? place - 1 : place + 1);
}

bool cRuleListModel::Move(int place, eMove way)
{
    return MoveTo(place, way == eMove::Up ? place - 1 : place + 1);
}

bool cRuleListModel::MoveTo(int place, int target)
{
    if (!IsPlace(place) || !IsPlace(target)) {
        return false;
    }
    QList<cOwnRule> rules = m_rules;
    rules.move(place, target);
    if (!Store(rules, cText::Tr("Regel verschoben"))) {
        return false;
    }
    Open(target);
    return true;
}

bool cRuleListModel::Switch(int place, bool isOn)
{
    if (!IsPlace(place) || !m_rules.at(place).Unreadable.isEmpty()) {
        return false;
    }
    QList<cOwnRule> rules = m_rules;
    rules[place].IsOn = isOn;
    if (!Store(rules, isOn ? cText::Tr("Regel eingeschaltet") : cText::Tr("Regel ausgeschaltet"))) {
        return false;
    }
    if (!m_isNew && place == m_place) {
        m_draft.IsOn = isOn;
        m_start.IsOn = isOn;
    }
    return true;
}

QString cRuleListModel::TrialText() const
{
    if (!CanEdit()) {
        return modRuleText::Problem(m_draft);
    }
    const int total = m_works->Trial.Total();
    if (total == 0) {
        return cText::Tr("Es sind keine Umsätze eingelesen, an denen sich die Regel erproben ließe.");
    }
    const cRuleTrial::cFound found = m_works->Trial.Try(m_draft, m_place);
    const QStringList numbers{QString::number(found.Count), QString::number(total)};
    const QString text = total == 1 ? cText::Tr("passt auf {0} von {1} Umsatz", numbers)
                                    : cText::Tr("passt auf {0} von {1} Umsätzen", numbers);
    return found.Earlier == 0
        ? text
        : text + cText::Tr("; bei {0} davon gilt schon eine Regel weiter oben", {QString::number(found.Earlier)});
}

int cRuleListModel::CountAt(int place) const
{
    return m_works->Trial.CountAt(place);
}

QStringList cRuleListModel::Examples() const
{
    QStringList lines;
    const cImportEntryList rows = m_works->Trial.Try(m_draft, m_place).Examples;
    for (const cImportEntry& row : rows) {
        lines.append(modImportText::Row(row, m_tools.Format));
    }
    return lines;
}

QStringList cRuleListModel::Accounts() const
{
    return cEntrySuggestions::VisibleAccounts(m_tools.Data);
}

QString cRuleListModel::EmptyTitle()
{
    return cText::Tr("Noch keine Regel");
}

QString cRuleListModel::EmptyHint()
{
    return cText::Tr("Eine Regel sagt, welche Kategorie Umsätze bekommen, die Sie an Text, Empfänger oder Betrag "
                     "erkennen. Rechts legen Sie die erste an.");
}

int cRuleListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rules.size());
}

int cRuleListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString cRuleListModel::Text(int place, int column) const
{
    const cOwnRule& rule = m_rules.at(place);
    switch (column) {
    case Rule: return modRuleText::Conditions(rule);
    case Result: return modRuleText::Result(rule);
    case Count: return QString::number(CountAt(place));
    default: return {};
    }
}

QVariant cRuleListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !IsPlace(index.row())) {
        return {};
    }
    const cOwnRule& rule = m_rules.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: return Text(index.row(), index.column());
    case Qt::CheckStateRole:
        return index.column() == Rule ? QVariant(rule.IsOn ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == Count ? QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case QuietRole: return !rule.IsOn;
    default: return {};
    }
}

bool cRuleListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    return index.isValid() && index.column() == Rule && role == Qt::CheckStateRole
        && Switch(index.row(), value.toInt() == Qt::Checked);
}

Qt::ItemFlags cRuleListModel::flags(const QModelIndex& index) const
{
    const bool canSwitch = index.isValid() && index.column() == Rule && m_rules.at(index.row()).Unreadable.isEmpty();
    return QAbstractTableModel::flags(index) | (canSwitch ? Qt::ItemIsUserCheckable : Qt::NoItemFlags);
}

QVariant cRuleListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::Alignment(section == Count ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Rule: return cText::Tr("Wenn");
    case Result: return cText::Tr("Dann");
    case Count: return cText::Tr("Umsätze");
    default: return {};
    }
}
