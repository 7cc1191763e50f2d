#pragma once

#include "support/testBook.h"
#include "views/template/cTemplateManager.h"

#include <algorithm>
#include <optional>

// A book with three entries in one category, and the manager over it.
class cTemplateScene
{
public:
    cTemplateScene()
    {
        for (int i = 0; i < 3; ++i) {
            Ids.append(Book.Add([](cEntryItem&) {}).ID);
        }
        Manager.Refresh();
    }

    cTemplateNode Category(const QString& path) { return Node(Manager.Categories(), path); }
    cTemplateNode Account(const QString& name) { return Node(Manager.Accounts(), name); }
    cTemplateNode Group(const QString& name)
    {
        const std::vector<cTemplateBranch>& branches = Manager.Accounts().Branches();
        const auto found = std::find_if(branches.begin(), branches.end(),
                                        [&](const cTemplateBranch& branch) { return branch.Node.Path == name; });
        return found == branches.end() ? cTemplateNode{} : found->Node;
    }
    QString CategoryOf(int place) { return Book.Data.LoadEntry(Ids.at(place))->EntryCategory; }
    bool Has(const QString& path)
    {
        return Manager.Categories().IndexOf(path).isValid() && !Category(path).IsUnknown();
    }

    // The fields of a line, changed and saved.
    template <typename tChange>
    std::optional<QString> Save(const cTemplateNode& node, tChange change)
    {
        const cTemplateFields old = Manager.Load(node).value_or(cTemplateFields{});
        cTemplateFields fields = old;
        change(fields);
        return Manager.Save(node, old, fields);
    }

    cTestBook Book;
    cTemplateManager Manager{Book.Tools};
    QList<int> Ids;

private:
    static cTemplateNode Node(const cTemplateTreeModel& tree, const QString& path)
    {
        const cTemplateNode* node = tree.NodeAt(tree.IndexOf(path));
        return node == nullptr ? cTemplateNode{} : *node;
    }
};
