#include "model/cImportEntry.h"

#include "base/modSimilar.h"

#include <QVarLengthArray>

#include <algorithm>

namespace {

constexpr qsizetype prefixLength = 12;
constexpr double prefixBonus = 1.05; // purposes that begin alike come from the same form

double PurposeScore(const QString& a, const QString& b)
{
    const double score = modSimilar::Similarity(a, b);
    return a.left(prefixLength) == b.left(prefixLength) ? score * prefixBonus : score;
}

// The smaller amount as a share of the larger one.
double AmountScore(qint64 a, qint64 b)
{
    return static_cast<double>(std::min(a, b)) / static_cast<double>(std::max(a, b));
}

using cLetters = QVarLengthArray<char16_t, 256>;

cLetters WithoutBlanks(const QString& text)
{
    cLetters rest(text.size());
    auto end = rest.begin();
    for (const QChar c : text) {
        *end = c.unicode();
        end += c.isSpace() ? 0 : 1;
    }
    rest.resize(end - rest.begin());
    return rest;
}

// What MT940 has room for: two pieces of 27 characters for a name; for a purpose ten, of which references may take six
// and a keyword the start of the next.
struct cRoom
{
    qsizetype Characters; // that a cut text has at least
    qsizetype Letters;    // of these, blanks not counted; what lies behind does not go into the hash
};
constexpr cRoom nameRoom{54, 30};
constexpr cRoom purposeRoom{100, 60};

bool IsEqualButBlanks(const QString& a, const QString& b, const cRoom& room)
{
    if (a == b) {
        return true;
    }
    const cLetters first = WithoutBlanks(a);
    const cLetters second = WithoutBlanks(b);
    if (first.size() == second.size()) {
        return first == second;
    }
    const bool isFirstShorter = first.size() < second.size();
    const cLetters& shorter = isFirstShorter ? first : second;
    return (isFirstShorter ? a : b).size() >= room.Characters && shorter.size() >= room.Letters
        && std::equal(shorter.begin(), shorter.end(), (isFirstShorter ? second : first).begin());
}

// An IBAN contains the bank, and not every format of a bank states it beside the account.
bool IsBankOpen(const cImportEntry& a, const cImportEntry& b)
{
    return a.ImportBeneficiaryBLZ.isEmpty() || b.ImportBeneficiaryBLZ.isEmpty()
        || (!a.ImportBeneficiaryAccount.isEmpty() && a.ImportBeneficiaryAccount.front().isLetter());
}

quint64 Mixed(quint64 hash, quint64 value)
{
    constexpr quint64 goldenRatio = 0x9E3779B97F4A7C15; // of 2^64: spreads values that are close to each other
    hash = (hash ^ value) * goldenRatio;
    return hash ^ (hash >> 32);
}

// Adds the letters that have room, four at a time.
quint64 MixedButBlanks(quint64 hash, const QString& text, const cRoom& room)
{
    quint64 four = 0;
    qsizetype letters = 0;
    for (const QChar c : text) {
        if (c.isSpace()) {
            continue;
        }
        four = four << 16 | c.unicode();
        if (++letters % 4 == 0) {
            hash = Mixed(hash, four);
            four = 0;
        }
        if (letters == room.Letters) {
            break;
        }
    }
    return Mixed(Mixed(hash, four), static_cast<quint64>(letters));
}

} // namespace

bool cImportEntry::Validate()
{
    ImportBeneficiaryAccount.remove(u'\'');
    ImportBeneficiaryBLZ.remove(u'\'');
    ImportBeneficiary.remove(u'\'');
    ImportAssigned = false;
    ImportAssignedEntry = -1;
    return true;
}

bool cImportEntry::isEqual(const cImportEntry& other) const
{
    return ImportDate == other.ImportDate && ImportAccount == other.ImportAccount
        && ImportBeneficiaryAccount == other.ImportBeneficiaryAccount && ImportBeneficiary == other.ImportBeneficiary
        && ImportBeneficiaryBLZ == other.ImportBeneficiaryBLZ && ImportPurpose == other.ImportPurpose
        && ImportValue == other.ImportValue;
}

bool cImportEntry::isEqualButBlanks(const cImportEntry& other) const
{
    return ImportDate == other.ImportDate && ImportValue == other.ImportValue && ImportAccount == other.ImportAccount
        && ImportBeneficiaryAccount == other.ImportBeneficiaryAccount
        && (ImportBeneficiaryBLZ == other.ImportBeneficiaryBLZ || IsBankOpen(*this, other))
        && IsEqualButBlanks(ImportBeneficiary, other.ImportBeneficiary, nameRoom)
        && IsEqualButBlanks(ImportPurpose, other.ImportPurpose, purposeRoom);
}

size_t cImportEntry::EqualHash() const
{
    // The accounts would tell hardly any rows apart that differ in nothing else.
    const quint64 hash = Mixed(static_cast<quint64>(ImportDate.toJulianDay()), static_cast<quint64>(ImportValue));
    return MixedButBlanks(MixedButBlanks(hash, ImportBeneficiary, nameRoom), ImportPurpose, purposeRoom);
}

double cImportEntry::isSimilar(const cImportEntry& other) const
{
    const bool areExpenses = ImportValue < 0 && other.ImportValue < 0;
    const bool areIncome = ImportValue > 0 && other.ImportValue > 0;
    if (!areExpenses && !areIncome) {
        return 0.0;
    }
    double score = PurposeScore(ImportPurpose, other.ImportPurpose);
    // Who pays often signs in many ways, so income goes by its amount; who is paid has one name.
    score += areExpenses ? modSimilar::Similarity(ImportBeneficiary, other.ImportBeneficiary)
                         : AmountScore(ImportValue, other.ImportValue);
    constexpr double impossible = 3.0; // nothing above gets there; a sum that does is worth nothing
    return score > impossible ? 0.0 : score / 2.0;
}
