#pragma once

#include "base/modFold.h"
#include "model/bank/cBankInfo.h"

#include <QHash>
#include <QString>

#include <optional>

class cShell;

// Banks that were found, best first, or why there is none and what to try instead.
struct cBankMatches
{
    cBankInfoList Banks;
    int Found = 0;   // also counts those that the limit left out
    QString Problem; // a sentence for the user; empty when there are banks
};

// The directory of German banks, read from the file "banken.tsv" of the installation when somebody first asks. Codes,
// BICs and IBANs may be typed with blanks and in small letters.
class cBankDirectory
{
public:
    explicit cBankDirectory(const cShell& shell) : m_shell(shell) {}

    [[nodiscard]] std::optional<cBankInfo> Find(const QString& code) const;

    // All codes with this BIC, those with an address first; 8 characters mean the head office. A BIC of a branch that
    // is not known gives the other codes of its bank: statements show branches that are long gone.
    [[nodiscard]] cBankInfoList FindByBic(const QString& bic) const;

    // The bank of a whole German IBAN whose check digits are right.
    [[nodiscard]] cBankMatches FindByIban(const QString& iban) const;

    // By words of name and city in any order, by code, BIC or IBAN, also while they are still being typed. Gives at
    // most `limit` banks.
    [[nodiscard]] cBankMatches Search(const QString& text, int limit) const;

    // The name, with the city where several banks have the same one.
    [[nodiscard]] QString Title(const cBankInfo& bank) const;

private:
    void Load() const; // the file, unless that is done
    [[nodiscard]] cBankMatches OneByCode(const QString& code) const;
    [[nodiscard]] cBankMatches SearchIban(const QString& iban, int limit) const;
    [[nodiscard]] cBankMatches SearchWords(const QString& text, int limit) const;
    [[nodiscard]] cBankMatches Answer(const cBankInfoList& banks, int limit) const;

    const cShell& m_shell;
    mutable bool m_isRead = false;
    mutable cBankInfoList m_banks;        // in the order in which equally good ones are shown
    mutable modFold::cTexts m_texts;      // name and city of each
    mutable QHash<QString, int> m_byCode; // its place in both
    mutable QHash<QString, int> m_names;  // how many banks have each
};
