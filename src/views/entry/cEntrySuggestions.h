#pragma once

#include "base/modFold.h"

#include <QList>
#include <QString>
#include <QStringList>

class cDataAccess;
class cUser;
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

    cEntrySuggestions(cDataAccess& data, cUser& user) : m_data(data), m_user(user) {}

    // Paths of the visible categories and names of the visible accounts, in the order that the user gave them.
    [[nodiscard]] static QStringList VisibleCategories(cDataAccess& data);
    [[nodiscard]] static QStringList VisibleAccounts(cDataAccess& data);

    // Earlier descriptions that hold all typed words, often and lately used ones first.
    [[nodiscard]] QStringList Descriptions(const QString& typed, int most = 12);
    // All that are known; a completer filters them itself.
    [[nodiscard]] QStringList Descriptions();
    // The latest use of exactly this description; an empty record when there is none.
    [[nodiscard]] cUse LatestUse(const QString& description);

    // Paths of visible categories that hold all typed words in main or sub-category or in their remark, without regard
    // to case and umlauts. First the one of exactly this name, then sub-categories that begin with what was typed, then
    // those with words that begin so, then the rest, and last what only the remark holds. Among equals, recently used
    // ones go first, then those of the kind (a word of entry types; empty: none). Without a text all, recent ones
    // first.
    [[nodiscard]] QStringList Categories(const QString& typed, const QString& type = {});
    // The one category that the text means: the first of these. Empty when none.
    [[nodiscard]] QString CategoryMeant(const QString& typed, const QString& type = {});
    // True for the path of a category, visible or not, in any spelling: there is nothing to be made of it.
    [[nodiscard]] bool IsCategory(const QString& typed);
    // Asks whether a text that names no category shall become one ("Garten; Pflanzen"), and makes it in a step of its
    // own: of the kind `type`, or of that of its neighbours for an empty one. Its path, also when it was there already
    // but hidden; empty when the user declines or nothing is left of the name.
    [[nodiscard]] QString OfferNew(const QString& typed, const QString& type);
    // Gives a category that was made for the entry that is saved the kind of this entry: it had that of its neighbours.
    // False when that could not be stored.
    [[nodiscard]] bool GiveKind(const QString& path, const QString& type);
    // Paths used by the last entries, newest first.
    [[nodiscard]] QStringList RecentCategories();

    // An entry was saved: it is the newest use now.
    void Note(const cEntryItem& entry);
    // Categories were changed elsewhere.
    void ForgetCategories() { m_hasCategories = false; }

private:
    // A visible category as it is searched.
    struct cKnown
    {
        QString Path;
        QString Type;
        modFold::cFolded Folded; // the path
        modFold::cFolded Name;   // the sub-category, or the main category where there is none
        modFold::cFolded Remark;
    };

    // How well a category fits; below the match of the name's beginning only its words count.
    enum eRank { Path, Exact, BeginOfName, BeginOfWord, Anywhere, InRemark, NoMatch };

    [[nodiscard]] static eRank Rank(const cKnown& known, const modFold::cFolded& text,
                                    const QList<modFold::cFolded>& words);
    [[nodiscard]] QString PathOf(const QString& typed); // of the category with this path in any spelling
    void LoadUses();
    void LoadCategories();

    cDataAccess& m_data;
    cUser& m_user;
    QList<cUse> m_uses;
    QList<cKnown> m_categories; // in the order that the user gave them
    QStringList m_recent;
    QStringList m_made; // paths of the categories that were made since an entry was saved
    bool m_hasUses = false;
    bool m_hasCategories = false;
};
