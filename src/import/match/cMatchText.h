#pragma once

#include "import/match/modMatchScore.h"

#include <QList>
#include <QString>
#include <QStringView>

// The texts of a staged row or of an entry, made ready for many comparisons.
class cMatchText
{
public:
    cMatchText() = default;
    // Of a row: the counterparty, the purpose, and the category that would be proposed for it (empty when unknown).
    cMatchText(const QString& payee, const QString& purpose, const QString& category);
    // Of an entry.
    cMatchText(const QString& description, const QString& category);

    struct cLikeness
    {
        double Value = 0.0; // 0 to 1
        modMatchScore::eTextMatch Kind = modMatchScore::eTextMatch::None;
    };

    // What a row and an entry have in common, the best of: the payee or the purpose beside the description, as a whole
    // or word by word, because people write "REWE" where the bank writes "REWE Markt GmbH Talheim"; the category,
    // whose name may also stand in the purpose. A category fits many payees and counts for two thirds.
    [[nodiscard]] static cLikeness Compare(const cMatchText& row, const cMatchText& entry);

private:
    using cWords = QList<QStringView>;

    [[nodiscard]] static cWords WordsOf(const QString& text);
    [[nodiscard]] static double Likeness(const QString& a, const QString& b);
    // How like the word is to the one of `others` that is most like it.
    [[nodiscard]] static double Best(QStringView word, const cWords& others);
    // How much of `words` is found in the payee, and in payee and purpose together, on average.
    struct cCovered
    {
        double Payee = 0.0;
        double Both = 0.0;
    };
    [[nodiscard]] cCovered Covered(const cWords& words) const;

    QString m_payee; // of an entry its description
    QString m_purpose;
    QString m_whole; // the description as booking composes it from payee and purpose
    QString m_category;
    // They look into the texts above, whose characters stay where they are when an object is copied.
    cWords m_payeeWords;
    cWords m_purposeWords;
    cWords m_categoryWords;
};
