#include "views/cEntryFilter.h"

#include "base/modDate.h"
#include "model/modWord.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <array>
#include <unordered_map>

using namespace Qt::Literals::StringLiterals;

namespace {

// The words that many entries share. Entries of one query share their characters too, so addresses tell them apart;
// equal words at two places are merely folded twice.
using cShared = std::array<const QChar*, 5>;

cShared Shared(const cEntryItem& entry)
{
    return {entry.EntryType.constData(), entry.EntryCategory.constData(), entry.EntryAccount.constData(),
            entry.EntryAccountMove.constData(), entry.EntryInterval.constData()};
}

struct cSharedHash
{
    std::size_t operator()(const cShared& shared) const { return qHashRange(shared.begin(), shared.end()); }
};

QString Words(const cEntryItem& entry)
{
    return QStringList{modWord::EntryTypes().ToShown(entry.EntryType), entry.EntryCategory,
                       cEntryFilter::AccountText(entry), modWord::Intervals().ToShown(entry.EntryInterval)}
        .join(u'\n');
}

bool IsPartOfDay(const QString& word)
{
    return std::all_of(word.begin(), word.end(), [](QChar c) { return c == u'.' || (c >= u'0' && c <= u'9'); });
}

std::size_t At(int index)
{
    return static_cast<std::size_t>(index);
}

} // namespace

cEntryFilter::cEntryFilter(const cEntryItemList& entries, const cAmountFormat& format)
    : m_entries(entries),
      m_amounts(format)
{
    FoldTexts();
}

QString cEntryFilter::AccountText(const cEntryItem& entry)
{
    return entry.EntryType == modWord::Umbuchung ? entry.EntryAccount + u" → " + entry.EntryAccountMove
                                                 : entry.EntryAccount;
}

qint64 cEntryFilter::ShownCents(const cEntryItem& entry, const QString& account)
{
    const bool isExpense = entry.EntryType == modWord::Ausgabe;
    const bool leavesAccount = entry.EntryType == modWord::Umbuchung && entry.EntryAccount == account;
    return isExpense || leavesAccount ? -entry.EntryValue : entry.EntryValue;
}

void cEntryFilter::FoldTexts()
{
    std::unordered_map<cShared, int, cSharedHash> known;
    m_places.reserve(At(static_cast<int>(m_entries.size())));
    const QChar* description = nullptr;
    cPlace place;
    for (const cEntryItem& entry : std::as_const(m_entries)) {
        const auto [words, isNew] = known.try_emplace(Shared(entry), 0);
        if (isNew) {
            words->second = m_texts.Add(Words(entry));
        }
        place.Words = words->second;
        // The occurrences of a series follow each other with the same description.
        if (entry.EntryDescription.constData() != description) {
            description = entry.EntryDescription.constData();
            place.Description = m_texts.Add(entry.EntryDescription);
        }
        m_places.push_back(place);
    }
}

std::vector<int> cEntryFilter::Find(const QList<modFold::cFolded>& words, const std::vector<int>& among,
                                    const fnCents& cents)
{
    std::vector<cSearched> searched;
    for (const modFold::cFolded& word : words) {
        searched.push_back(Search(word));
    }
    // Writing a day or an amount takes longer than looking up a word, so it is left for what the words let pass.
    std::stable_partition(searched.begin(), searched.end(),
                          [](const cSearched& each) { return !each.MayBeDay && !each.MayBeAmount; });
    std::vector<int> found;
    for (const int entry : among) {
        if (std::all_of(searched.begin(), searched.end(),
                        [&](const cSearched& each) { return Holds(entry, each, cents); })) {
            found.push_back(entry);
        }
    }
    return found;
}

cEntryFilter::cSearched cEntryFilter::Search(const modFold::cFolded& word) const
{
    return {word, m_texts.Find(word), IsPartOfDay(word.Plain), m_amounts.MayHold(word.Plain)};
}

bool cEntryFilter::Holds(int entry, const cSearched& searched, const fnCents& cents)
{
    const cPlace& place = m_places[At(entry)];
    return searched.IsFound[At(place.Words)] || searched.IsFound[At(place.Description)]
        || (searched.MayBeDay && HoldsDay(m_entries.at(entry).EntryDate, searched.Word))
        || (searched.MayBeAmount && HoldsAmount(cents(entry), searched.Word));
}

bool cEntryFilter::HoldsDay(QDate day, const modFold::cFolded& word)
{
    if (day != m_day) {
        m_day = day;
        m_dayText = modDate::ToGerman(day);
    }
    return m_dayText.contains(word.Plain);
}

bool cEntryFilter::HoldsAmount(qint64 cents, const modFold::cFolded& word)
{
    m_amounts.Write(cents, m_amountText);
    return m_amountText.contains(word.Plain);
}
