#include "views/template/cTemplateRemoval.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modCount.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "import/propose/cOwnRules.h"
#include "import/stage/cRowChoices.h"
#include "model/modBalance.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/budget/modLimits.h"
#include "views/look/cCategoryLooks.h"
#include "views/template/cBankNumbers.h"
#include "views/template/cNameKeepers.h"
#include "views/template/cTemplateFlow.h"
#include "views/template/modTemplateText.h"

#include <algorithm>
#include <iterator>

namespace {

enum eWay { GiveUp = -1, MoveAndDelete, OnlyDelete };

bool IsCategoryOf(const cTemplateItem& item, const QString& path)
{
    return !modTemplate::IsAccount(item) && modTemplate::Path(item) == path;
}

cTemplateItemList CategoriesAt(const cTemplateItemList& items, const QString& path)
{
    cTemplateItemList found;
    std::copy_if(items.begin(), items.end(), std::back_inserter(found),
                 [&](const cTemplateItem& item) { return IsCategoryOf(item, path); });
    return found;
}

} // namespace

bool cTemplateRemoval::Ask(const QString& text, const QString& title)
{
    return m_tools.User.Ask({.Text = text, .Title = title, .Default = eAnswer::No}) == eAnswer::Yes;
}

QString cTemplateRemoval::Choose(const QString& text, const QString& title, const QStringList& items)
{
    if (items.isEmpty()) {
        m_tools.User.Refuse(cText::Tr("Es gibt nichts, wohin die Buchungen gehen könnten."));
        return {};
    }
    const std::optional<QString> answer =
        m_tools.User.Choose({.Text = text, .Title = title, .Items = items, .Proposal = items.constFirst()});
    return answer && items.contains(*answer) ? *answer : QString();
}

QStringList cTemplateRemoval::Targets(const QStringList& exceptPaths) const
{
    QStringList paths;
    const cTemplateItemList items = modTemplate::InOrder(m_tools.Data.GetTemplates());
    for (const cTemplateItem& item : items) {
        const QString path = modTemplate::Path(item);
        if (!modTemplate::IsAccount(item) && modTemplate::IsVisible(item) && !modTemplateText::IsProtected(path)
            && !exceptPaths.contains(path)) {
            paths.append(path);
        }
    }
    paths.removeDuplicates();
    return paths;
}

QStringList cTemplateRemoval::Mains(const QString& exceptMain) const
{
    QStringList mains;
    const cTemplateItemList items = modTemplate::InOrder(m_tools.Data.GetTemplates());
    for (const cTemplateItem& item : items) {
        const QString main = modTemplate::GroupOf(item);
        if (!modTemplate::IsAccount(item) && main != exceptMain && !mains.contains(main)) {
            mains.append(main);
        }
    }
    return mains;
}

QStringList cTemplateRemoval::Accounts(const QString& exceptName) const
{
    QStringList names;
    const cTemplateItemList items = modTemplate::InOrder(m_tools.Data.GetAccounts());
    for (const cTemplateItem& item : items) {
        if (item.TemplateName != exceptName) {
            names.append(item.TemplateName);
        }
    }
    return names;
}

bool cTemplateRemoval::DeleteCategory(const cTemplateItem& category)
{
    const QString path = modTemplate::Path(category);
    cDoomed doomed;
    doomed.Items = {category};
    doomed.Paths = {path};
    doomed.Entries = m_tools.Data.CountEntriesByCategory().value(path);
    doomed.Shown = cText::Tr("Die Kategorie '{0}'", {path});
    return Delete(doomed, cText::Tr("Nur die Kategorie löschen"));
}

cTemplateRemoval::cDoomed cTemplateRemoval::CollectMain(const QString& main)
{
    cDoomed doomed;
    const cTemplateItemList items = m_tools.Data.GetTemplates();
    std::copy_if(items.begin(), items.end(), std::back_inserter(doomed.Items), [&](const cTemplateItem& item) {
        return !modTemplate::IsAccount(item) && modTemplate::GroupOf(item) == main;
    });
    for (const cTemplateItem& item : std::as_const(doomed.Items)) {
        doomed.Paths.append(modTemplate::Path(item));
    }
    const QHash<QString, int> counts = m_tools.Data.CountEntriesByCategory();
    for (auto count = counts.begin(); count != counts.end(); ++count) {
        if (modTemplate::MainOf(count.key()) == main) {
            doomed.Paths.append(count.key());
            doomed.Entries += *count;
        }
    }
    doomed.Paths.removeDuplicates();
    return doomed;
}

