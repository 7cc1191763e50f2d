#pragma once

#include "base/cUser.h"
#include "model/cTemplateItem.h"
#include "views/list/cTreeLayout.h"
#include "views/template/cTemplateTreeModel.h"
#include "views/template/cTemplateWriter.h"

#include <QDate>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

class cDataAccess;
struct cBookTools;

// Management of categories and accounts without its window: the two trees, the fields of one line, and every action.
// What is refused is said through the user; a false or empty result means that nothing was changed. Each action is one
// step that can be taken back.
class cTemplateManager final : public QObject
{
    Q_OBJECT

public:
    enum class eDirection { Up, Down };

    explicit cTemplateManager(const cBookTools& tools, QObject* parent = nullptr);
    ~cTemplateManager() override;

    [[nodiscard]] cTemplateTreeModel& Categories() { return m_categories; }
    [[nodiscard]] cTemplateTreeModel& Accounts() { return m_accounts; }
    void Refresh(); // reads the book again
    [[nodiscard]] bool IsReadOnly() const;
    [[nodiscard]] QDate Today() const;

    // See cTemplateWriter.
    [[nodiscard]] std::optional<cTemplateFields> Load(const cTemplateNode& node) const;
    [[nodiscard]] std::optional<QString> Save(const cTemplateNode& node, const cTemplateFields& old,
                                              const cTemplateFields& fields);
    [[nodiscard]] eAnswer AskToSave() const; // see modUnsaved

    // Adds a definition with these names. Its path or name; empty when refused.
    QString AddCategory(const QString& main, const QString& sub);
    // The same together with what `then` makes of it, or neither.
    QString AddCategory(const QString& main, const QString& sub, const std::function<bool(const QString& path)>& then);
    QString AddAccount(const QString& name, const QString& group);
    // The same after a question for the name. `near` is the selected line or null: the new one comes below the same
    // main category or group. What only entries know is added under its own name, without a question.
    QString AskAdd(const cTemplateNode* near);
    QString AskAddMain();
    QString AskAddAccount(const cTemplateNode* near);

    // "Wohnung;Miete" as paths are stored, without the characters that names cannot have.
    [[nodiscard]] static QString TypedPath(const QString& text);

    // By path or name, as the command line has them. A main category goes with its sub-categories. A sub-category whose
    // new name has no main category stays in its own.
    bool RenameCategory(const QString& oldPath, const QString& typed);
    bool RenameAccount(const QString& oldName, const QString& newName);
    // Below which balance, in signed cents, there is a warning; empty for none.
    bool SetLimit(const QString& account, std::optional<qint64> cents);
    bool DeleteCategory(const QString& path);
    bool DeleteAccount(const QString& name);
    bool MergeCategory(const QString& sourcePath, const QString& targetPath);

    // By line, as the window has them.
    bool Delete(const cTemplateNode& node);
    bool AskMerge(const cTemplateNode& node);
    QString AskRenameGroup(const cTemplateNode& node);          // the group's new name; empty when refused
    bool Move(const cTemplateNode& node, eDirection direction); // one place among its siblings

    [[nodiscard]] bool CanDelete(const cTemplateNode& node) const;
    [[nodiscard]] bool CanMerge(const cTemplateNode& node) const;
    [[nodiscard]] bool CanMove(const cTemplateNode& node) const;

    // What the form offers, and what it says above its fields.
    [[nodiscard]] QStringList Mains() const;
    [[nodiscard]] QStringList Groups() const;
    [[nodiscard]] bool IsNameFixed(const cTemplateNode& node) const; // it can be neither renamed nor removed
    [[nodiscard]] QString Title(const cTemplateNode& node) const;
    [[nodiscard]] QString Hint(const cTemplateNode& node) const;
    // What the amount of a category is, by its interval: the label of its field, what the empty field says, and the
    // line below it.
    [[nodiscard]] QString AmountLabel(const cTemplateFields& fields) const;
    [[nodiscard]] QString NoAmountText(const cTemplateFields& fields) const;
    [[nodiscard]] QString AmountHint(const cTemplateFields& fields) const;
    [[nodiscard]] QString NumbersHint() const; // bank numbers that no account has yet; empty for none

    // Columns and open branches of both trees.
    [[nodiscard]] cTreeLayout CategoryLayout() const;
    [[nodiscard]] cTreeLayout AccountLayout() const;
    void SaveLayout(const cTreeLayout& categories, const cTreeLayout& accounts);

Q_SIGNALS:
    void BookChanged();
    // An account is now called `newName`, or its entries have gone to that one; empty when it was deleted.
    void AccountRenamed(const QString& oldName, const QString& newName);

private:
    [[nodiscard]] QString BudgetHint(const cTemplateFields& fields) const;
    using fnMoveEntries = bool (cDataAccess::*)(const QString& newName, const QString& oldName);

    [[nodiscard]] QString AddKnown(const QString& name, const std::function<QString()>& add, fnMoveEntries move);
    [[nodiscard]] QString AskName(const QString& text, const QString& title);
    [[nodiscard]] std::optional<cTemplateItem> FindCategory(const QString& path) const;
    [[nodiscard]] bool HasMain(const QString& main) const;
    [[nodiscard]] QString Add(cTemplateItem item, const QString& stepName, const QString& name);
    [[nodiscard]] bool WriteOrder(const cTemplateItemList& before, const cTemplateItemList& after);
    [[nodiscard]] QString MainHint(const cTemplateNode& node) const;
    // Both read the book again and say so when something was changed: with every account that has another name now, or
    // with one that is no more.
    bool Tell(bool isDone);
    bool TellGone(bool isDone, const QString& oldName, const QString& newName);
    [[nodiscard]] QHash<int, QString> AccountNames() const; // by the ID of the definition

    const cBookTools& m_tools;
    cTemplateTreeModel m_categories;
    cTemplateTreeModel m_accounts;
};
