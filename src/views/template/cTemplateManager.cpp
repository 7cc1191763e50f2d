#include "views/template/cTemplateManager.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modAmount.h"
#include "base/modSum.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/modBalance.h"
#include "model/modRecurrence.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/budget/modLimits.h"
#include "views/common/modSetting.h"
#include "views/common/modUnsaved.h"
#include "views/look/cCategoryLooks.h"
#include "views/template/cBankNumbers.h"
#include "views/template/cTemplateFlow.h"
#include "views/template/cTemplateRemoval.h"
#include "views/template/modTemplateNodes.h"
#include "views/template/modTemplateOrder.h"
#include "views/template/modTemplateText.h"

#include <algorithm>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QChar layoutSeparator = u'#'; // between the two trees

} // namespace

cTemplateManager::cTemplateManager(const cBookTools& tools, QObject* parent)
    : QObject(parent),
      m_tools(tools),
      m_categories({cText::Tr("Kategorie"), cText::Tr("Buchungsart"), cText::Tr("Intervall"), cText::Tr("Monatslimit"),
                    cText::Tr("Buchungen")},
                   {cTemplateTreeModel::CategoryLimit, cTemplateTreeModel::CategoryEntries}),
      m_accounts(
          {cText::Tr("Konto"), cText::Tr("Bankkontonummern"), cText::Tr("Startguthaben"), cText::Tr("Buchungen")},
          {cTemplateTreeModel::AccountStart, cTemplateTreeModel::AccountEntries})
{
    Refresh();
}

cTemplateManager::~cTemplateManager() = default;

void cTemplateManager::Refresh()
{
    const cTemplateItemList items = m_tools.Data.GetTemplates();
    const auto cents = [this](qint64 value) { return m_tools.Format.Cents(value); };
    std::vector<cTemplateBranch> categories =
        modTemplateNodes::Categories(items, m_tools.Data.CountEntriesByCategory(), cents);
    const cCategoryLooks looks = cCategoryLooks::Read(m_tools.Data);
    for (cTemplateBranch& branch : categories) {
        branch.Node.Look = looks.Shown(branch.Node.Path);
    }
    m_categories.SetBranches(std::move(categories));
    modTemplateNodes::cAccountFacts facts{m_tools.Data.CountEntriesByAccount(), {}, {}};
    const QHash<QString, cEntryItem> starts = m_tools.Data.GetStartBalances();
    for (const cEntryItem& start : starts) {
        facts.StartBalances.insert(start.EntryAccount, modBalance::Effect(start, {}));
    }
    const QList<std::pair<QString, QString>> numbers = cBankNumbers(m_tools.Data, m_tools.Settings).All();
    for (const auto& [number, account] : numbers) {
        facts.Numbers[account].append(number);
    }
    m_accounts.SetBranches(modTemplateNodes::Accounts(items, facts, cents));
}

bool cTemplateManager::IsReadOnly() const
{
    return m_tools.Data.IsReadOnly();
}

QDate cTemplateManager::Today() const
{
    return m_tools.Clock.Today();
}

QHash<int, QString> cTemplateManager::AccountNames() const
{
    QHash<int, QString> names;
    for (const cTemplateBranch& branch : m_accounts.Branches()) {
        for (const cTemplateNode& node : branch.Children) {
            names.insert(node.Id, node.Path);
        }
    }
    names.remove(0);
    return names;
}

bool cTemplateManager::Tell(bool isDone)
{
    if (!isDone) {
        return false;
    }
    const QHash<int, QString> before = AccountNames();
    Refresh();
    const QHash<int, QString> now = AccountNames();
    for (auto account = now.begin(); account != now.end(); ++account) {
        if (const QString old = before.value(account.key(), *account); old != *account) {
            Q_EMIT AccountRenamed(old, *account);
        }
    }
    Q_EMIT BookChanged();
    return true;
}

