#pragma once

#include <QSet>
#include <QString>
#include <QStringView>

// What the cells of a column look like.
struct cColumnFacts
{
    int Filled = 0;
    int Dates = 0;
    int Amounts = 0;
    int Wholes = 0; // numbers without decimals
    int Signed = 0;
    int Negative = 0;
    int Ibans = 0;
    int Creditors = 0; // their identifiers
    int Numbers = 0;   // account numbers: five or more digits and nothing else
    int Codes = 0;     // three capitals
    int Indicators = 0;
    int Dashes = 0; // which stand for nothing among numbers
    qsizetype Letters = 0;
    QSet<size_t> Kinds; // hashes of the different texts
    QString First;

    void Look(QStringView cell);

    [[nodiscard]] bool IsConstant() const { return Kinds.size() <= 1; }
    [[nodiscard]] qsizetype Variety() const { return Kinds.size(); }
    [[nodiscard]] bool IsAll(int count) const { return Filled > 0 && count == Filled; }
    [[nodiscard]] bool IsAccount() const { return IsAll(Ibans + Numbers); }
    // Numbers for the most part: where the header says that they are money, a cell that is none is a fault.
    [[nodiscard]] bool IsMostlyMoney() const { return (Amounts + Wholes) * 2 > Filled - Dashes; }
    // Numbers that can be money; whole ones and gaps are ordinary among them.
    [[nodiscard]] bool IsMoney() const { return Amounts + Wholes > 0 && IsAll(Amounts + Wholes + Dashes); }
};
