#include "views/list/cListFilter.h"

#include "base/modChar.h"
#include "base/modDate.h"
#include "model/modTag.h"

#include <algorithm>

namespace {

bool IsPartOfDay(const QString& word)
{
    const QChar separator = modDate::Form().Separator;
    return std::all_of(word.begin(), word.end(),
                       [separator](QChar c) { return c == separator || modChar::IsDigit(c); });
}

std::size_t At(int index)
{
    return static_cast<std::size_t>(index);
}

} // namespace

cListFilter::cListFilter(const cAmountFormat& format) : m_amounts(format)
{
}

int cListFilter::AddText(const QString& text)
{
    const QStringList tags = modTag::Keys(text);
    for (const QString& tag : tags) {
        m_tags.insert(tag, m_count);
    }
    ++m_count;
    return m_texts.Add(text);
}

bool cListFilter::IsNarrower(const QList<modFold::cFolded>& words, const QList<modFold::cFolded>& before)
{
    const bool hadTag = std::any_of(before.begin(), before.end(),
                                    [](const modFold::cFolded& word) { return word.Plain.startsWith(u'#'); });
    return !hadTag && modFold::IsNarrower(words, before);
}

void cListFilter::AddRow(int text, int other, QDate day)
{
    m_rows.push_back({text, other, day});
}

std::vector<int> cListFilter::Find(const QList<modFold::cFolded>& words, const std::vector<int>& among,
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
    for (const int row : among) {
        if (std::all_of(searched.begin(), searched.end(),
                        [&](const cSearched& each) { return Holds(row, each, cents); })) {
            found.push_back(row);
        }
    }
    return found;
}

cListFilter::cSearched cListFilter::Search(const modFold::cFolded& word) const
{
    const QString ungrouped = cAmountPattern::Ungrouped(word.Plain);
    return {word, FindText(word), IsPartOfDay(word.Plain), m_amounts.MayHold(ungrouped), ungrouped};
}

std::vector<bool> cListFilter::FindText(const modFold::cFolded& word) const
{
    const QList<int> tagged = m_tags.values(word.Spelled); // which is the key of a tag
    if (tagged.isEmpty()) {
        return m_texts.Find(word);
    }
    std::vector<bool> isFound(At(m_count));
    for (const int text : tagged) {
        isFound[At(text)] = true;
    }
    return isFound;
}

bool cListFilter::Holds(int row, const cSearched& searched, const fnCents& cents)
{
    const cRow& place = m_rows[At(row)];
    return searched.IsFound[At(place.Text)] || searched.IsFound[At(place.Other)]
        || (searched.MayBeDay && HoldsDay(place.Day, searched.Word))
        || (searched.MayBeAmount && HoldsAmount(cents(row), searched));
}

bool cListFilter::HoldsDay(QDate day, const modFold::cFolded& word)
{
    if (day != m_day) {
        m_day = day;
        m_dayText = modDate::ToText(day);
    }
    return m_dayText.contains(word.Plain);
}

bool cListFilter::HoldsAmount(qint64 cents, const cSearched& searched)
{
    m_amounts.Write(cents, m_amountText);
    return m_amountText.contains(searched.Word.Plain)
        || m_amounts.WithoutGroups(m_amountText).contains(searched.Ungrouped);
}