bool cTemplateManager::TellGone(bool isDone, const QString& oldName, const QString& newName)
{
    if (isDone) {
        Q_EMIT AccountRenamed(oldName, newName);
    }
    return Tell(isDone);
}

std::optional<cTemplateFields> cTemplateManager::Load(const cTemplateNode& node) const
{
    return cTemplateWriter(m_tools).Load(node, m_tools.Clock.Today());
}

std::optional<QString> cTemplateManager::Save(const cTemplateNode& node, const cTemplateFields& old,
                                              const cTemplateFields& fields)
{
    const std::optional<QString> name = cTemplateWriter(m_tools).Save(node, old, fields);
    Tell(name && fields != old);
    return name;
}

eAnswer cTemplateManager::AskToSave() const
{
    return modUnsaved::Ask(m_tools.User);
}

std::optional<cTemplateItem> cTemplateManager::FindCategory(const QString& path) const
{
    const cTemplateItemList items = m_tools.Data.GetTemplates();
    const auto find = [&](const auto& is) {
        return std::find_if(items.begin(), items.end(), [&](const cTemplateItem& item) {
            return !modTemplate::IsAccount(item) && is(modTemplate::Path(item), path);
        });
    };
    const auto exact = find(std::equal_to());
    const auto found = exact != items.end() ? exact : find(modTemplate::IsSameName);
    return found == items.end() ? std::nullopt : std::optional(*found);
}

bool cTemplateManager::HasMain(const QString& main) const
{
    return Mains().contains(main);
}

QString cTemplateManager::Add(cTemplateItem item, const QString& stepName, const QString& name)
{
    item.TemplatePriority = QString::number(
        modTemplate::LastPriority(m_tools.Data.GetTemplates(), item.TemplateType, modTemplate::GroupOf(item)) + 1);
    {
        cUndoStep step(m_tools.Data, stepName);
        if (!step.DoneIf(m_tools.Data.AddNewTemplate(item))) {
            return {};
        }
    }
    Tell(true);
    return name;
}

QString cTemplateManager::AddCategory(const QString& main, const QString& sub)
{
    const cTemplateItem item = modTemplate::NewCategory(m_tools.Data.GetTemplates(), main, sub);
    if (item.TemplateCategory.isEmpty() && item.TemplateName.isEmpty()) {
        m_tools.User.Refuse(cText::Tr("Der Name der Kategorie darf nicht leer sein!"));
        return {};
    }
    const QString path = modTemplate::Path(item);
    if (FindCategory(path)) {
        m_tools.User.Refuse(cText::Tr("Die Kategorie '{0}' existiert bereits!", {path}));
        return {};
    }
    return Add(item, cText::Tr("Kategorie '{0}' angelegt", {path}), path);
}

QString cTemplateManager::AddCategory(const QString& main, const QString& sub,
                                      const std::function<bool(const QString& path)>& then)
{
    const QString path = modTemplate::Path(modTemplate::NewCategory(m_tools.Data.GetTemplates(), main, sub));
    cUndoStep step(m_tools.Data, cText::Tr("Kategorie '{0}' angelegt", {path}));
    const QString added = AddCategory(main, sub);
    if (added.isEmpty() || then(added)) {
        return added;
    }
    step.Revert();
    Refresh();
    return {};
}

QString cTemplateManager::AddAccount(const QString& name, const QString& group)
{
    cTemplateItem item;
    item.TemplateType = modWord::Konto;
    item.TemplateCategory = modTemplate::TypedName(group);
    item.TemplateName = modTemplate::TypedName(name);
    if (item.TemplateName.isEmpty()) {
        m_tools.User.Refuse(cText::Tr("Der Kontoname darf nicht leer sein!"));
        return {};
    }
    if (cTemplateFlow(m_tools).IsTaken(item)) {
        m_tools.User.Refuse(cText::Tr("Dieser Kontoname existiert bereits!"));
        return {};
    }
    return Add(item, cText::Tr("Konto '{0}' angelegt", {item.TemplateName}), item.TemplateName);
}

