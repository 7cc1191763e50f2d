#pragma once

#include "model/cTemplateItem.h"

#include <QString>

struct cBookTools;

// New names for accounts and categories, with the questions that go with them. Every function is one step of the user
// that can be taken back.
class cTemplateFlow
{
public:
    explicit cTemplateFlow(const cBookTools& tools) : m_tools(tools) {}

    // Asks for a new name and renames. The name that the account has afterwards.
    QString AskRenameAccount(const QString& oldName);

    // Renames an account. Where entries refer to it, asks whether they go along. False when nothing was changed.
    bool RenameAccount(const QString& oldName, const QString& newName);

    // The same with the entries and without a question, where it is known to be what is wanted: the account as it is to
    // be, with a name that an account can have.
    [[nodiscard]] bool RenameWithEntries(const QString& oldName, const cTemplateItem& renamed);

    // Gives a category other names and moves its entries along: also the way to another main category. False when
    // nothing was changed.
    bool RenameCategory(const cTemplateItem& category, const QString& newMain, const QString& newSub);

    // Renames a main category, all its sub-categories with it, and their entries. False when nothing was changed.
    bool RenameMain(const QString& oldMain, const QString& newMain);

    // Gives all accounts of a group another group. False when nothing was changed.
    bool RenameGroup(const QString& oldGroup, const QString& newGroup);

    // Entries and rules go from `oldPath` to the path that the category with this ID has now.
    [[nodiscard]] bool FollowPath(int id, const QString& oldPath);

    // The main category as it can be saved: one from an older book gives up characters in all its rows. Empty on
    // failure.
    [[nodiscard]] QString CleanMain(const QString& main);

    // True when another account or category than this one is called so, be it in another letter case.
    [[nodiscard]] bool IsTaken(const cTemplateItem& named) const;

private:
    [[nodiscard]] bool MoveEntries(const QString& oldName, const QString& newName);
    [[nodiscard]] bool WriteAccount(const cTemplateItem& account, const QString& oldName, bool withEntries);
    [[nodiscard]] bool WriteMain(const QString& oldMain, const QString& newMain);
    [[nodiscard]] bool HoldsProtected(const QString& main) const;
    [[nodiscard]] bool IsMainTaken(const QString& newMain, const QString& oldMain) const;

    const cBookTools& m_tools;
};
