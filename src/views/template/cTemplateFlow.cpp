#include "views/template/cTemplateFlow.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "import/propose/cOwnRules.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/template/cNameKeepers.h"
#include "views/template/modTemplateText.h"

#include <algorithm>

QString cTemplateFlow::AskRenameAccount(const QString& oldName)
{
    const std::optional<QString> name =
        m_tools.User.Choose({.Text = cText::Tr("Neuer Name für das Konto '{0}':", {oldName}),
                             .Title = cText::Tr("Konto umbenennen"),
                             .Items = {},
                             .Proposal = oldName,
                             .AllowNew = true});
    if (!name) {
        return oldName;
    }
    return RenameAccount(oldName, *name) ? modTemplate::TypedName(*name) : oldName;
}

bool cTemplateFlow::RenameAccount(const QString& oldName, const QString& newName)
{
    const QString name = modTemplate::TypedName(newName);
    if (name.isEmpty()) {
        return m_tools.User.Refuse(cText::Tr("Der Kontoname darf nicht leer sein!"));
    }
    std::optional<cTemplateItem> account = m_tools.Data.FindAccount(oldName);
    if (!account || name == oldName) {
        return false;
    }
    account->TemplateName = name;
    if (IsTaken(*account)) {
        return m_tools.User.Refuse(cText::Tr("Dieser Kontoname existiert bereits!"));
    }
    eAnswer answer = eAnswer::No;
    if (m_tools.Data.CountEntriesByAccount().value(oldName) >= 1) { // also those that only lead to it
        answer = m_tools.User.Ask(
            {.Text = cText::Tr("Es existieren bereits Buchungen zu diesem Konto.\nSollen die Quell/Zielkonten "
                               "der Buchungen von '{0}' auf '{1}' geändert werden?",
                               {oldName, name}),
             .Title = cText::Tr("Konto umbenennen"),
             .Tone = eTone::Question,
             .Buttons = eButtons::YesNoCancel});
    }
    if (answer == eAnswer::Cancel) {
        return false;
    }
    return WriteAccount(*account, oldName, answer == eAnswer::Yes);
}

bool cTemplateFlow::RenameWithEntries(const QString& oldName, const cTemplateItem& renamed)
{
    return !IsTaken(renamed) && WriteAccount(renamed, oldName, true);
}

bool cTemplateFlow::WriteAccount(const cTemplateItem& account, const QString& oldName, bool withEntries)
{
    cUndoStep step(m_tools.Data, cText::Tr("Konto '{0}' umbenannt", {oldName}));
    const bool isWritten = m_tools.Data.ChangeTemplate(account)
        && cNameKeepers(m_tools.Data, m_tools.Settings).RenameAccount(oldName, account.TemplateName)
        && (!withEntries || MoveEntries(oldName, account.TemplateName));
    return step.DoneIf(isWritten);
}

bool cTemplateFlow::MoveEntries(const QString& oldName, const QString& newName)
{
    // The bulk change looks for the old name in lower case: right for a name that is, while for any other it would take
    // the entries of the account that is called so. What it does not reach goes over by its exact name.
    const bool isFound = oldName == oldName.toLower();
    return (!isFound || m_tools.Data.ChangeEntryAccount(newName, oldName))
        && m_tools.Data.MoveEntriesToAccount(newName, oldName);
}

// Regardless of case: two accounts that only differ in that are one too many for every list, and the lists of entries,
// filtered like that, would show the entries of both categories together.
bool cTemplateFlow::IsTaken(const cTemplateItem& named) const
{
    return modTemplate::IsTaken(m_tools.Data.GetTemplates(), named);
}

bool cTemplateFlow::RenameCategory(const cTemplateItem& category, const QString& newMain, const QString& newSub)
{
    const QString oldPath = modTemplate::Path(category);
    cTemplateItem renamed = category;
    // A main category that stays keeps its stored name, so that one from an older book is cleaned with all its rows.
    if (newMain != modTemplate::MainOf(oldPath)) {
        renamed.TemplateCategory = modTemplate::TypedName(newMain);
    }
    renamed.TemplateName = modTemplate::TypedName(newSub);
    const QString newPath = modTemplate::Path(renamed);
    if (newPath == oldPath) {
        return false;
    }
    if (modTemplateText::IsProtected(oldPath)) {
        return m_tools.User.Refuse(modTemplateText::ProtectedHint());
    }
    if (renamed.TemplateName.isEmpty() && !category.TemplateName.isEmpty()) {
        return m_tools.User.Refuse(cText::Tr("Der Name der Kategorie darf nicht leer sein!"));
    }
    if (IsTaken(renamed) || modTemplateText::IsProtected(newPath)) {
        return m_tools.User.Refuse(cText::Tr("Die Kategorie '{0}' existiert bereits!", {newPath}));
    }
    cUndoStep step(m_tools.Data, cText::Tr("Kategorie '{0}' umbenannt", {oldPath}));
    return step.DoneIf(m_tools.Data.ChangeTemplate(renamed) && FollowPath(renamed.ID, oldPath));
}