QString cTemplateManager::AskName(const QString& text, const QString& title)
{
    return m_tools.User.Choose({.Text = text, .Title = title, .Items = {}, .Proposal = {}, .AllowNew = true})
        .value_or(QString())
        .trimmed();
}

// The name may lose characters on the way, and then the entries have to follow it.
QString cTemplateManager::AddKnown(const QString& name, const std::function<QString()>& add, fnMoveEntries move)
{
    const QString known = name; // the line that it comes from goes with the next look at the book
    cUndoStep step(m_tools.Data, cText::Tr("'{0}' angelegt", {known}));
    const QString added = add();
    const bool isOther = !added.isEmpty() && added != known;
    const bool isWritten = step.DoneIf(!isOther || (m_tools.Data.*move)(added, known));
    if (isOther || !isWritten) {
        Tell(isWritten);
    }
    return isWritten ? added : QString();
}

QString cTemplateManager::AskAdd(const cTemplateNode* near)
{
    if (near == nullptr) {
        return AskAddMain();
    }
    if (near->IsOfAccounts()) {
        return AskAddAccount(near);
    }
    const QString main = modTemplate::MainOf(near->Path);
    if (near->Kind == eTemplateNode::UnknownCategory) {
        return AddKnown(
            near->Path, [&] { return AddCategory(main, modTemplate::SubOf(near->Path)); },
            &cDataAccess::ChangeEntryCategory);
    }
    const QString name =
        AskName(cText::Tr("Name der neuen Unterkategorie von '{0}':", {main}), cText::Tr("Neue Kategorie"));
    return name.isEmpty() ? QString() : AddCategory(main, name);
}

QString cTemplateManager::AskAddMain()
{
    const QString name = AskName(cText::Tr("Name der neuen Hauptkategorie:"), cText::Tr("Neue Kategorie"));
    if (HasMain(modTemplate::TypedName(name))) {
        m_tools.User.Refuse(cText::Tr("Die Hauptkategorie '{0}' existiert bereits!", {modTemplate::TypedName(name)}));
        return {};
    }
    return name.isEmpty() ? QString() : AddCategory(name, {});
}

QString cTemplateManager::AskAddAccount(const cTemplateNode* near)
{
    if (near != nullptr && near->Kind == eTemplateNode::UnknownAccount) {
        return AddKnown(
            near->Path, [&] { return AddAccount(near->Path, {}); }, &cDataAccess::MoveEntriesToAccount);
    }
    QString group = near != nullptr && near->Kind == eTemplateNode::Group ? near->Path : Groups().value(0);
    if (near != nullptr && near->Kind == eTemplateNode::Account) {
        const std::optional<cTemplateItem> account = m_tools.Data.FindAccount(near->Path);
        group = account ? account->TemplateCategory : group;
    }
    const QString name = AskName(cText::Tr("Name des neuen Kontos:"), cText::Tr("Neues Konto"));
    return name.isEmpty() ? QString() : AddAccount(name, group);
}

QString cTemplateManager::TypedPath(const QString& text)
{
    return modTemplate::Join(modTemplate::TypedName(text.section(u';', 0, 0)),
                             modTemplate::TypedName(text.section(u';', 1)));
}

bool cTemplateManager::RenameCategory(const QString& oldPath, const QString& typed)
{
    const bool staysInMain = !modTemplate::SubOf(oldPath).isEmpty() && modTemplate::SubOf(typed).isEmpty();
    const QString newPath = staysInMain ? modTemplate::Join(modTemplate::MainOf(oldPath), typed) : typed;
    cTemplateFlow flow(m_tools);
    const QString sub = modTemplate::SubOf(newPath);
    if (HasMain(oldPath) && sub.isEmpty()) {
        return Tell(flow.RenameMain(oldPath, newPath));
    }
    const std::optional<cTemplateItem> category = FindCategory(oldPath);
    if (!category) {
        return m_tools.User.Refuse(cText::Tr("Die Kategorie '{0}' gibt es nicht.", {oldPath}));
    }
    return Tell(flow.RenameCategory(*category, modTemplate::MainOf(newPath), sub));
}

