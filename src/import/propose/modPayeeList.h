#pragma once

#include "import/read/modTextWords.h"

#include <QList>
#include <QString>

// The second list that is shipped: everyday payees, and words that say what is paid for. Read from data/empfaenger.tsv,
// which is part of the program.
namespace modPayeeList {

struct cHit
{
    QString Category;
    QString Interval;   // stored word; "Einmalig" where the list names none
    QString Word;       // as the list has it
    qsizetype From = 0; // words of the text that it was found in
    qsizetype Count = 0;
    bool IsSure = false;
    bool IsPurpose = false; // says what is paid for, so that it counts wherever it stands
};

// What the list finds in the words of a text. `cents` is the signed amount: the list knows for each word whether it is
// one of those who are paid or of those who pay.
[[nodiscard]] QList<cHit> Find(const QList<modTextWords::cWord>& words, qint64 cents);

// All categories and intervals that the list can give, each once, and how many words it holds.
struct cContents
{
    QStringList Categories;
    QStringList Intervals;
    qsizetype Words = 0;
};
[[nodiscard]] cContents Contents();

} // namespace modPayeeList
