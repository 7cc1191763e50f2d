#include "import/table/modBalanceWords.h"

#include <algorithm>
#include <array>

namespace {

using modBalanceWords::eBalance;

struct cWord
{
    QStringView Text;
    eBalance Balance = eBalance::None;
};

constexpr qsizetype shortest = 5;
constexpr qsizetype longest = 18;

// The longer ones go before those that they hold.
constexpr std::array<cWord, 23> words{{
    {u"Anfangssaldo", eBalance::Opening},
    {u"Startsaldo", eBalance::Opening},
    {u"Beginsaldo", eBalance::Opening},
    {u"Saldovortrag", eBalance::Opening},
    {u"Anfangsbestand", eBalance::Opening},
    {u"Saldo Anfang", eBalance::Opening},
    {u"Saldo alt", eBalance::Opening},
    {u"Alter Saldo", eBalance::Opening},
    {u"Alter Kontostand", eBalance::Opening},
    {u"Letzter Kontostand", eBalance::Opening},
    {u"Opening balance", eBalance::Opening},
    {u"Endsaldo", eBalance::Closing},
    {u"Schlusssaldo", eBalance::Closing},
    {u"Schlußsaldo", eBalance::Closing},
    {u"Eindsaldo", eBalance::Closing},
    {u"Endbestand", eBalance::Closing},
    {u"Saldo Ende", eBalance::Closing},
    {u"Saldo neu", eBalance::Closing},
    {u"Neuer Saldo", eBalance::Closing},
    {u"Neuer Kontostand", eBalance::Closing},
    {u"Closing balance", eBalance::Closing},
    {u"Kontostand", eBalance::Present},
    {u"Saldo", eBalance::Any},
}};

// "Kontostand am Anfang", "Saldo letzter Auszug".
constexpr std::array<QStringView, 4> earlierWords = {u"alter ", u"letzter ", u"Anfang", u"Opening"};

bool Holds(QStringView label, QStringView word)
{
    return label.contains(word, Qt::CaseInsensitive);
}

} // namespace

eBalance modBalanceWords::OfLabel(QStringView label)
{
    const auto word = std::find_if(words.begin(), words.end(), [&](const cWord& each) {
        return each.Balance == eBalance::Any ? label.startsWith(each.Text, Qt::CaseInsensitive)
                                             : Holds(label, each.Text);
    });
    if (word == words.end()) {
        return eBalance::None;
    }
    const bool isPlain = word->Balance == eBalance::Present || word->Balance == eBalance::Any;
    const bool isEarlier = std::any_of(earlierWords.begin(), earlierWords.end(),
                                       [&](QStringView earlier) { return Holds(label, earlier); });
    return isPlain && isEarlier ? eBalance::Opening : word->Balance;
}

eBalance modBalanceWords::OfCell(QStringView cell)
{
    const QStringView name = cell.endsWith(u':') ? cell.chopped(1) : cell;
    if (name.size() < shortest || name.size() > longest || !name.front().isLetter()) {
        return eBalance::None; // nearly all cells of bookings
    }
    const auto word = std::find_if(words.begin(), words.end(), [&](const cWord& each) {
        return each.Text.size() == name.size() && each.Text.compare(name, Qt::CaseInsensitive) == 0;
    });
    return word == words.end() ? eBalance::None : word->Balance;
}