bool cTemplateManager::RenameAccount(const QString& oldName, const QString& newName)
{
    if (!m_tools.Data.FindAccount(oldName)) {
        return m_tools.User.Refuse(cText::Tr("Das Konto '{0}' gibt es nicht.", {oldName}));
    }
    return Tell(cTemplateFlow(m_tools).RenameAccount(oldName, newName));
}

bool cTemplateManager::SetLimit(const QString& account, std::optional<qint64> cents)
{
    std::optional<cTemplateItem> item = m_tools.Data.FindAccount(account);
    if (!item) {
        return m_tools.User.Refuse(cText::Tr("Das Konto '{0}' gibt es nicht.", {account}));
    }
    item->TemplateDefaultValue = cents ? modAmount::CentsToText(*cents) : QString();
    const QString name = cents ? cText::Tr("Kontolimit von '{0}' ist nun {1}", {account, m_tools.Format.Cents(*cents)})
                               : cText::Tr("Kontolimit von '{0}' entfernt", {account});
    bool isDone = false;
    {
        cUndoStep step(m_tools.Data, name);
        isDone = m_tools.Data.ChangeTemplate(*item) || step.Revert();
    }
    return Tell(isDone);
}

bool cTemplateManager::DeleteCategory(const QString& path)
{
    cTemplateRemoval removal(m_tools);
    if (HasMain(path)) {
        return Tell(removal.DeleteMain(path));
    }
    const std::optional<cTemplateItem> category = FindCategory(path);
    if (!category) {
        return m_tools.User.Refuse(cText::Tr("Die Kategorie '{0}' gibt es nicht.", {path}));
    }
    return Tell(removal.DeleteCategory(*category));
}

bool cTemplateManager::DeleteAccount(const QString& name)
{
    if (!m_tools.Data.FindAccount(name)) {
        return m_tools.User.Refuse(cText::Tr("Das Konto '{0}' gibt es nicht.", {name}));
    }
    return TellGone(cTemplateRemoval(m_tools).DeleteAccount(name), name, {});
}

bool cTemplateManager::MergeCategory(const QString& sourcePath, const QString& targetPath)
{
    cTemplateRemoval removal(m_tools);
    const bool areMains = HasMain(sourcePath) && HasMain(targetPath);
    return Tell(areMains ? removal.MergeMain(sourcePath, targetPath) : removal.MergeCategory(sourcePath, targetPath));
}

bool cTemplateManager::CanDelete(const cTemplateNode& node) const
{
    return !IsReadOnly() && !node.IsUnknown() && node.Kind != eTemplateNode::Group;
}

bool cTemplateManager::CanMerge(const cTemplateNode& node) const
{
    return !IsReadOnly() && node.Kind != eTemplateNode::Group;
}

bool cTemplateManager::CanMove(const cTemplateNode& node) const
{
    return !IsReadOnly() && !node.IsUnknown();
}

bool cTemplateManager::Delete(const cTemplateNode& node)
{
    if (!CanDelete(node)) {
        return false;
    }
    if (node.Kind == eTemplateNode::Account) {
        return DeleteAccount(QString(node.Path));
    }
    if (node.Kind == eTemplateNode::Main) {
        return DeleteCategory(QString(node.Path));
    }
    const std::optional<cTemplateItem> category = m_tools.Data.FindTemplate(node.Id);
    return category && Tell(cTemplateRemoval(m_tools).DeleteCategory(*category));
}

