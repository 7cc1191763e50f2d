#include "base/cText.h"
#include "base/cUser.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsClean(const QString& name)
{
    return modTemplate::CleanName(name) == name;
}

bool IsClean(const cTemplateItem& item)
{
    return IsClean(item.TemplateCategory) && IsClean(item.TemplateName);
}

// A name that consists of nothing else would vanish, and with it what tells the definition from others.
QString Cleaned(const QString& name)
{
    const QString cleaned = modTemplate::CleanName(name);
    return cleaned.trimmed().isEmpty() && !name.trimmed().isEmpty() ? u"Ohne Namen"_s : cleaned;
}

// What a caller asks for who has read the row before it was cleaned is the name that it has now.
QString Current(const QString& asked, const QString& stored)
{
    const QString cleaned = Cleaned(asked);
    const bool isNumbered = stored.startsWith(cleaned + u' ') && stored.mid(cleaned.size() + 1).toInt() > 0;
    return stored == cleaned || (cleaned != asked && isNumbered) ? stored : asked;
}

// The caller has left a name as it is stored, and it loses characters all the same.
bool Loses(const QString& asked, const QString& stored)
{
    return asked == stored && !IsClean(asked);
}

QString EntriesText(int entries)
{
    if (entries == 0) {
        return {};
    }
    return u' '
        + (entries == 1 ? cText::Tr("1 Buchung ging mit.")
                        : cText::Tr("{0} Buchungen gingen mit.", {QString::number(entries)}));
}

} // namespace

bool cDataAccess::ChangeTemplate(const cTemplateItem& item)
{
    const std::optional<cTemplateItem> stored = IsClean(item) ? std::nullopt : FindTemplate(item.ID);
    if (!stored) {
        return WriteTemplate(item) && JoinGroups(item);
    }
    cUndoStep step(*this, cText::Tr("'{0}' geändert", {modTemplate::NameOf(item)}));
    cTemplateItem asked = item;
    asked.TemplateCategory = Current(item.TemplateCategory, stored->TemplateCategory);
    asked.TemplateName = Current(item.TemplateName, stored->TemplateName);
    // The name of an account is one thing with or without its group; a path is made of both halves.
    const bool losesGroup = Loses(asked.TemplateCategory, stored->TemplateCategory);
    const bool isKept =
        Loses(asked.TemplateName, stored->TemplateName) || (losesGroup && !modTemplate::IsAccount(asked));
    const cTemplateItem cleaned = IsClean(asked) ? asked : WithFreeName(asked);
    const bool isWritten = WriteTemplate(cleaned) && (!isKept || Follow(*stored, cleaned))
        && (!losesGroup || MoveGroup(*stored, cleaned.TemplateCategory)) && JoinGroups(cleaned);
    return step.DoneIf(isWritten);
}

// Two definitions of one name could not be told apart by their entries. A name that loses nothing stays: only the group
// of the account has to be cleaned, and nobody moves the entries.
cTemplateItem cDataAccess::WithFreeName(const cTemplateItem& item)
{
    cTemplateItem cleaned = item;
    cleaned.TemplateCategory = Cleaned(item.TemplateCategory);
    cleaned.TemplateName = Cleaned(item.TemplateName);
    const cTemplateItemList items = GetTemplates();
    const bool isMain = cleaned.TemplateName.isEmpty();
    QString& name = isMain ? cleaned.TemplateCategory : cleaned.TemplateName;
    const QString wanted = name;
    const QString before = modTemplate::NameOf(item);
    for (int number = 2; modTemplate::NameOf(cleaned) != before && modTemplate::IsTaken(items, cleaned); ++number) {
        name = wanted + u' ' + QString::number(number);
    }
    return cleaned;
}

bool cDataAccess::Follow(const cTemplateItem& before, const cTemplateItem& now)
{
    return FollowName({modTemplate::IsAccount(now), modTemplate::NameOf(before), modTemplate::NameOf(now), 0});
}

bool cDataAccess::FollowName(cCleanedName name)
{
    if (name.Old == name.New) {
        return true;
    }
    name.Entries = (name.IsAccount ? CountEntriesByAccount() : CountEntriesByCategory()).value(name.Old);
    m_cleaned.append(name);
    const bool isMoved =
        name.IsAccount ? MoveEntriesToAccount(name.New, name.Old) : ChangeEntryCategory(name.New, name.Old);
    return isMoved && (!m_follow || m_follow(name));
}

// Gives a main category or a group of accounts its clean name in all its rows; one of them shows which it is.
bool cDataAccess::MoveGroup(const cTemplateItem& member, const QString& newGroup)
{
    const cTemplateItemList items = GetTemplates();
    for (const cTemplateItem& item : items) {
        if (item.TemplateType != member.TemplateType || item.TemplateCategory != member.TemplateCategory) {
            continue;
        }
        cTemplateItem moved = item;
        moved.TemplateCategory = newGroup;
        moved = WithFreeName(moved);
        if (!WriteTemplate(moved) || !Follow(item, moved)) {
            return false;
        }
    }
    return modTemplate::IsAccount(member) || MovePathsBelow(member.TemplateCategory, newGroup);
}

// Paths that only entries know have to stay below the same main category.
bool cDataAccess::MovePathsBelow(const QString& oldMain, const QString& newMain)
{
    QStringList paths = CountEntriesByCategory().keys();
    const cTemplateItemList items = GetTemplates();
    for (const cTemplateItem& item : items) {
        paths.removeAll(modTemplate::NameOf(item));
    }
    return std::all_of(paths.begin(), paths.end(), [&](const QString& path) {
        const bool isBelow = path == oldMain || path.startsWith(oldMain + u"; ");
        const QString now = modTemplate::Join(newMain, modTemplate::CleanName(path.mid(oldMain.size() + 2)));
        return !isBelow || FollowName({false, path, now, 0});
    });
}

// Groups whose clean name is that of the row just written: it was meant to stand among them.
bool cDataAccess::JoinGroups(const cTemplateItem& written)
{
    const cTemplateItemList items = UncleanTemplates();
    for (const cTemplateItem& item : items) {
        if (item.TemplateType == written.TemplateType && item.TemplateCategory != written.TemplateCategory
            && Cleaned(item.TemplateCategory) == written.TemplateCategory) {
            cUndoStep step(*this, cText::Tr("'{0}' geändert", {item.TemplateCategory}));
            if (!step.DoneIf(MoveGroup(item, written.TemplateCategory))) {
                return false;
            }
        }
    }
    return true;
}

void cDataAccess::TellCleaned(bool isWritten)
{
    const QList<cCleanedName> names = std::exchange(m_cleaned, {});
    if (names.isEmpty() || !isWritten) {
        return;
    }
    constexpr int most = 5;
    int entries = 0;
    QStringList changes;
    for (const cCleanedName& name : names) {
        entries += name.Entries;
        if (changes.size() < most) {
            changes.append(cText::Tr("'{0}' heißt jetzt '{1}'", {name.Old, name.New}));
        }
    }
    const QString more = names.size() > most ? u", …"_s : QString();
    m_user.Show(eTone::Information,
                cText::Tr("{0}, denn Namen dürfen die Zeichen & ' < > \" ; nicht enthalten.{1}",
                          {changes.join(u", "_s) + more, EntriesText(entries)}));
}
