#pragma once

#include "model/cTemplateItem.h"

#include <QString>
#include <QStringList>

#include <optional>

struct cBookTools;

// Categories and accounts that go, and what becomes of their entries. Every function asks before it writes, is one step
// that can be taken back, and gives false when nothing was changed. Entries that are not moved keep their old category
// or account and stay visible everywhere.
class cTemplateRemoval
{
public:
    explicit cTemplateRemoval(const cBookTools& tools) : m_tools(tools) {}

    // Deletes a category, a main category with all its sub-categories, or an account with its bank numbers. Where
    // entries use it, offers to move them first.
    bool DeleteCategory(const cTemplateItem& category);
    bool DeleteMain(const QString& main);
    bool DeleteAccount(const QString& name);

    // Entries move to the target, whose own definition stays as it is; the source goes. A category without definition
    // is only emptied.
    bool MergeCategory(const QString& sourcePath, const QString& targetPath);
    // Sub-categories of the same name become one, the others change over.
    bool MergeMain(const QString& source, const QString& target);
    // Also start balances are added up, and the bank numbers change over.
    bool MergeAccount(const QString& source, const QString& target);

    // Lets the user choose the target first.
    bool AskMergeCategory(const QString& sourcePath);
    bool AskMergeMain(const QString& source);
    // The account that has taken over; empty when nothing was changed.
    QString AskMergeAccount(const QString& source);

private:
    // What is about to go: definitions, and the paths of all entries concerned.
    struct cDoomed
    {
        cTemplateItemList Items;
        QStringList Paths;
        int Entries = 0;
        QString Shown; // 'Haupt; Unter' with a word before it
    };

    [[nodiscard]] cDoomed CollectMain(const QString& main);
    bool Delete(const cDoomed& doomed, const QString& onlyDelete);
    // With what the settings keep of it; the look of its main category may go to that of `target`.
    [[nodiscard]] bool DeleteWithSettings(const cTemplateItem& item, const QString& target);
    [[nodiscard]] bool Remove(const cDoomed& doomed, const QString& target);
    [[nodiscard]] bool WriteMergedMain(const QString& source, const QString& target);
    [[nodiscard]] bool RemoveAccount(const cTemplateItem& account, const QString& target);
    [[nodiscard]] bool DropShares(const QString& account);
    [[nodiscard]] bool MoveAccountEntries(const QString& source, const QString& target);
    [[nodiscard]] bool JoinStartBalances(const QString& source, const QString& target);
    [[nodiscard]] QStringList Targets(const QStringList& exceptPaths) const;
    [[nodiscard]] QStringList Mains(const QString& exceptMain) const;
    [[nodiscard]] QStringList Accounts(const QString& exceptName) const;
    // One of the items; empty, with a message where there is none, when the user gives up.
    [[nodiscard]] QString Choose(const QString& text, const QString& title, const QStringList& items);
    [[nodiscard]] bool Ask(const QString& text, const QString& title);

    const cBookTools& m_tools;
};