bool cTemplateManager::AskMerge(const cTemplateNode& node)
{
    if (!CanMerge(node)) {
        return false;
    }
    cTemplateRemoval removal(m_tools);
    const QString source = node.Path;
    if (node.IsOfAccounts()) {
        const QString target = removal.AskMergeAccount(source);
        return TellGone(!target.isEmpty(), source, target);
    }
    const bool isMain =
        node.Kind == eTemplateNode::Main && modTemplateOrder::HasSubs(m_tools.Data.GetTemplates(), source);
    return Tell(isMain ? removal.AskMergeMain(source) : removal.AskMergeCategory(source));
}

QString cTemplateManager::AskRenameGroup(const cTemplateNode& node)
{
    const QString oldGroup = node.Path;
    const std::optional<QString> name =
        m_tools.User.Choose({.Text = cText::Tr("Neuer Name für die Kontogruppe '{0}':", {Title(node)}),
                             .Title = cText::Tr("Kontogruppe umbenennen"),
                             .Items = {},
                             .Proposal = oldGroup,
                             .AllowNew = true});
    const bool isDone = name && cTemplateFlow(m_tools).RenameGroup(oldGroup, *name);
    return Tell(isDone) ? modTemplate::TypedName(*name) : QString();
}

bool cTemplateManager::Move(const cTemplateNode& node, eDirection direction)
{
    if (!CanMove(node)) {
        return false;
    }
    const QString& type = node.IsOfAccounts() ? modWord::Konto : modWord::Kategorie;
    const cTemplateItemList before = modTemplateOrder::OfType(m_tools.Data.GetTemplates(), type);
    const auto way = direction == eDirection::Up ? modTemplateOrder::eWay::Up : modTemplateOrder::eWay::Down;
    const bool isGroup = node.Kind == eTemplateNode::Main || node.Kind == eTemplateNode::Group;
    const cTemplateItemList after = isGroup ? modTemplateOrder::MoveGroup(before, node.Path, way)
                                            : modTemplateOrder::MoveItem(before, node.Id, way);
    return after != before && Tell(WriteOrder(before, after));
}

bool cTemplateManager::WriteOrder(const cTemplateItemList& before, const cTemplateItemList& after)
{
    const cTemplateItemList changed = modTemplateOrder::Renumbered(before, after);
    cUndoStep step(m_tools.Data, cText::Tr("Reihenfolge geändert"));
    const bool isWritten = std::all_of(changed.begin(), changed.end(),
                                       [this](const cTemplateItem& item) { return m_tools.Data.ChangeTemplate(item); });
    return step.DoneIf(isWritten);
}

QStringList cTemplateManager::Mains() const
{
    return modTemplateOrder::Groups(modTemplateOrder::OfType(m_tools.Data.GetTemplates(), modWord::Kategorie));
}

QStringList cTemplateManager::Groups() const
{
    return modTemplateOrder::Groups(modTemplateOrder::OfType(m_tools.Data.GetTemplates(), modWord::Konto));
}

bool cTemplateManager::IsNameFixed(const cTemplateNode& node) const
{
    return node.Kind == eTemplateNode::Category && modTemplateText::IsProtected(node.Path);
}

QString cTemplateManager::Title(const cTemplateNode& node) const
{
    return node.Kind == eTemplateNode::Group && node.Path.isEmpty() ? cText::Tr("Konten")
                                                                    : modTemplateText::ShownPath(node.Path);
}

QString cTemplateManager::MainHint(const cTemplateNode& node) const
{
    const QString all = modTemplateText::Entries(node.Entries);
    return node.Entries == node.OwnEntries
        ? all
        : cText::Tr("{0}, davon {1} ohne Unterkategorie", {all, QString::number(node.OwnEntries)});
}

