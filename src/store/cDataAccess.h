#pragma once

#include "model/bank/cOnlineAccount.h"
#include "model/cAccountSum.h"
#include "model/cCategorySum.h"
#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"
#include "model/cEntryQuery.h"
#include "model/cEntryWindow.h"
#include "model/cFaultyEntry.h"
#include "model/cImportEntry.h"
#include "model/cTemplateItem.h"
#include "store/cJournal.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

class cDatabase;
class cUser;
class cWindowAhead;
struct cWindowRows;

// An earlier description with category and account of its latest use.
struct cDescriptionUse
{
    QString Description;
    QString Category;
    QString Account;
};

// A name that lost the characters that names cannot have when its definition was saved.
struct cCleanedName
{
    bool IsAccount = false;
    QString Old; // name of the account, or path of the category
    QString New;
    int Entries = 0; // that went along
};

// Every operation on the database. A failure is shown to the user once, with the operation's name and the
// reason in German, and returned as false, an empty optional or an empty list; nothing is retried. See IsWhole for what
// follows from a failed read.
class cDataAccess
{
public:
    cDataAccess(cDatabase& database, cUser& user);
    cDataAccess(const cDataAccess&) = delete;
    cDataAccess& operator=(const cDataAccess&) = delete;
    ~cDataAccess();

    // Table `data`
    [[nodiscard]] bool AddNewEntry(cEntryItem& entry); // sets entry.ID
    [[nodiscard]] bool ChangeEntry(const cEntryItem& entry);
    // Releases the staged rows of the entry and removes its corrections with it.
    [[nodiscard]] bool DeleteEntry(int id);
    // Matches stored names that equal the lower-cased old name, and only those.
    [[nodiscard]] bool ChangeEntryAccount(const QString& newName, const QString& oldName);
    [[nodiscard]] bool ChangeEntryCategory(const QString& newPath, const QString& oldPath);
    // Entries of a period with recurring ones expanded into their corrected occurrences: first one-off entries, then
    // the series, each in date order.
    [[nodiscard]] cEntryItemList GetEntries(const cEntryQuery& query);
    [[nodiscard]] std::optional<cEntryItem> LoadEntry(int id);
    // Entries from exactly this account to exactly this target, not expanded.
    [[nodiscard]] cEntryItemList GetEntriesByTarget(const QString& account, const QString& target, const QString& type);
    // The entries that recur, not expanded, by ID.
    [[nodiscard]] cEntryItemList GetSeries();
    // Of these the ones with exactly this account as source or target.
    [[nodiscard]] cEntryItemList GetSeriesOfAccount(const QString& account);
    // The categories of the entries between two IDs, both included, by ID.
    [[nodiscard]] QHash<int, QString> GetEntryCategories(int firstId, int lastId);
    // Sums of what GetEntries would return, without building the records of one-off entries. `withStartBalance` false
    // leaves out the category of start balances.
    [[nodiscard]] QList<cAccountSum> GetSums(const cEntryQuery& query, bool withStartBalance);
    // The same by kind, category and tags, for reports: first sums of one-off entries, then one of each series.
    [[nodiscard]] QList<cCategorySum> GetCategorySums(const cEntryQuery& query);
    // The entries of these days, both valid, and the sums of all earlier ones, in one pass through the table. The sums
    // up to `balanceDay`, one of the days, are kept: GetSums gives them without reading while nothing is written.
    [[nodiscard]] cEntryWindow GetWindow(const modPeriod::cRange& days, QDate balanceDay);
    // Begins to read a window beside what the caller does; the next GetWindow of these days takes what was found.
    void ReadAhead(const modPeriod::cRange& days);
    [[nodiscard]] int CountEntries();
    [[nodiscard]] int CountEntriesOfAccount(const QString& account);
    [[nodiscard]] int CountEntriesOfCategory(const QString& path); // LIKE, as the path is given
    // Entries that no view shows or that do not count as they stand, by ID. Up to `today` a series has to have all its
    // occurrences.
    [[nodiscard]] std::optional<QList<cFaultyEntry>> GetFaultyEntries(QDate today);
    // Numbers of entries by their exact category path, and by the accounts they have as source or target.
    [[nodiscard]] QHash<QString, int> CountEntriesByCategory();
    [[nodiscard]] QHash<QString, int> CountEntriesByAccount();
    // Gives every entry with exactly this account as source or target the other one.
    [[nodiscard]] bool MoveEntriesToAccount(const QString& newName, const QString& oldName);
    [[nodiscard]] QStringList GetEntryAccounts();
    // The entries that carry the mark of this split group, not expanded, first part first.
    [[nodiscard]] cEntryItemList GetEntriesOfSplit(int group);
    // The entries whose flags hold this key, not expanded, in the order of their days.
    [[nodiscard]] cEntryItemList GetEntriesFlagged(const QString& key);
    // Of the `entries` newest rows, start balances left out: their descriptions, often and lately used ones first, and
    // their categories, newest first.
    [[nodiscard]] QList<cDescriptionUse> GetDescriptionUses(int entries);
    [[nodiscard]] QStringList GetRecentCategories(int entries);
    [[nodiscard]] QString GetLastAccount(); // of the newest entry; empty in a new book