bool cTemplateRemoval::DeleteMain(const QString& main)
{
    cDoomed doomed = CollectMain(main);
    const auto subs = std::count_if(doomed.Items.begin(), doomed.Items.end(),
                                    [](const cTemplateItem& item) { return !item.TemplateName.isEmpty(); });
    doomed.Shown = subs == 0 ? cText::Tr("Die Hauptkategorie '{0}'", {main})
        : subs == 1          ? cText::Tr("Die Hauptkategorie '{0}' mit einer Unterkategorie", {main})
                    : cText::Tr("Die Hauptkategorie '{0}' mit {1} Unterkategorien", {main, QString::number(subs)});
    return !doomed.Items.isEmpty() && Delete(doomed, cText::Tr("Nur die Kategorien löschen"));
}

bool cTemplateRemoval::Delete(const cDoomed& doomed, const QString& onlyDelete)
{
    const QString title = cText::Tr("Kategorie löschen");
    if (std::any_of(doomed.Items.begin(), doomed.Items.end(),
                    [](const cTemplateItem& item) { return modTemplateText::IsProtected(modTemplate::Path(item)); })) {
        return m_tools.User.Refuse(modTemplateText::ProtectedHint());
    }
    if (doomed.Entries == 0) {
        const QString text =
            cText::Tr("{0} wird von keiner Buchung verwendet.\nMöchten Sie sie löschen?", {doomed.Shown});
        return Ask(text, title) && Remove(doomed, {});
    }
    const QString count = modTemplateText::Entries(doomed.Entries);
    const int way = m_tools.User.Decide(
        {.Text = cText::Tr("{0} wird von {1} verwendet.\nOhne Verschieben behalten die Buchungen ihre alte Kategorie "
                           "und bleiben überall sichtbar.",
                           {doomed.Shown, count}),
         .Title = title,
         .Options = {cText::Tr("Buchungen verschieben und löschen"), onlyDelete},
         .Default = eWay::GiveUp});
    if (way == eWay::OnlyDelete) {
        return Remove(doomed, {});
    }
    if (way != eWay::MoveAndDelete) {
        return false;
    }
    const QString target = Choose(cText::Tr("Neue Kategorie für {0}:", {count}), title, Targets(doomed.Paths));
    return !target.isEmpty() && Remove(doomed, target);
}

bool cTemplateRemoval::DeleteWithSettings(const cTemplateItem& item, const QString& target)
{
    const QString path = modTemplate::Path(item);
    return modLimits::Remove(m_tools.Settings, path) && m_tools.Data.DeleteTemplate(item.ID)
        && cCategoryLooks::Follow(m_tools.Data, m_tools.Settings, path, target);
}

bool cTemplateRemoval::Remove(const cDoomed& doomed, const QString& target)
{
    const QString name = doomed.Items.size() == 1
        ? cText::Tr("Kategorie '{0}' gelöscht", {modTemplate::Path(doomed.Items.constFirst())})
        : cText::Tr("{0} Kategorien gelöscht", {QString::number(doomed.Items.size())});
    cUndoStep step(m_tools.Data, name);
    const bool isDeleted = std::all_of(doomed.Items.begin(), doomed.Items.end(),
                                       [&](const cTemplateItem& item) { return DeleteWithSettings(item, {}); });
    const bool isMoved =
        target.isEmpty() || std::all_of(doomed.Paths.begin(), doomed.Paths.end(), [&](const QString& path) {
            return m_tools.Data.ChangeEntryCategory(target, path)
                && cNameKeepers(m_tools.Data, m_tools.Settings).JoinCategory(path, target);
        });
    return step.DoneIf(isDeleted && isMoved);
}

bool cTemplateRemoval::AskMergeCategory(const QString& sourcePath)
{
    if (modTemplateText::IsProtected(sourcePath)) {
        return m_tools.User.Refuse(modTemplateText::ProtectedHint());
    }
    const QString target =
        Choose(cText::Tr("Kategorie, in der '{0}' aufgehen soll:", {modTemplateText::ShownPath(sourcePath)}),
               cText::Tr("Kategorien zusammenführen"), Targets({sourcePath}));
    return !target.isEmpty() && MergeCategory(sourcePath, target);
}

