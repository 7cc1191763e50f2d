#pragma once

#include "base/cUser.h"
#include "model/cEntryItem.h"
#include "views/entry/cEntrySuggestions.h"
#include "views/list/cEntryListModel.h"

#include <QList>
#include <QString>
#include <QStringList>

struct cBookTools;

// What several entries are to become; an empty text leaves each as it is.
struct cManyFields
{
    QString Category{};
    QString Account{};
    QString Description{};
    QString Type{};   // a word of modWord::EntryTypes
    QString Target{}; // of transfers

    bool operator==(const cManyFields&) const = default;
};

// Changes several entries of the list at once, as one step. An occurrence stands for its whole series, because only
// amount and day can differ from one occurrence to the next. Start balances stay as they are. A split purchase has one
// account, so its other parts change theirs along.
class cManyChange
{
public:
    enum class eSaved { Saved, BadTarget, Refused }; // the user was told why it was not saved

    enum class eParts { Chosen, All }; // of split purchases, which the bank knows as a whole only

    cManyChange(const cBookTools& tools, const QList<cEntryListModel::cKey>& rows, eParts parts = eParts::Chosen);

    [[nodiscard]] qsizetype Count() const { return m_entries.size(); } // of entries that can be changed
    [[nodiscard]] bool HasMore() const { return m_hasMore; }           // parts that were not chosen themselves
    // Whether there is any; else the user is told what to do instead.
    [[nodiscard]] bool HasAny() const;
    // How many entries that is, what is meant by the lines of a series, and what is left out.
    [[nodiscard]] QString Summary() const;
    [[nodiscard]] QStringList Left() const; // what stays as it is; empty without any
    [[nodiscard]] QStringList Accounts() const;
    [[nodiscard]] cEntrySuggestions& Suggestions() { return m_suggestions; }
    // Whether the target account means anything: a transfer is chosen, or one is among them and stays one.
    [[nodiscard]] bool ShowsTarget(const QString& type) const;

    [[nodiscard]] eAnswer AskToSave() const; // see modUnsaved
    // Checks, asks about days that agree with the bank, and stores.
    [[nodiscard]] eSaved Save(const cManyFields& fields);
    // The same after a question that says what becomes of how many; for where no form says so. In a list of the account
    // `shown` a transfer that leads to it gets the new account as its target; else, and in a list of all accounts, it
    // is the one that the money comes from.
    [[nodiscard]] eSaved AskAndSave(const cManyFields& fields, const QString& shown = {});

private:
    void Take(const cEntryItem& entry);
    [[nodiscard]] cEntryItemList Affected(const cManyFields& fields) const;
    [[nodiscard]] cEntryItemList Changed(const cManyFields& fields, const QString& shown) const;
    [[nodiscard]] eSaved Store(const cEntryItemList& changed) const;
    [[nodiscard]] static QString TransferText(const cEntryItemList& changed, const cManyFields& fields,
                                              const QString& shown);
    [[nodiscard]] eSaved Check(const cManyFields& fields, const cEntryItemList& changed) const;
    [[nodiscard]] bool Write(const cEntryItemList& changed) const;
    [[nodiscard]] eSaved Refuse(const QString& text, eSaved saved = eSaved::Refused) const;

    const cBookTools& m_tools;
    cEntrySuggestions m_suggestions;
    cEntryItemList m_entries; // each once
    qsizetype m_startBalances = 0;
    bool m_hasMore = false;
};