QString cTemplateManager::Hint(const cTemplateNode& node) const
{
    const QString entries = modTemplateText::Entries(node.Entries);
    switch (node.Kind) {
    case eTemplateNode::Main: return MainHint(node);
    case eTemplateNode::Group: return cText::Tr("Kontogruppe mit {0}.", {entries});
    case eTemplateNode::UnknownCategory:
        return cText::Tr("Diese Kategorie ist nicht angelegt, aber {0} stehen unter diesem Namen.\nSie können die "
                         "Kategorie anlegen oder die Buchungen in eine andere verschieben.",
                         {entries});
    case eTemplateNode::UnknownAccount:
        return cText::Tr("Dieses Konto ist nicht angelegt, aber {0} stehen unter diesem Namen.\nSie können das Konto "
                         "anlegen oder die Buchungen in ein anderes verschieben.",
                         {entries});
    case eTemplateNode::Category: return IsNameFixed(node) ? modTemplateText::ProtectedHint() : entries;
    case eTemplateNode::Account: return entries;
    }
    return {};
}

QString cTemplateManager::AmountLabel(const cTemplateFields& fields) const
{
    return modRecurrence::IsRecurring(fields.Interval) ? cText::Tr("Betra&g:") : cText::Tr("&Monatslimit:");
}

QString cTemplateManager::NoAmountText(const cTemplateFields& fields) const
{
    return modRecurrence::IsRecurring(fields.Interval) ? cText::Tr("kein Betrag") : cText::Tr("kein Limit");
}

// What the budget says of this month, where it is something else.
QString cTemplateManager::BudgetHint(const cTemplateFields& fields) const
{
    const QString path = fields.Group.isEmpty() ? fields.Name : modTemplate::Join(fields.Group, fields.Name);
    const QMap<QDate, qint64> months = modLimits::BudgetOf(m_tools.Settings, path).Months;
    const auto own = months.constFind(modBudget::MonthOf(m_tools.Clock.Today()));
    return own == months.constEnd() ? QString() : cText::Tr("Budget dieses Monats: {0}", {m_tools.Format.Cents(*own)});
}

QString cTemplateManager::AmountHint(const cTemplateFields& fields) const
{
    const QString budget = BudgetHint(fields);
    if (!modRecurrence::IsRecurring(fields.Interval)) {
        return budget; // all else says the label
    }
    const qint64 amount = modSum::Evaluate(fields.Amount, m_tools.Format.Decimal()).value_or(0);
    if (amount == 0) {
        return budget; // nothing is proposed then
    }
    cTemplateItem item;
    item.EntryType = fields.Type;
    item.EntryInterval = fields.Interval;
    item.TemplateDefaultValue = modAmount::CentsToText(amount);
    const qint64 limit = modTemplate::LimitCents(item, 1);
    const QString proposed = limit == 0
        ? cText::Tr("Wird vorgeschlagen")
        : cText::Tr("Wird vorgeschlagen; Monatslimit {0}", {m_tools.Format.Cents(limit)});
    return budget.isEmpty() ? proposed : QString(proposed + u"; " + budget);
}

QString cTemplateManager::NumbersHint() const
{
    const QStringList numbers = cBankNumbers(m_tools.Data, m_tools.Settings).Unassigned();
    return numbers.isEmpty() ? QString() : cText::Tr("Noch ohne Konto: {0}", {numbers.join(u", "_s)});
}

cTreeLayout cTemplateManager::CategoryLayout() const
{
    return cTreeLayout::FromText(m_tools.Settings.Get(modSettingKey::CategoryList).section(layoutSeparator, 0, 0));
}

cTreeLayout cTemplateManager::AccountLayout() const
{
    return cTreeLayout::FromText(m_tools.Settings.Get(modSettingKey::CategoryList).section(layoutSeparator, 1, 1));
}

void cTemplateManager::SaveLayout(const cTreeLayout& categories, const cTreeLayout& accounts)
{
    modSetting::Keep(m_tools.Settings, modSettingKey::CategoryList,
                     categories.ToText() + layoutSeparator + accounts.ToText());
}