    // Start balance of an account: its one-off entry in the category of start balances.
    [[nodiscard]] std::optional<cEntryItem> GetStartGuthaben(const QString& account);
    [[nodiscard]] QHash<QString, cEntryItem> GetStartBalances(); // of all accounts that have one
    // `cents` is signed: below zero it is stored as expense. Changes the existing entry or adds one.
    [[nodiscard]] bool SetStartGuthaben(const QString& account, qint64 cents, QDate date);

    // Table `datamod`
    [[nodiscard]] cEntryItemFixModList GetEntryMods(int entryId);
    [[nodiscard]] bool AddNewEntryMod(const cEntryItemFixMod& fixMod); // replaces one of the same entry and start
    [[nodiscard]] bool ChangeEntryMod(const cEntryItemFixMod& fixMod);
    [[nodiscard]] bool DeleteEntryMod(int id);
    [[nodiscard]] bool DeleteEntryModByRelation(int entryId);

    // Table `template`. Both clean the names. Older books hold names that are not clean: where a row loses characters
    // although the caller has left that name as it was, its entries follow, and so do the other rows of its main
    // category or group, which would else stay behind as a second one. The user is told at the end of the step. A name
    // that is taken once it is clean gets a number.
    [[nodiscard]] bool AddNewTemplate(cTemplateItem& item); // sets item.ID
    [[nodiscard]] bool ChangeTemplate(const cTemplateItem& item);
    // Called within the step for every name that was cleaned, so that what keeps names elsewhere follows as well.
    using fnFollow = std::function<bool(const cCleanedName&)>;
    void OnNameCleaned(fnFollow follow) { m_follow = std::move(follow); }
    [[nodiscard]] bool DeleteTemplate(int id);
    [[nodiscard]] cTemplateItemList GetTemplates();
    [[nodiscard]] cTemplateItemList GetAccounts();
    [[nodiscard]] std::optional<cTemplateItem> FindTemplate(int id);
    [[nodiscard]] std::optional<cTemplateItem> FindTemplate(const QString& category, const QString& name);
    [[nodiscard]] std::optional<cTemplateItem> FindAccount(const QString& name);

    // Table `import`
    [[nodiscard]] cImportEntryList GetImportEntries();         // by ID
    [[nodiscard]] bool AddNewImportEntry(cImportEntry& entry); // sets entry.ID
    [[nodiscard]] bool ChangeImportEntry(const cImportEntry& entry);
    [[nodiscard]] bool DeleteImport(int id);
    [[nodiscard]] bool DeleteAllImports();
    [[nodiscard]] bool ReleaseImports(int entryId); // its rows are unassigned again
    [[nodiscard]] QStringList GetImportAccounts();
    [[nodiscard]] QHash<QString, int> CountOpenImports(); // own account number to number of unassigned rows
    // Goes up by one with every write to table `import`, and by more when another connection has written: whoever
    // caches the table compares it.
    [[nodiscard]] quint64 ImportVersion();
    // The same as far as it is known without asking the file: writes of other connections are not looked for.
    [[nodiscard]] quint64 KnownImportVersion() const;

