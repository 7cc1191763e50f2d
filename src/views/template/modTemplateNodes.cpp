#include "views/template/modTemplateNodes.h"

#include "base/cText.h"
#include "model/modWord.h"
#include "views/template/modTemplateText.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString Number(int count)
{
    return count == 0 ? QString() : QString::number(count);
}

QString NameOf(const QString& name, const cTemplateItem& item)
{
    const QString state = modTemplateText::State(item);
    return state.isEmpty() ? name : QString(name + u" (" + state + u')');
}

cTemplateBranch& BranchOf(std::vector<cTemplateBranch>& branches, eTemplateNode kind, const QString& path)
{
    const auto found = std::find_if(branches.begin(), branches.end(),
                                    [&](const cTemplateBranch& branch) { return branch.Node.Path == path; });
    if (found != branches.end()) {
        return *found;
    }
    cTemplateBranch branch;
    branch.Node.Kind = kind;
    branch.Node.Path = path;
    return branches.emplace_back(std::move(branch));
}

void AddUp(cTemplateBranch& branch, qsizetype column)
{
    for (const cTemplateNode& child : branch.Children) {
        branch.Node.Entries += child.Entries;
    }
    branch.Node.Cells.resize(column + 1);
    branch.Node.Cells[column] = Number(branch.Node.Entries);
}

QString SubName(const QString& path)
{
    const QString sub = modTemplate::SubOf(path);
    return sub.isEmpty() ? cText::Tr("(ohne Unterkategorie)") : sub;
}

// The cells of a category behind its name, without the number of entries.
QStringList Defaults(const cTemplateItem& item, const modTemplateNodes::fnCents& cents)
{
    const qint64 limit = modTemplate::LimitCents(item, 1);
    return {modWord::EntryTypes().ToShown(item.EntryType), modWord::Intervals().ToShown(item.EntryInterval),
            limit == 0 ? QString() : cents(limit)};
}

cTemplateNode CategoryNode(const cTemplateItem& item, int entries, const modTemplateNodes::fnCents& cents)
{
    cTemplateNode node;
    node.Kind = eTemplateNode::Category;
    node.Id = item.ID;
    node.Path = modTemplate::Path(item);
    node.Entries = node.OwnEntries = entries;
    node.IsQuiet = !modTemplate::IsVisible(item);
    const QString name = NameOf(SubName(node.Path), item);
    node.Cells = QStringList{name} + Defaults(item, cents) + QStringList{Number(entries)};
    return node;
}

void AddCategory(std::vector<cTemplateBranch>& branches, const cTemplateItem& item, int entries,
                 const modTemplateNodes::fnCents& cents)
{
    const QString path = modTemplate::Path(item);
    cTemplateBranch& branch = BranchOf(branches, eTemplateNode::Main, modTemplate::MainOf(path));
    if (!modTemplate::SubOf(path).isEmpty() || branch.Node.Id > 0) {
        branch.Children.push_back(CategoryNode(item, entries, cents));
        return;
    }
    branch.Node.Id = item.ID;
    branch.Node.Entries = branch.Node.OwnEntries = entries;
    branch.Node.IsQuiet = !modTemplate::IsVisible(item);
    branch.Node.Cells = QStringList{NameOf(modTemplateText::ShownPath(path), item)} + Defaults(item, cents);
}

// A path that only entries know.
cTemplateNode UnknownNode(eTemplateNode kind, const QString& path, const QString& name, int entries)
{
    cTemplateNode node;
    node.Kind = kind;
    node.Path = path;
    node.Entries = node.OwnEntries = entries;
    node.IsQuiet = true;
    node.Cells = {name, modTemplateText::State({})};
    return node;
}

void AddUnknown(std::vector<cTemplateBranch>& branches, const QString& path, int entries)
{
    const QString main = modTemplate::MainOf(path);
    const bool isBranch = std::any_of(branches.begin(), branches.end(),
                                      [&](const cTemplateBranch& branch) { return branch.Node.Path == main; });
    if (modTemplate::SubOf(path).isEmpty() && !isBranch) {
        branches.push_back(
            {UnknownNode(eTemplateNode::UnknownCategory, path, modTemplateText::ShownPath(path), entries), {}});
        return;
    }
    cTemplateNode node = UnknownNode(eTemplateNode::UnknownCategory, path, SubName(path), entries);
    node.Cells.resize(cTemplateTreeModel::CategoryEntries);
    node.Cells.append(Number(entries));
    BranchOf(branches, eTemplateNode::Main, main).Children.push_back(std::move(node));
}

