#include "views/entry/cEntrySuggestions.h"

#include "base/modFold.h"
#include "model/cEntryItem.h"
#include "store/cDataAccess.h"

#include <algorithm>

namespace {

constexpr int readForDescriptions = 5000; // newest entries whose descriptions are proposed
constexpr int readForCategories = 50;     // newest entries whose categories count as recent

bool IsSame(const modFold::cFolded& a, const modFold::cFolded& b)
{
    return a.Plain == b.Plain || a.Spelled == b.Spelled || a.Plain == b.Spelled || a.Spelled == b.Plain;
}

// True when one of the levels of the path begins with the text.
bool LevelBegins(const QString& path, const modFold::cFolded& start)
{
    const QStringList levels = path.split(QStringLiteral("; "));
    return std::any_of(levels.begin(), levels.end(), [&](const QString& level) {
        const modFold::cFolded folded = modFold::Fold(level);
        return folded.Plain.startsWith(start.Plain) || folded.Spelled.startsWith(start.Spelled);
    });
}

} // namespace

QStringList cEntrySuggestions::VisibleCategories(cDataAccess& data)
{
    QStringList paths;
    const cTemplateItemList templates = modTemplate::InOrder(data.GetTemplates());
    for (const cTemplateItem& item : templates) {
        if (!modTemplate::IsAccount(item) && modTemplate::IsVisible(item)) {
            paths.append(modTemplate::Path(item));
        }
    }
    return paths;
}

QStringList cEntrySuggestions::VisibleAccounts(cDataAccess& data)
{
    QStringList names;
    const cTemplateItemList accounts = modTemplate::InOrder(data.GetAccounts());
    for (const cTemplateItem& account : accounts) {
        if (modTemplate::IsVisible(account)) {
            names.append(account.TemplateName);
        }
    }
    return names;
}

void cEntrySuggestions::LoadUses()
{
    if (m_hasUses) {
        return;
    }
    m_hasUses = true;
    m_uses.clear();
    const QList<cDescriptionUse> uses = m_data.GetDescriptionUses(readForDescriptions);
    for (const cDescriptionUse& use : uses) {
        m_uses.append({use.Description, use.Category, use.Account});
    }
}

void cEntrySuggestions::LoadCategories()
{
    if (!m_hasCategories) {
        m_hasCategories = true;
        m_categories = VisibleCategories(m_data);
        m_recent = m_data.GetRecentCategories(readForCategories);
    }
}

QStringList cEntrySuggestions::Descriptions(const QString& typed, int most)
{
    LoadUses();
    const QList<modFold::cFolded> words = modFold::Words(typed);
    QStringList found;
    for (const cUse& use : std::as_const(m_uses)) {
        if (found.size() == most) {
            break;
        }
        if (modFold::HoldsAll(modFold::Fold(use.Description), words)) {
            found.append(use.Description);
        }
    }
    return found;
}

QStringList cEntrySuggestions::Descriptions()
{
    LoadUses();
    QStringList all;
    for (const cUse& use : std::as_const(m_uses)) {
        all.append(use.Description);
    }
    return all;
}

cEntrySuggestions::cUse cEntrySuggestions::LatestUse(const QString& description)
{
    LoadUses();
    const auto found =
        std::find_if(m_uses.cbegin(), m_uses.cend(), [&](const cUse& use) { return use.Description == description; });
    return found == m_uses.cend() ? cUse{} : *found;
}

QStringList cEntrySuggestions::RecentCategories()
{
    LoadCategories();
    QStringList recent;
    for (const QString& path : std::as_const(m_recent)) {
        if (m_categories.contains(path)) { // one that was deleted or hidden is not proposed
            recent.append(path);
        }
    }
    return recent;
}

QStringList cEntrySuggestions::Categories(const QString& typed)
{
    const QStringList recent = RecentCategories();
    const QList<modFold::cFolded> words = modFold::Words(typed);
    const modFold::cFolded start = modFold::Fold(typed.trimmed());
    QStringList beginning;
    QStringList rest;
    for (const QString& path : std::as_const(m_categories)) {
        if (!recent.contains(path) && modFold::HoldsAll(modFold::Fold(path), words)) {
            (LevelBegins(path, start) ? beginning : rest).append(path);
        }
    }
    QStringList found;
    for (const QString& path : recent) {
        if (modFold::HoldsAll(modFold::Fold(path), words)) {
            found.append(path);
        }
    }
    return found + beginning + rest;
}

QString cEntrySuggestions::CategoryMeant(const QString& typed)
{
    if (typed.trimmed().isEmpty()) {
        return {};
    }
    const QStringList found = Categories(typed);
    const modFold::cFolded wanted = modFold::Fold(typed.simplified());
    for (const QString& path : found) {
        if (IsSame(modFold::Fold(path), wanted)) {
            return path;
        }
    }
    return found.value(0);
}

void cEntrySuggestions::Note(const cEntryItem& entry)
{
    if (m_hasUses && !entry.EntryDescription.isEmpty()) {
        m_uses.removeIf([&](const cUse& use) { return use.Description == entry.EntryDescription; });
        m_uses.prepend({entry.EntryDescription, entry.EntryCategory, entry.EntryAccount});
    }
    if (m_hasCategories) {
        m_recent.removeAll(entry.EntryCategory);
        m_recent.prepend(entry.EntryCategory);
    }
}