    // Table `account`
    [[nodiscard]] QList<cOnlineAccount> GetOnlineAccounts();         // newest first
    [[nodiscard]] bool GetNewOnlineAccount(cOnlineAccount& account); // inserts it and sets account.ID
    [[nodiscard]] bool ChangeOnlineAccount(const cOnlineAccount& account);
    [[nodiscard]] bool DeleteOnlineAccount(int id);
    [[nodiscard]] std::optional<cOnlineAccount> FindOnlineAccount(int id);
    [[nodiscard]] std::optional<cOnlineAccount> FindOnlineAccount(const QString& number, const QString& bankCode);

    // Table `setting`
    using cSettingRows = QList<std::pair<QString, QString>>; // name, value
    // Every list reads them, so a failure is told once, until they can be read again.
    [[nodiscard]] std::optional<cSettingRows> ReadSettings();
    [[nodiscard]] cSettingRows GetSettings() { return ReadSettings().value_or(cSettingRows()); }
    [[nodiscard]] bool ChangeSettingItem(const QString& name, const QString& value); // adds it when missing
    [[nodiscard]] bool DeleteSetting(const QString& name);

    // The file itself: what SQLite finds wrong with it, and which tables and columns it should have brought and has
    // not. Both in words, empty for a sound file.
    [[nodiscard]] QStringList GetFileProblems();
    [[nodiscard]] QStringList GetMissingParts();

    // The steps of the user; see cUndoStep.
    [[nodiscard]] cJournal& Journal() { return m_journal; }

    // Another file was opened: steps and failures of the last one mean nothing any more.
    void ForgetFile();

    // True when nothing can be written: the file was opened for reading only, or it turned out to be damaged.
    [[nodiscard]] bool IsReadOnly() const;
    [[nodiscard]] QString BookPath() const; // of the open file
    // False as long as something could not be read that was asked for. What a flow goes by may lack it, so every write
    // is refused until the same operation has succeeded, and nothing may be exported.
    [[nodiscard]] bool IsWhole() const;
    // Operations that have succeeded so far: what failed may succeed once there was another.
    [[nodiscard]] quint64 TimesDone() const { return m_timesDone; }

private:
    [[nodiscard]] bool WriteTemplate(const cTemplateItem& item);
    [[nodiscard]] cTemplateItemList UncleanTemplates();
    [[nodiscard]] cTemplateItem WithFreeName(const cTemplateItem& item);
    [[nodiscard]] bool Follow(const cTemplateItem& before, const cTemplateItem& now);
    [[nodiscard]] bool FollowName(cCleanedName name);
    [[nodiscard]] bool MoveGroup(const cTemplateItem& member, const QString& newGroup);
    [[nodiscard]] bool MovePathsBelow(const QString& oldMain, const QString& newMain);
    [[nodiscard]] bool JoinGroups(const cTemplateItem& written);
    void TellCleaned(bool isWritten);

    // Runs one operation; an exception becomes the message of that name, unless it is told already.
    eDatabaseFault Try(const char* name, const std::function<void()>& operation, bool isTold = false);
    // All are false after a failure. What `Read` gives may be what a flow decides by; `Look` is for what
    // depends on nothing and decides nothing: hints, counts, settings.
    bool Write(const char* name, const std::function<void()>& operation);
    bool Read(const char* name, const std::function<void()>& operation, bool isTold = false);
    bool Look(const char* name, const std::function<void()>& operation);
    bool Store(const char* name, const std::function<void()>& operation); // a setting, which depends on nothing

    // Sums of all entries up to a day, as long as the book is as it was when they were made.
    struct cKnownSums
    {
        QDate End;
        QList<cAccountSum> Sums;      // without start balances
        QList<cAccountSum> StartSums; // of these alone
        std::array<qint64, 3> Mark;   // of the database
    };
    [[nodiscard]] std::optional<QList<cAccountSum>> KnownSums(const cEntryQuery& query, bool withStartBalance);
    [[nodiscard]] cWindowRows ReadWindow(const modPeriod::cRange& days, const std::array<qint64, 3>& mark);

    cDatabase& m_database;
    cUser& m_user;
    cJournal m_journal;
    fnFollow m_follow;
    QList<cCleanedName> m_cleaned; // in the open step
    std::optional<cKnownSums> m_knownSums;
    std::unique_ptr<cWindowAhead> m_ahead; // it holds the file for reading, so nothing is written before its end
    QSet<QString> m_unread;                // reading operations that failed the last time
    bool m_isSettingFailureTold = false;
    quint64 m_timesDone = 0;
};
