#include "import/table/modTableStatus.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace {

using modTableStatus::eState;

constexpr qsizetype longest = 40; // characters; more is a text and no state

struct cWord
{
    QStringView Text;
    eState State;
    bool IsPlain = false;  // says the same in any column
    bool IsWithin = false; // and among other words
};

constexpr eState pending = eState::Pending;
constexpr eState called = eState::Void;
constexpr eState booked = eState::Booked;

// What denies a word stands before it, and what is plain before all others.
constexpr std::array words = {
    cWord{u"noch nicht gebucht", pending, true, true},
    cWord{u"nicht gebucht", pending, true, true},
    cWord{u"nicht ausgeführt", called, true, true},
    cWord{u"vorgemerkt", pending, true, true},
    cWord{u"umsatz vorgemerkt", pending, true},
    cWord{u"pending", pending, true, true},
    cWord{u"reverted", called, true, true},
    cWord{u"declined", called, true, true},
    cWord{u"failed", called, true, true},
    cWord{u"rückgängig gemacht", called, true, true},
    cWord{u"storniert", called, true, true},
    cWord{u"abgelehnt", called, true, true},
    cWord{u"fehlgeschlagen", called, true, true},
    cWord{u"cancelled", called, true},
    cWord{u"canceled", called, true},
    cWord{u"rejected", called, true},
    cWord{u"nicht autorisiert", called},
    cWord{u"ausstehend", pending, false, true},
    cWord{u"vormerkung", pending},
    cWord{u"memo", pending},
    cWord{u"offen", pending},
    cWord{u"reserviert", pending},
    cWord{u"in bearbeitung", pending, false, true},
    cWord{u"in verarbeitung", pending, false, true},
    cWord{u"wird verarbeitet", pending},
    cWord{u"angekündigt", pending},
    cWord{u"geplant", pending},
    cWord{u"authorised", pending},
    cWord{u"authorized", pending},
    cWord{u"autorisiert", pending},
    cWord{u"processing", pending},
    cWord{u"in progress", pending},
    cWord{u"scheduled", pending},
    cWord{u"on hold", pending},
    cWord{u"unbooked", pending},
    cWord{u"pdng", pending},
    cWord{u"en attente", pending},
    cWord{u"in attesa", pending},
    cWord{u"abgebrochen", called},
    cWord{u"zurückgewiesen", called},
    cWord{u"annulliert", called},
    cWord{u"verfallen", called},
    cWord{u"abgelaufen", called},
    cWord{u"expired", called},
    cWord{u"denied", called},
    cWord{u"voided", called},
    cWord{u"gebucht", booked},
    cWord{u"umsatz gebucht", booked},
    cWord{u"verbucht", booked},
    cWord{u"abgeschlossen", booked},
    cWord{u"berechnet", booked},
    cWord{u"abgerechnet", booked},
    cWord{u"ausgeführt", booked},
    cWord{u"erledigt", booked},
    cWord{u"erfolgreich", booked},
    cWord{u"bezahlt", booked},
    cWord{u"completed", booked},
    cWord{u"complete", booked},
    cWord{u"booked", booked},
    cWord{u"book", booked},
    cWord{u"posted", booked},
    cWord{u"settled", booked},
    cWord{u"cleared", booked},
    cWord{u"executed", booked},
    cWord{u"processed", booked},
    cWord{u"success", booked},
    cWord{u"successful", booked},
    cWord{u"paid", booked},
    cWord{u"comptabilisé", booked},
    cWord{u"soll", booked}, // how it moved the balance
    cWord{u"haben", booked},
};

constexpr auto plainWords =
    static_cast<std::size_t>(std::count_if(words.begin(), words.end(), [](const cWord& word) { return word.IsPlain; }));

// Which lengths and first letters the plain words have, a bit each: nearly every cell differs in one of them already.
constexpr quint32 Bit(qsizetype place)
{
    return place >= 0 && place < 32 ? quint32{1} << place : 0;
}

constexpr quint32 plainLengths =
    std::accumulate(words.begin(), words.begin() + plainWords, quint32{0},
                    [](quint32 bits, const cWord& word) { return bits | Bit(word.Text.size()); });
constexpr quint32 plainLetters =
    std::accumulate(words.begin(), words.begin() + plainWords, quint32{0},
                    [](quint32 bits, const cWord& word) { return bits | Bit(word.Text.front().unicode() - u'a'); });

bool MayBePlain(QStringView cell)
{
    const int letter = (cell.front().unicode() | 0x20) - u'a'; // small letters differ from capitals in one bit
    return (plainLengths & Bit(cell.size())) != 0 && (plainLetters & Bit(letter)) != 0;
}

bool IsEqual(QStringView cell, QStringView word)
{
    return cell.size() == word.size() && cell.compare(word, Qt::CaseInsensitive) == 0;
}

eState First(auto isFit, std::size_t count = words.size())
{
    const auto* const end = words.begin() + count;
    const auto* const found = std::find_if(words.begin(), end, isFit);
    return found == end ? eState::Unknown : found->State;
}

} // namespace

eState modTableStatus::Of(QStringView cell)
{
    cell = cell.trimmed();
    if (cell.isEmpty() || cell.size() > longest) {
        return eState::Unknown;
    }
    const eState whole = First([&](const cWord& word) { return IsEqual(cell, word.Text); });
    return whole != eState::Unknown
        ? whole
        : First([&](const cWord& word) { return word.IsWithin && cell.contains(word.Text, Qt::CaseInsensitive); });
}

eState modTableStatus::OfAny(QStringView cell)
{
    if (cell.isEmpty() || !MayBePlain(cell)) {
        return eState::Unknown;
    }
    return First([&](const cWord& word) { return IsEqual(cell, word.Text); }, plainWords);
}
