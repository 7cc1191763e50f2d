#pragma once

#include "model/cEntryItem.h"

#include <QList>
#include <QString>
#include <QStringList>

// The people of a household: who paid an entry, and who has what share in an account.
namespace modPeople {

// Who paid an entry; empty where nobody is named.
[[nodiscard]] QString Payer(const cEntryItem& entry);
void SetPayer(cEntryItem& entry, const QString& name);

// Whom a list is narrowed to: a name, Nobody for the entries that name nobody, or an empty text for all.
inline const QString Nobody = QStringLiteral(" "); // no name is a blank
[[nodiscard]] bool IsPaidBy(const cEntryItem& entry, const QString& choice);
[[nodiscard]] bool IsChoice(const QString& choice, const QStringList& names);

// The part that one person has. Only the proportion of the numbers counts; as typed they are per cent.
struct cShare
{
    QString Person;
    int Part = 0;
    bool operator==(const cShare&) const = default;
};
using cShares = QList<cShare>;

// Shares and names as they are stored in a setting. What cannot be read is left out.
[[nodiscard]] QString ToText(const cShares& shares);
[[nodiscard]] cShares SharesOf(const QString& text);
[[nodiscard]] QString ToText(const QStringList& names);
[[nodiscard]] QStringList NamesOf(const QString& text);

// Everybody the same.
[[nodiscard]] cShares Equal(const QStringList& names);

// The same proportion as numbers that come to 100, as near as whole numbers are.
[[nodiscard]] cShares PerCent(const cShares& shares);

// The one to whom all of it belongs; empty when there are several.
[[nodiscard]] QString OwnerOf(const cShares& shares);

// The shares with another name in them. For an empty name they go without the old one, whose part goes to the others
// as theirs are.
[[nodiscard]] cShares Renamed(const cShares& shares, const QString& oldName, const QString& newName);

// Cents by shares, one number for each. The cents that are left over go one by one to the first that have a share.
[[nodiscard]] QList<qint64> Split(qint64 cents, const cShares& shares);

} // namespace modPeople
