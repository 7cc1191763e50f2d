#include "views/rule/cRuleListModel.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "import/propose/cOwnRules.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/common/modBookNames.h"
#include "views/rule/cRuleTrial.h"
#include "views/rule/modRuleText.h"

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
      m_rules(m_works->Stored.Load())
{
    m_works->Trial.SetRules(m_rules);
}

cRuleListModel::~cRuleListModel() = default;

bool cRuleListModel::Store(const QList<cOwnRule>& rules, const QString& step)
{
    {
        cUndoStep undo(m_tools.Data, step);
        if (!undo.DoneIf(m_works->Stored.Save(rules))) {
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

bool cRuleListModel::Add(int place, const cOwnRule& rule)
{
    QList<cOwnRule> rules = m_rules;
    rules.insert(place, rule);
    return Store(rules, cText::Tr("Regel angelegt"));
}

bool cRuleListModel::Change(int place, const cOwnRule& rule)
{
    QList<cOwnRule> rules = m_rules;
    rules[place] = rule;
    return Store(rules, cText::Tr("Regel geändert"));
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
    return Store(rules, cText::Tr("Regel gelöscht"));
}

bool cRuleListModel::MoveTo(int place, int target)
{
    if (!IsPlace(place) || !IsPlace(target)) {
        return false;
    }
    QList<cOwnRule> rules = m_rules;
    rules.move(place, target);
    return Store(rules, cText::Tr("Regel verschoben"));
}

bool cRuleListModel::Switch(int place, bool isOn)
{
    if (!IsPlace(place) || !m_rules.at(place).Unreadable.isEmpty()) {
        return false;
    }
    QList<cOwnRule> rules = m_rules;
    rules[place].IsOn = isOn;
    return Store(rules, isOn ? cText::Tr("Regel eingeschaltet") : cText::Tr("Regel ausgeschaltet"));
}

const cRuleTrial& cRuleListModel::Trial() const
{
    return m_works->Trial;
}

int cRuleListModel::CountAt(int place) const
{
    return m_works->Trial.CountAt(place);
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
