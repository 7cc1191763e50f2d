#include "views/list/cEntryFilter.h"

#include "base/modFold.h"
#include "model/modPeople.h"
#include "model/modSeries.h"
#include "model/modWord.h"

#include <QHash>
#include <QStringList>

#include <array>
#include <numeric>
#include <unordered_map>

using namespace Qt::Literals::StringLiterals;

namespace {

// The words that many entries share. Entries of one query share their characters too, so addresses tell them apart;
// equal words at two places are merely folded twice.
using cShared = std::array<const QChar*, 6>;

cShared Shared(const cEntryItem& entry)
{
    return {entry.EntryType.constData(),        entry.EntryCategory.constData(), entry.EntryAccount.constData(),
            entry.EntryAccountMove.constData(), entry.EntryInterval.constData(), entry.EntryFlags.constData()};
}

struct cSharedHash
{
    std::size_t operator()(const cShared& shared) const { return qHashRange(shared.begin(), shared.end()); }
};

QString Words(const cEntryItem& entry)
{
    return QStringList{modWord::EntryTypes().ToShown(entry.EntryType), entry.EntryCategory, entry.Accounts(),
                       modWord::Intervals().ToShown(entry.EntryInterval), modPeople::Payer(entry)}
        .join(u'\n');
}

} // namespace

cEntryFilter::cEntryFilter(const cEntryItemList& entries, const cAmountFormat& format) : m_filter(format)
{
    std::unordered_map<cShared, int, cSharedHash> known;
    const QChar* lastDescription = nullptr;
    int description = 0;
    for (const cEntryItem& entry : entries) {
        const auto [words, isNew] = known.try_emplace(Shared(entry), 0);
        if (isNew) {
            words->second = m_filter.AddText(Words(entry));
        }
        // The occurrences of a series follow each other with the same description. What the user wrote to one of them
        // is found as well; what the program wrote stands at nearly all of them.
        if (!entry.CorrectionComment.isEmpty() && !modSeries::IsFromBank(entry.CorrectionComment)) {
            const QString text = entry.EntryDescription + u'\n' + entry.CorrectionComment;
            m_filter.AddRow(words->second, m_filter.AddText(text), entry.EntryDate);
            continue;
        }
        if (entry.EntryDescription.constData() != lastDescription) {
            lastDescription = entry.EntryDescription.constData();
            description = m_filter.AddText(entry.EntryDescription);
        }
        m_filter.AddRow(words->second, description, entry.EntryDate);
    }
}

cEntryItemList cEntryFilter::Search(const cEntryItemList& entries, const QString& text, const QString& account,
                                    const cAmountFormat& format)
{
    const QList<modFold::cFolded> words = modFold::Words(text);
    if (words.isEmpty()) {
        return entries;
    }
    std::vector<int> all(static_cast<std::size_t>(entries.size()));
    std::iota(all.begin(), all.end(), 0);
    const std::vector<int> found = cEntryFilter(entries, format).Find(words, all, [&](int entry) {
        return ShownCents(entries.at(entry), account);
    });
    cEntryItemList results;
    for (const int entry : found) {
        results.append(entries.at(entry));
    }
    return results;
}

qint64 cEntryFilter::ShownCents(const cEntryItem& entry, const QString& account)
{
    const bool isExpense = entry.EntryType == modWord::Ausgabe;
    const bool leavesAccount = entry.IsTransfer() && entry.EntryAccount == account;
    return isExpense || leavesAccount ? -entry.EntryValue : entry.EntryValue;
}

std::vector<int> cEntryFilter::Find(const QList<modFold::cFolded>& words, const std::vector<int>& among,
                                    const cListFilter::fnCents& cents)
{
    return m_filter.Find(words, among, cents);
}
