#pragma once

#include <QAbstractItemModel>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <vector>

enum class eTemplateNode { Main, Category, UnknownCategory, Group, Account, UnknownAccount };

// One line of the trees of categories and accounts.
struct cTemplateNode
{
    eTemplateNode Kind = eTemplateNode::Main;
    int Id = 0;        // of its definition; 0 for a group, and for what only entries know
    QString Path;      // category path, main category, group, or name of the account: as it is stored
    QStringList Cells; // what the columns show
    int Entries = 0;   // of the whole branch
    int OwnEntries = 0;
    bool IsQuiet = false; // hidden, closed, or without definition
    QVariant Look{};      // of a main category; see cCategoryLooks::Shown

    // The same line, also after its names have changed when it has a definition.
    [[nodiscard]] bool IsSame(const cTemplateNode& other) const
    {
        return Kind == other.Kind && Id == other.Id && (Id > 0 || Path == other.Path);
    }
    [[nodiscard]] bool IsUnknown() const
    {
        return Kind == eTemplateNode::UnknownCategory || Kind == eTemplateNode::UnknownAccount;
    }
    [[nodiscard]] bool IsOfAccounts() const
    {
        return Kind == eTemplateNode::Group || Kind == eTemplateNode::Account || Kind == eTemplateNode::UnknownAccount;
    }
};

struct cTemplateBranch
{
    cTemplateNode Node;
    std::vector<cTemplateNode> Children;
};

// Main categories with their sub-categories, or groups with their accounts: two levels, in the order given.
class cTemplateTreeModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum eCategoryColumn { CategoryName, CategoryType, CategoryInterval, CategoryLimit, CategoryEntries };
    enum eAccountColumn { AccountName, AccountNumbers, AccountStart, AccountEntries };
    enum eRole { QuietRole = Qt::UserRole, BranchRole };

    // `numeric`: the columns that are flush right.
    cTemplateTreeModel(const QStringList& headers, const QList<int>& numeric, QObject* parent = nullptr);

    void SetBranches(std::vector<cTemplateBranch> branches);
    [[nodiscard]] const std::vector<cTemplateBranch>& Branches() const { return m_branches; }

    // The line of an index; null for an invalid one.
    [[nodiscard]] const cTemplateNode* NodeAt(const QModelIndex& index) const;
    // The line with the same definition or, for one without, of the same kind and path.
    [[nodiscard]] QModelIndex IndexOf(const cTemplateNode& node) const;
    // The line of this stored path, in the letter case given or in another one.
    [[nodiscard]] QModelIndex IndexOf(const QString& path) const;

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    template <typename tMatch>
    [[nodiscard]] QModelIndex Find(tMatch isMatch) const;

    QStringList m_headers;
    QList<int> m_numeric;
    std::vector<cTemplateBranch> m_branches;
};