bool cTemplateFlow::FollowPath(int id, const QString& oldPath)
{
    const std::optional<cTemplateItem> now = m_tools.Data.FindTemplate(id);
    if (!now) {
        return false;
    }
    const QString newPath = modTemplate::Path(*now);
    const bool isMoved =
        m_tools.Data.CountEntriesOfCategory(oldPath) == 0 || m_tools.Data.ChangeEntryCategory(newPath, oldPath);
    return isMoved && cNameKeepers(m_tools.Data, m_tools.Settings).RenameCategory(oldPath, newPath);
}

QString cTemplateFlow::CleanMain(const QString& main)
{
    const cTemplateItemList items = m_tools.Data.GetTemplates();
    const auto below = std::find_if(items.begin(), items.end(), [&](const cTemplateItem& item) {
        return !modTemplate::IsAccount(item) && modTemplate::GroupOf(item) == main;
    });
    if (modTemplate::CleanName(main) == main || below == items.end()) {
        return main;
    }
    const bool isSaved = m_tools.Data.ChangeTemplate(*below);
    const std::optional<cTemplateItem> now = isSaved ? m_tools.Data.FindTemplate(below->ID) : std::nullopt;
    return now ? modTemplate::GroupOf(*now) : QString();
}

bool cTemplateFlow::HoldsProtected(const QString& main) const
{
    const cTemplateItemList items = m_tools.Data.GetTemplates();
    return modTemplate::IsSameName(main, modTemplate::MainOf(modWord::Startguthaben))
        && (m_tools.Data.CountEntriesOfCategory(modWord::Startguthaben) > 0
            || std::any_of(items.begin(), items.end(), [](const cTemplateItem& item) {
                   return !modTemplate::IsAccount(item) && modTemplateText::IsProtected(modTemplate::Path(item));
               }));
}

bool cTemplateFlow::IsMainTaken(const QString& newMain, const QString& oldMain) const
{
    const cTemplateItemList items = m_tools.Data.GetTemplates();
    return std::any_of(items.begin(), items.end(), [&](const cTemplateItem& item) {
        const QString main = modTemplate::GroupOf(item);
        return !modTemplate::IsAccount(item) && main != oldMain && modTemplate::IsSameName(main, newMain);
    });
}

bool cTemplateFlow::RenameMain(const QString& oldMain, const QString& newMain)
{
    const QString main = modTemplate::TypedName(newMain);
    if (main.isEmpty()) {
        return m_tools.User.Refuse(cText::Tr("Der Name der Kategorie darf nicht leer sein!"));
    }
    if (main == oldMain) {
        return false;
    }
    if (HoldsProtected(oldMain)) {
        return m_tools.User.Refuse(modTemplateText::ProtectedHint());
    }
    if (IsMainTaken(main, oldMain)) {
        return m_tools.User.Refuse(cText::Tr("Die Hauptkategorie '{0}' existiert bereits!", {main}));
    }
    cUndoStep step(m_tools.Data, cText::Tr("Hauptkategorie '{0}' umbenannt", {oldMain}));
    return step.DoneIf(WriteMain(oldMain, main) && cOwnRules(m_tools.Settings).RenameMain(oldMain, main));
}

bool cTemplateFlow::WriteMain(const QString& oldMain, const QString& newMain)
{
    const cTemplateItemList items = m_tools.Data.GetTemplates();
    for (cTemplateItem item : items) {
        if (!modTemplate::IsAccount(item) && modTemplate::GroupOf(item) == oldMain) {
            const QString oldPath = modTemplate::Path(item);
            item.TemplateCategory = newMain;
            if (!m_tools.Data.ChangeTemplate(item) || !FollowPath(item.ID, oldPath)) {
                return false;
            }
        }
    }
    // Entries below paths that no category has go along, else they would stay behind under the old name.
    const QStringList paths = m_tools.Data.CountEntriesByCategory().keys();
    return std::all_of(paths.begin(), paths.end(), [&](const QString& path) {
        return modTemplate::MainOf(path) != oldMain
            || m_tools.Data.ChangeEntryCategory(modTemplate::WithMain(path, newMain), path);
    });
}

bool cTemplateFlow::RenameGroup(const QString& oldGroup, const QString& newGroup)
{
    const QString group = modTemplate::TypedName(newGroup);
    if (group == oldGroup || newGroup == oldGroup) {
        return false;
    }
    cUndoStep step(m_tools.Data, cText::Tr("Kontogruppe '{0}' umbenannt", {oldGroup}));
    const cTemplateItemList accounts = m_tools.Data.GetAccounts();
    for (cTemplateItem account : accounts) {
        if (account.TemplateCategory == oldGroup) {
            account.TemplateCategory = group;
            if (!m_tools.Data.ChangeTemplate(account)) {
                return step.Revert();
            }
        }
    }
    return step.Done();
}