bool cTemplateRemoval::MergeCategory(const QString& sourcePath, const QString& targetPath)
{
    const cTemplateItemList items = m_tools.Data.GetTemplates();
    const cTemplateItemList sources = CategoriesAt(items, sourcePath);
    if (modTemplateText::IsProtected(sourcePath) || modTemplateText::IsProtected(targetPath)) {
        return m_tools.User.Refuse(modTemplateText::ProtectedHint());
    }
    if (sourcePath == targetPath || CategoriesAt(items, targetPath).isEmpty()) {
        return m_tools.User.Refuse(cText::Tr("Die Kategorie '{0}' gibt es nicht.", {targetPath}));
    }
    const int count = m_tools.Data.CountEntriesByCategory().value(sourcePath);
    const QString shown = modTemplateText::ShownPath(sourcePath);
    const QStringList values{modTemplateText::Entries(count), shown, targetPath};
    const QString text = sources.isEmpty()
        ? cText::Tr("{0} von '{1}' nach '{2}' verschieben?", values)
        : cText::Tr("{0} von '{1}' nach '{2}' verschieben und die Kategorie '{1}' löschen?", values);
    if (!Ask(text, cText::Tr("Kategorien zusammenführen"))) {
        return false;
    }
    cUndoStep step(m_tools.Data, cText::Tr("Kategorie '{0}' mit '{1}' zusammengeführt", {shown, targetPath}));
    const bool isDeleted = std::all_of(sources.begin(), sources.end(),
                                       [&](const cTemplateItem& item) { return DeleteWithSettings(item, targetPath); });
    return step.DoneIf(isDeleted && m_tools.Data.ChangeEntryCategory(targetPath, sourcePath)
                       && cNameKeepers(m_tools.Data, m_tools.Settings).JoinCategory(sourcePath, targetPath));
}

bool cTemplateRemoval::AskMergeMain(const QString& source)
{
    const QString target = Choose(cText::Tr("Hauptkategorie, in der '{0}' aufgehen soll:", {source}),
                                  cText::Tr("Kategorien zusammenführen"), Mains(source));
    return !target.isEmpty() && MergeMain(source, target);
}

bool cTemplateRemoval::MergeMain(const QString& source, const QString& target)
{
    const cDoomed doomed = CollectMain(source);
    if (doomed.Paths.contains(modWord::Startguthaben, Qt::CaseInsensitive)) {
        return m_tools.User.Refuse(modTemplateText::ProtectedHint());
    }
    if (source == target || !Mains(source).contains(target)) {
        return m_tools.User.Refuse(cText::Tr("Die Hauptkategorie '{0}' gibt es nicht.", {target}));
    }
    const QString text = cText::Tr(
        "Alles aus '{0}' kommt nach '{1}': {2} und {3}. Gleichnamige Unterkategorien werden "
        "zusammengeführt.\nMöchten Sie fortfahren?",
        {source, target, modCount::Categories(doomed.Items.size()), modTemplateText::Entries(doomed.Entries)});
    if (!Ask(text, cText::Tr("Kategorien zusammenführen"))) {
        return false;
    }
    cUndoStep step(m_tools.Data, cText::Tr("Hauptkategorie '{0}' mit '{1}' zusammengeführt", {source, target}));
    const QString into = cTemplateFlow(m_tools).CleanMain(target);
    const bool isWritten = !into.isEmpty() && WriteMergedMain(source, into)
        && std::all_of(doomed.Paths.begin(), doomed.Paths.end(),
                       [&](const QString& path) {
                           return m_tools.Data.ChangeEntryCategory(modTemplate::WithMain(path, into), path);
                       })
        && cOwnRules(m_tools.Settings).RenameMain(source, into)
        && cCategoryLooks::Follow(m_tools.Data, m_tools.Settings, source, into);
    return step.DoneIf(isWritten);
}

bool cTemplateRemoval::WriteMergedMain(const QString& source, const QString& target)
{
    const cTemplateItemList items = m_tools.Data.GetTemplates();
    return std::all_of(items.begin(), items.end(), [&](cTemplateItem item) {
        if (modTemplate::IsAccount(item) || modTemplate::GroupOf(item) != source) {
            return true;
        }
        const QString oldPath = modTemplate::Path(item);
        item.TemplateCategory = target;
        const QString newPath = modTemplate::Path(item);
        if (!CategoriesAt(items, newPath).isEmpty()) {
            return m_tools.Data.ChangeEntryCategory(newPath, oldPath) && modLimits::Remove(m_tools.Settings, oldPath)
                && cRowChoices::RenameCategory(m_tools.Settings, oldPath, newPath)
                && m_tools.Data.DeleteTemplate(item.ID);
        }
        return m_tools.Data.ChangeTemplate(item) && cTemplateFlow(m_tools).FollowPath(item.ID, oldPath);
    });
}

