#pragma once

#include "import/read/modTextWords.h"

#include <QList>
#include <QString>

struct cImportEntry;

// Who was really paid, or who paid: the counterparty without what changes from one payment to the next.
namespace modPayee {

struct cPayee
{
    QString Key;       // the same for all transactions with this payee; empty when the row names none
    QString Name;      // as a person reads it, "Netflix"
    QString Text;      // the bank's words that name it, for those who look for more than the key
    bool IsOwn = true; // the name of the counterparty; else taken from the purpose
};

// Card numbers, dates, store numbers, legal forms, "sagt Danke" and the place behind the name are left out. Behind
// PayPal, Klarna and others that collect for many shops it is the shop that the purpose names. Without a name it is the
// head of the purpose.
[[nodiscard]] cPayee Of(const cImportEntry& row);

// True for the name of somebody who collects for others, so that the name alone says nothing. The words are those of a
// text that begins with the name.
[[nodiscard]] bool IsCollector(const QString& name);
[[nodiscard]] bool IsCollector(const QList<modTextWords::cWord>& words);

// True when the payees can be the same one, written in two ways: all words of one are words of the other.
[[nodiscard]] bool CanBeSame(const QString& key, const QString& other);

} // namespace modPayee
