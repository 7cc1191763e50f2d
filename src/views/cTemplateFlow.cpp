#include "views/cTemplateFlow.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "core/cSettings.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"

using namespace Qt::Literals::StringLiterals;

QString cTemplateFlow::AskRenameAccount(const QString& oldName)
{
    const std::optional<QString> name = m_user.Choose({.Text = cText::Tr("Neuer Name für das Konto '{0}':", {oldName}),
                                                       .Title = cText::Tr("Konto umbenennen"),
                                                       .Items = {},
                                                       .Proposal = oldName,
                                                       .AllowNew = true});
    if (!name) {
        return oldName;
    }
    return RenameAccount(oldName, *name) ? modTemplate::CleanName(name->trimmed()) : oldName;
}

bool cTemplateFlow::RenameAccount(const QString& oldName, const QString& newName)
{
    const QString name = modTemplate::CleanName(newName.trimmed()).trimmed();
    if (name.isEmpty()) {
        m_user.Show(eTone::Exclamation, cText::Tr("Der Kontoname darf nicht leer sein!"));
        return false;
    }
    std::optional<cTemplateItem> account = m_data.FindAccount(oldName);
    if (!account || name == oldName) {
        return false;
    }
    if (m_data.FindAccount(name)) {
        m_user.Show(eTone::Exclamation, cText::Tr("Dieser Kontoname existiert bereits!"));
        return false;
    }
    eAnswer answer = eAnswer::No;
    if (m_data.CountEntriesOfAccount(oldName) >= 1) {
        answer = m_user.Ask(
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
    account->TemplateName = name;
    if (!m_data.ChangeTemplate(*account)) {
        return false;
    }
    MoveBankAccounts(oldName, name);
    if (answer == eAnswer::Yes) {
        MoveEntries(oldName, name);
    }
    return true;
}

void cTemplateFlow::MoveEntries(const QString& oldName, const QString& newName)
{
    if (!m_data.ChangeEntryAccount(newName, oldName)) {
        return;
    }
    // The bulk change reaches only names stored in lower case; the rest goes over one by one.
    const cEntryItemList left = m_data.GetEntriesOfAccount(oldName);
    for (cEntryItem entry : left) {
        if (entry.EntryAccount == oldName) {
            entry.EntryAccount = newName;
        }
        if (entry.EntryAccountMove == oldName) {
            entry.EntryAccountMove = newName;
        }
        if (!m_data.ChangeEntry(entry)) {
            return;
        }
    }
}

void cTemplateFlow::MoveBankAccounts(const QString& oldName, const QString& newName)
{
    const QStringList numbers = m_data.GetImportAccounts();
    for (const QString& number : numbers) {
        if (m_settings.Get(u"KTO:"_s + number) == oldName) {
            m_settings.Set(u"KTO:"_s + number, newName);
        }
    }
}

bool cTemplateFlow::RenameCategory(const cTemplateItem& category, const QString& newMain, const QString& newSub)
{
    cTemplateItem renamed = category;
    renamed.TemplateCategory = modTemplate::CleanName(newMain.trimmed()).trimmed();
    renamed.TemplateName = modTemplate::CleanName(newSub.trimmed()).trimmed();
    const QString oldPath = modTemplate::Path(category);
    const QString newPath = modTemplate::Path(renamed);
    if (newPath == oldPath) {
        return false;
    }
    const std::optional<cTemplateItem> other = m_data.FindTemplate(renamed.TemplateCategory, renamed.TemplateName);
    if (other && !modTemplate::IsAccount(*other)) {
        m_user.Show(eTone::Exclamation, cText::Tr("Die Kategorie '{0}' existiert bereits!", {newPath}));
        return false;
    }
    if (!m_data.ChangeTemplate(renamed)) {
        return false;
    }
    return m_data.CountEntriesOfCategory(oldPath) == 0 || m_data.ChangeEntryCategory(newPath, oldPath);
}