void FinishMain(cTemplateBranch& branch)
{
    cTemplateNode& node = branch.Node;
    if (node.Cells.isEmpty()) {
        node.Cells = {modTemplateText::ShownPath(node.Path)};
    }
    AddUp(branch, cTemplateTreeModel::CategoryEntries);
    const bool isOwnShown = node.Id > 0 && !node.IsQuiet;
    node.IsQuiet = !isOwnShown
        && std::all_of(branch.Children.begin(), branch.Children.end(),
                       [](const cTemplateNode& child) { return child.IsQuiet; });
}

cTemplateNode AccountNode(const cTemplateItem& item, const modTemplateNodes::cAccountFacts& facts,
                          const modTemplateNodes::fnCents& cents)
{
    cTemplateNode node;
    node.Kind = eTemplateNode::Account;
    node.Id = item.ID;
    node.Path = item.TemplateName;
    node.Entries = node.OwnEntries = facts.Entries.value(item.TemplateName);
    node.IsQuiet = !modTemplate::IsVisible(item);
    const auto start = facts.StartBalances.constFind(item.TemplateName);
    node.Cells = {NameOf(item.TemplateName, item), facts.Numbers.value(item.TemplateName).join(u", "_s),
                  start == facts.StartBalances.constEnd() ? QString() : cents(*start), Number(node.Entries)};
    return node;
}

QStringList SortedKeys(const QHash<QString, int>& counts)
{
    QStringList keys = counts.keys();
    std::sort(keys.begin(), keys.end(), [](const QString& a, const QString& b) { return a.localeAwareCompare(b) < 0; });
    return keys;
}

} // namespace

std::vector<cTemplateBranch> modTemplateNodes::Categories(const cTemplateItemList& items,
                                                          const QHash<QString, int>& counts, const fnCents& cents)
{
    std::vector<cTemplateBranch> branches;
    QHash<QString, int> unknown = counts;
    const cTemplateItemList ordered = modTemplate::InOrder(items);
    for (const cTemplateItem& item : ordered) {
        if (!modTemplate::IsAccount(item)) {
            AddCategory(branches, item, unknown.take(modTemplate::Path(item)), cents);
        }
    }
    const QStringList left = SortedKeys(unknown);
    for (const QString& path : left) {
        AddUnknown(branches, path, unknown.value(path));
    }
    std::for_each(branches.begin(), branches.end(), FinishMain);
    return branches;
}

std::vector<cTemplateBranch> modTemplateNodes::Accounts(const cTemplateItemList& items, const cAccountFacts& facts,
                                                        const fnCents& cents)
{
    std::vector<cTemplateBranch> branches;
    QHash<QString, int> unknown = facts.Entries;
    const cTemplateItemList ordered = modTemplate::InOrder(items);
    for (const cTemplateItem& item : ordered) {
        if (modTemplate::IsAccount(item)) {
            cTemplateBranch& branch = BranchOf(branches, eTemplateNode::Group, item.TemplateCategory);
            branch.Node.Cells = {item.TemplateCategory.isEmpty() ? cText::Tr("Konten") : item.TemplateCategory};
            branch.Children.push_back(AccountNode(item, facts, cents));
            unknown.remove(item.TemplateName);
        }
    }
    for (cTemplateBranch& branch : branches) {
        AddUp(branch, cTemplateTreeModel::AccountEntries);
    }
    const QStringList left = SortedKeys(unknown);
    for (const QString& name : left) {
        cTemplateBranch branch{UnknownNode(eTemplateNode::UnknownAccount, name, name, unknown.value(name)), {}};
        branch.Node.Entries = unknown.value(name);
        AddUp(branch, cTemplateTreeModel::AccountEntries);
        branches.push_back(std::move(branch));
    }
    return branches;
}
