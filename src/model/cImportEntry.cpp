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

size_t HashButBlanks(const QString& text)
{
    const cLetters rest = WithoutBlanks(text);
    return qHashBits(rest.constData(), static_cast<size_t>(rest.size()) * sizeof(char16_t));
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
        && ImportBeneficiaryBLZ == other.ImportBeneficiaryBLZ
        && WithoutBlanks(ImportBeneficiary) == WithoutBlanks(other.ImportBeneficiary)
        && WithoutBlanks(ImportPurpose) == WithoutBlanks(other.ImportPurpose);
}

size_t cImportEntry::EqualHash() const
{
    return qHashMulti(0, ImportDate.toJulianDay(), ImportAccount, ImportBeneficiaryAccount, ImportBeneficiaryBLZ,
                      ImportValue, HashButBlanks(ImportBeneficiary), HashButBlanks(ImportPurpose));
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
