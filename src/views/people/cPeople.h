#pragma once

#include "base/cUser.h"
#include "model/modPeople.h"
#include "views/people/modSettlement.h"

#include <QString>
#include <QStringList>

#include <optional>

class cDataAccess;
struct cBookTools;

// The people of the open book with their shares. What changes them is one undo step each, with the marks of the
// entries.
class cPeople
{
public:
    explicit cPeople(const cBookTools& tools) : m_tools(tools) {}

    [[nodiscard]] QStringList Names() const;
    [[nodiscard]] bool HasAny() const { return !Names().isEmpty(); }
    [[nodiscard]] QStringList Accounts() const;

    // What is set for an account, or for an empty name for what all share; nothing when nothing is.
    [[nodiscard]] modPeople::cShares Stored(const QString& account) const;
    // What counts: else that of all, else everybody the same.
    [[nodiscard]] modPeople::cShares SharesOf(const QString& account) const;
    // As a person reads them: "Anna 60 %, Ben 40 %", "Anna".
    [[nodiscard]] static QString SharesText(const modPeople::cShares& shares);

    // These show what is wrong and return false.
    bool Add(const QString& typed);
    bool Rename(const QString& oldName, const QString& typed);
    bool Remove(const QString& name); // asks before
    // Those who paid the entries and are no persons yet become some, within a step of the caller. Nothing when the
    // database refuses.
    [[nodiscard]] std::optional<QStringList> AddPayers(const QList<int>& entryIds);
    // Percentages as typed, in the order of the names, all empty for nothing set. They are stored once they come to
    // 100; until then what is wrong with them, else an empty text.
    QString TakeShares(const QString& account, const QStringList& percents);
    // Of two people the other one has the rest; the percentages with it.
    [[nodiscard]] static QStringList WithRest(QStringList percents, qsizetype typed);
    [[nodiscard]] eAnswer AskToSave() const; // see modUnsaved
    // A name typed while somebody is chosen may be a new one or that person's: false, and the user is told to say
    // which.
    [[nodiscard]] bool IsClear(const QString& typed, const QString& chosen) const;
    [[nodiscard]] bool AreStored(const QStringList& wrong) const; // shows the rows that are not, with what is wrong

    // How many entries name the person as payer; a series counts once.
    [[nodiscard]] qsizetype CountOf(const QString& name) const;

    // Who owes whom for what happened in the days up to today.
    [[nodiscard]] cSettlement Settlement(const modPeriod::cRange& range) const;

private:
    [[nodiscard]] bool Refuse(const QString& text) const;
    [[nodiscard]] bool IsThere(const QString& name) const; // says when not
    [[nodiscard]] std::optional<QString> Wrong(const QString& name, const QString& except) const;
    [[nodiscard]] QList<int> EntriesOf(const QString& name) const;
    [[nodiscard]] bool Replace(const QString& oldName, const QString& newName);
    [[nodiscard]] bool Store(const QString& account, const modPeople::cShares& shares);
    // What counts once the person is gone; a line for each account that they have a part of.
    [[nodiscard]] modPeople::cShares SharesWithout(const QString& name, const QString& account) const;
    [[nodiscard]] QStringList ShareLinesWithout(const QString& name) const;

    const cBookTools& m_tools;
};