bool cTemplateRemoval::DeleteAccount(const QString& name)
{
    const std::optional<cTemplateItem> account = m_tools.Data.FindAccount(name);
    const QString title = cText::Tr("Konto löschen");
    if (!account) {
        return false;
    }
    if (m_tools.Data.GetAccounts().size() == 1) {
        return m_tools.User.Refuse(
            cText::Tr("Das letzte Konto kann nicht gelöscht werden: Jede Buchung braucht ein Konto."));
    }
    const int entries = m_tools.Data.CountEntriesByAccount().value(name);
    if (entries == 0) {
        return Ask(cText::Tr("Das Konto '{0}' wird von keiner Buchung verwendet.\nMöchten Sie es löschen?", {name}),
                   title)
            && RemoveAccount(*account, {});
    }
    const QString count = modTemplateText::Entries(entries);
    const int way = m_tools.User.Decide(
        {.Text = cText::Tr("Das Konto '{0}' wird von {1} verwendet.\nOhne Verschieben behalten die Buchungen ihr "
                           "altes Konto und bleiben überall sichtbar.",
                           {name, count}),
         .Title = title,
         .Options = {cText::Tr("Buchungen verschieben und löschen"), cText::Tr("Nur das Konto löschen")},
         .Default = eWay::GiveUp});
    if (way == eWay::OnlyDelete) {
        return RemoveAccount(*account, {});
    }
    const QString target = way == eWay::MoveAndDelete
        ? Choose(cText::Tr("Neues Konto für {0}:", {count}), title, Accounts(name))
        : QString();
    return !target.isEmpty() && RemoveAccount(*account, target);
}

bool cTemplateRemoval::RemoveAccount(const cTemplateItem& account, const QString& target)
{
    const QString name = account.TemplateName;
    cUndoStep step(m_tools.Data, cText::Tr("Konto '{0}' gelöscht", {name}));
    const bool isWritten = cBankNumbers(m_tools.Data, m_tools.Settings).ReleaseAll(name) && DropShares(name)
        && (target.isEmpty() || MoveAccountEntries(name, target)) && m_tools.Data.DeleteTemplate(account.ID);
    return step.DoneIf(isWritten);
}

// Who had what part in an account that goes; the other one keeps its own.
bool cTemplateRemoval::DropShares(const QString& account)
{
    const cSettingKey key = modSettingKey::AccountShares.Of(account);
    return m_tools.Settings.Get(key).isEmpty() || m_tools.Settings.Delete(key);
}

bool cTemplateRemoval::MoveAccountEntries(const QString& source, const QString& target)
{
    return JoinStartBalances(source, target) && m_tools.Data.MoveEntriesToAccount(target, source)
        && cNameKeepers(m_tools.Data, m_tools.Settings).JoinAccount(source, target);
}

// Two start balances in one account: only one of them would ever be found again.
bool cTemplateRemoval::JoinStartBalances(const QString& source, const QString& target)
{
    const std::optional<cEntryItem> from = m_tools.Data.GetStartGuthaben(source);
    const std::optional<cEntryItem> to = m_tools.Data.GetStartGuthaben(target);
    if (!from || !to) {
        return true;
    }
    return m_tools.Data.SetStartGuthaben(target, modBalance::Effect(*from, {}) + modBalance::Effect(*to, {}),
                                         qMin(from->EntryDate, to->EntryDate))
        && m_tools.Data.DeleteEntry(from->ID);
}

QString cTemplateRemoval::AskMergeAccount(const QString& source)
{
    const QString target = Choose(cText::Tr("Konto, in dem '{0}' aufgehen soll:", {source}),
                                  cText::Tr("Konten zusammenführen"), Accounts(source));
    return !target.isEmpty() && MergeAccount(source, target) ? target : QString();
}

bool cTemplateRemoval::MergeAccount(const QString& source, const QString& target)
{
    const std::optional<cTemplateItem> account = m_tools.Data.FindAccount(source);
    if (source == target || !m_tools.Data.FindAccount(target)) {
        return m_tools.User.Refuse(cText::Tr("Das Konto '{0}' gibt es nicht.", {target}));
    }
    const QStringList values{modTemplateText::Entries(m_tools.Data.CountEntriesByAccount().value(source)), source,
                             target};
    const QString text = account
        ? cText::Tr("{0} von '{1}' nach '{2}' verschieben und das Konto '{1}' löschen?\nDie Startguthaben werden "
                    "addiert, die Bankkontonummern gehen mit.",
                    values)
        : cText::Tr("{0} von '{1}' nach '{2}' verschieben?", values);
    if (!Ask(text, cText::Tr("Konten zusammenführen"))) {
        return false;
    }
    cUndoStep step(m_tools.Data, cText::Tr("Konto '{0}' mit '{1}' zusammengeführt", {source, target}));
    const bool isWritten = cBankNumbers(m_tools.Data, m_tools.Settings).Move(source, target) && DropShares(source)
        && MoveAccountEntries(source, target) && (!account || m_tools.Data.DeleteTemplate(account->ID));
    return step.DoneIf(isWritten);
}
