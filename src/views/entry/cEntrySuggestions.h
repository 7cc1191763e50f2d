#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class cDataAccess;
struct cEntryItem;

// What the editor proposes while the user types: earlier descriptions and categories. Read on first use and kept, so
// that a large book costs nothing before and little after.
class cEntrySuggestions
{
public:
    struct cUse
    {
        QString Description;
        QString Category; // of its latest use
        QString Account;
    };

    explicit cEntrySuggestions(cDataAccess& data) : m_data(data) {}

    // Paths of the visible categories and names of the visible accounts, in the order that the user gave them.
    [[nodiscard]] static QStringList VisibleCategories(cDataAccess& data);
    [[nodiscard]] static QStringList VisibleAccounts(cDataAccess& data);

    // Earlier descriptions that hold all typed words, often and lately used ones first.
    [[nodiscard]] QStringList Descriptions(const QString& typed, int most = 12);
    // All that are known; a completer filters them itself.
    [[nodiscard]] QStringList Descriptions();
    // The latest use of exactly this description; an empty record when there is none.
    [[nodiscard]] cUse LatestUse(const QString& description);

    // Paths of visible categories that hold all typed words in main or sub-category, without regard to case and
    // umlauts: recently used ones first, then those with a level that begins with what was typed, then the rest.
    [[nodiscard]] QStringList Categories(const QString& typed);
    // The one category that the text means: its path in any spelling, else the first match. Empty when none.
    [[nodiscard]] QString CategoryMeant(const QString& typed);
    // Paths used by the last entries, newest first.
    [[nodiscard]] QStringList RecentCategories();

    // An entry was saved: it is the newest use now.
    void Note(const cEntryItem& entry);
    // Categories were changed elsewhere.
    void ForgetCategories() { m_hasCategories = false; }

private:
    void LoadUses();
    void LoadCategories();

    cDataAccess& m_data;
    QList<cUse> m_uses;
    QStringList m_categories;
    QStringList m_recent;
    bool m_hasUses = false;
    bool m_hasCategories = false;
};
