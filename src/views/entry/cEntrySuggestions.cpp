#include "views/entry/cEntrySuggestions.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modFold.h"
#include "model/cEntryItem.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

namespace {

constexpr int readForDescriptions = 5000; // newest entries whose descriptions are proposed
constexpr int readForCategories = 50;     // newest entries whose categories count as recent

bool IsSame(const modFold::cFolded& a, const modFold::cFolded& b)
{
    return a.Plain == b.Plain || a.Spelled == b.Spelled || a.Plain == b.Spelled || a.Spelled == b.Plain;
}

bool Begins(const modFold::cFolded& text, const modFold::cFolded& start)
{
    return text.Plain.startsWith(start.Plain) || text.Spelled.startsWith(start.Spelled);
}

bool HasWord(const QString& text, const QString& start)
{
    for (qsizetype at = text.indexOf(start); at >= 0; at = text.indexOf(start, at + 1)) {
        if (at == 0 || !text.at(at - 1).isLetterOrNumber()) {
            return true;
        }
    }
    return false;
}

// The two halves of a path as somebody types it: "Garten; Pflanzen" or "Garten;Pflanzen".
QString TypedPath(const QString& typed)
{
    return modTemplate::Join(typed.section(u';', 0, 0).simplified(), typed.section(u';', 1).simplified());
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
        m_categories.clear();
        const cTemplateItemList items = modTemplate::InOrder(m_data.GetTemplates());
        for (const cTemplateItem& item : items) {
            if (!modTemplate::IsAccount(item) && modTemplate::IsVisible(item)) {
                const QString path = modTemplate::Path(item);
                const QString sub = modTemplate::SubOf(path);
                m_categories.append({path, item.EntryType, modFold::Fold(path),
                                     modFold::Fold(sub.isEmpty() ? path : sub),
                                     modFold::Fold(path + u' ' + item.TemplateComment)});
            }
        }
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
        const bool isThere = std::any_of(m_categories.cbegin(), m_categories.cend(),
                                         [&](const cKnown& known) { return known.Path == path; });
        if (isThere) { // one that was deleted or hidden is not proposed
            recent.append(path);
        }
    }
    return recent;
}

cEntrySuggestions::eRank cEntrySuggestions::Rank(const cKnown& known, const modFold::cFolded& text,
                                                 const QList<modFold::cFolded>& words)
{
    if (text.Plain.isEmpty()) {
        return Anywhere;
    }
    if (!modFold::HoldsAll(known.Folded, words)) {
        return modFold::HoldsAll(known.Remark, words) ? InRemark : NoMatch;
    }
    if (IsSame(known.Folded, text)) {
        return Path;
    }
    if (IsSame(known.Name, text)) {
        return Exact;
    }
    if (Begins(known.Name, text)) {
        return BeginOfName;
    }
    const bool areBegins = std::all_of(words.begin(), words.end(), [&](const modFold::cFolded& word) {
        return HasWord(known.Folded.Plain, word.Plain) || HasWord(known.Folded.Spelled, word.Spelled);
    });
    return areBegins ? BeginOfWord : Anywhere;
}

QStringList cEntrySuggestions::Categories(const QString& typed, const QString& type)
{
    struct cFound
    {
        std::tuple<int, qsizetype, bool> Key; // smaller ones go first
        QString Path;
    };
    const QStringList recent = RecentCategories();
    const QList<modFold::cFolded> words = modFold::Words(typed);
    const modFold::cFolded text = modFold::Fold(typed.simplified());
    std::vector<cFound> found;
    for (const cKnown& known : std::as_const(m_categories)) {
        const eRank rank = Rank(known, text, words);
        if (rank != NoMatch) {
            const qsizetype use = recent.indexOf(known.Path);
            const bool isOther = !type.isEmpty() && known.Type != type;
            found.push_back({{rank, use < 0 ? recent.size() : use, isOther}, known.Path});
        }
    }
    std::stable_sort(found.begin(), found.end(), [](const cFound& a, const cFound& b) { return a.Key < b.Key; });
    QStringList paths;
    for (const cFound& each : found) {
        paths.append(each.Path);
    }
    return paths;
}

QString cEntrySuggestions::CategoryMeant(const QString& typed, const QString& type)
{
    return typed.trimmed().isEmpty() ? QString() : Categories(typed, type).value(0);
}

bool cEntrySuggestions::IsCategory(const QString& typed)
{
    return !PathOf(typed).isEmpty();
}

QString cEntrySuggestions::PathOf(const QString& typed)
{
    const modFold::cFolded wanted = modFold::Fold(TypedPath(typed));
    const cTemplateItemList items = m_data.GetTemplates();
    for (const cTemplateItem& item : items) {
        const QString path = modTemplate::Path(item);
        if (!modTemplate::IsAccount(item) && IsSame(modFold::Fold(path), wanted)) {
            return path;
        }
    }
    return {};
}

QString cEntrySuggestions::OfferNew(const QString& typed, const QString& type)
{
    const QString path = TypedPath(typed);
    cTemplateItem item =
        modTemplate::NewCategory(m_data.GetTemplates(), modTemplate::MainOf(path), modTemplate::SubOf(path));
    if (item.TemplateCategory.isEmpty() && item.TemplateName.isEmpty()) {
        return {};
    }
    const QString name = modTemplate::Path(item);
    if (const QString there = PathOf(name); !there.isEmpty()) {
        return there;
    }
    const eAnswer answer =
        m_user.Ask({.Text = cText::Tr("Die Kategorie '{0}' gibt es noch nicht.\nSoll sie angelegt werden?", {name}),
                    .Title = cText::Tr("Neue Kategorie")});
    if (answer != eAnswer::Yes) {
        return {};
    }
    item.EntryType = type.isEmpty() ? item.EntryType : type;
    cUndoStep step(m_data, cText::Tr("Kategorie '{0}' angelegt", {name}));
    if (!step.DoneIf(m_data.AddNewTemplate(item))) {
        return {};
    }
    ForgetCategories();
    m_made.append(name);
    return name;
}

bool cEntrySuggestions::GiveKind(const QString& path, const QString& type)
{
    if (!m_made.contains(path)) {
        return true;
    }
    ForgetCategories();
    std::optional<cTemplateItem> made = m_data.FindTemplate(modTemplate::MainOf(path), modTemplate::SubOf(path));
    if (!made || made->EntryType == type) {
        return true;
    }
    made->EntryType = type;
    return m_data.ChangeTemplate(*made);
}

void cEntrySuggestions::Note(const cEntryItem& entry)
{
    m_made.clear();
    if (m_hasUses && !entry.EntryDescription.isEmpty()) {
        m_uses.removeIf([&](const cUse& use) { return use.Description == entry.EntryDescription; });
        m_uses.prepend({entry.EntryDescription, entry.EntryCategory, entry.EntryAccount});
    }
    if (m_hasCategories) {
        m_recent.removeAll(entry.EntryCategory);
        m_recent.prepend(entry.EntryCategory);
    }
}
