#include "import/table/modColumnWords.h"

#include "import/cell/modCell.h"

#include <QList>

#include <algorithm>
#include <utility>

namespace {

// The vocabulary. Repetitions, the empty alternative behind "Umsatz getätigt von|" and the mixed directions
// ("Gutschrift" among the debits, "Belastung" among the credits) belong to it: layouts in use depend on them, and those
// that are misread have an entry in the table of known layouts.
constexpr QStringView dateWords = u"*Datum*|Date";
constexpr QStringView bookingDateWords =
    u"*Belegdatum*|*Buchungstag*|Buchung|Kaufdatum*|*Buchungsdatum*|Valutadatum*|*Valuta*|Wertstellung";
constexpr QStringView textWords = u"Text|*Buchungsart*|*Umsatzart*|*Category*|Art|Buchungstext*|Bezeichnung*|"
                                  u"Geschäftsvorfall*|*Beschreibung*|*MutatieSoort*|Vorgangsart";
constexpr QStringView purposeWords1 =
    u"Verwendung|Umsatzinformation|Kommentar|Vorgang|Cheque Number|Notes|Beschreibung 1|VWZ1|Verwendungszweckzeile 1|"
    u"Verwendungszweck 1|Vwz*1|Umsatzbeschreibung|Überweisungstext|Umsatztext|Umsatzzeile 1|Buchungshinweis|"
    u"Buchungsdetails|Details|Vorgang/Verwendungszweck|Verwendungszweck|*detailliert*|*Beschreibung*|*Mededelingen*|"
    u"Buchungsinformation";
constexpr QStringView purposeWords2 =
    u"Verwendungszweckzeile 2|Beschreibung 2|VWZ2|Vwz*2|Umsatzzeile 2|Verwendungszweck 2";
constexpr QStringView purposeWords3 =
    u"Verwendungszweckzeile 3|Beschreibung 3|VWZ3|Vwz*3|Umsatzzeile 3|Verwendungszweck 3|Ankündigung";
constexpr QStringView accountWords = u"*Kontonummer*|*Kontonr*|*Konto-Nr.*|*IBAN *";
constexpr QStringView widerAccountWords = u"*Kontonummer*|*Kontonr*|*Konto-Nr.*|*IBAN *|*Konto*";
constexpr QStringView nameWords =
    u"*Begünstigter*|*Absender*|*Empfänger*|*Auftraggeber*|*Kontoinhaber*|*Begünstigter*|*Zahlungspflichtiger*|"
    u"*Begünstigter*|*Empfaenger*|*Zahlungsempfänger*|*Auftrag*|Name|*Partner*|*Tegenrekening*";
constexpr QStringView bankCodeWords = u"BLZ|*BLZ/BIC*|*Bankleitzahl*";
constexpr QStringView amountWords = u"VK-Betrag|Betrag*|Amount|Umsatz*|Abgerechnet|Soll/Haben|Bedrag*|Buchungsbetrag*";
constexpr QStringView noAmountWords = u"Umsatz getätigt von|";
constexpr QStringView debitWords = u"Soll|Soll *|Gutschrift*|out|Ausgang";
constexpr QStringView creditWords = u"Haben|Haben *|Belastung*|in|Eingang";

constexpr qsizetype mostCandidates = 21;

// A column that tells something about one of the two sides of a payment.
struct cCandidate
{
    int Column = -1;
    bool IsAccount = false;
    bool IsBankCode = false;
};

QStringList WordsOf(const QString& name)
{
    QStringList words;
    QString word;
    const QString ended = name + u' ';
    for (const QChar c : ended) {
        if (c.isLetter()) {
            word.append(c.toUpper());
        } else if (!word.isEmpty()) {
            words.append(std::exchange(word, {}));
        }
    }
    return words;
}

// "Empfänger 1" and "Empfänger 2", "Name Auftraggeber" and "Name Empfänger": names with a word of four letters in
// common.
bool BelongTogether(const QString& first, const QString& second)
{
    const QStringList words = WordsOf(second);
    const QStringList firstWords = WordsOf(first);
    return std::any_of(firstWords.begin(), firstWords.end(),
                       [&](const QString& word) { return word.size() >= 4 && words.contains(word); });
}

class cDetection
{
public:
    explicit cDetection(const QStringList& header)
    {
        m_map.Names = header;
        m_map.ColumnCount = static_cast<int>(header.size());
        for (int column = 0; column < m_map.ColumnCount; ++column) {
            Take(column, header.at(column));
        }
        if (m_map.Purpose[0] < 0) {
            m_map.Purpose[0] = std::exchange(m_map.Text, -1);
        }
        TakeCandidates();
        TakeCounterAccount(header);
    }

    [[nodiscard]] const cColumnMap& Map() const { return m_map; }

private:
    // The first list that knows the name decides.
    void Take(int column, const QString& name)
    {
        const auto matches = [&](QStringView list) { return modCell::MatchesList(name, list); };
        if (matches(dateWords)) {
            SetFirst(m_map.Date, column);
        } else if (matches(bookingDateWords)) {
            m_map.Date = column;
        } else if (matches(textWords)) {
            m_map.Text = column;
        } else if (matches(purposeWords1)) {
            SetFirst(m_map.Purpose[0], column);
        } else if (matches(purposeWords2)) {
            SetFirst(m_map.Purpose[1], column);
        } else if (matches(purposeWords3)) {
            SetFirst(m_map.Purpose[2], column);
        } else if (matches(accountWords) || matches(nameWords) || matches(bankCodeWords)) {
            AddCandidate({column, matches(widerAccountWords), matches(bankCodeWords)});
        } else if (matches(amountWords) && !matches(noAmountWords)) {
            TakeAmount(column, name);
        } else {
            TakeRest(column, name);
        }
    }

    static void SetFirst(int& target, int column)
    {
        if (target < 0) {
            target = column;
        }
    }

    void AddCandidate(const cCandidate& candidate)
    {
        if (m_candidates.size() < mostCandidates) {
            m_candidates.append(candidate);
        }
    }

    void TakeAmount(int column, const QString& name)
    {
        const bool isBeside = name == u"Soll/Haben" || modCell::MatchesList(name, u"*Währung");
        if (m_map.Amount < 0 || !isBeside) {
            m_map.Amount = column;
        }
    }

    void TakeRest(int column, const QString& name)
    {
        if (column == 0 && modCell::MatchesList(name, u"*buchung*")) {
            m_map.Date = column;
        }
        if (modCell::MatchesList(name, debitWords)) {
            m_map.Debit = column;
        }
        if (modCell::MatchesList(name, creditWords)) {
            m_map.Credit = column;
        }
    }

    void TakeCandidates()
    {
        const bool hasName = std::any_of(m_candidates.begin(), m_candidates.end(), [](const cCandidate& candidate) {
            return !candidate.IsAccount && !candidate.IsBankCode;
        });
        for (const cCandidate& candidate : std::as_const(m_candidates)) {
            if (hasName && candidate.IsAccount) {
                SetEither(m_map.Account, m_map.Account2, candidate.Column);
            } else if (hasName && candidate.IsBankCode) {
                SetEither(m_map.BankCode, m_map.BankCode2, candidate.Column);
            } else {
                TakeName(candidate.Column);
            }
        }
        if (m_map.Name2 >= 0) {
            return;
        }
        // With only one name the first account is the owner's and the later one that of the other side.
        if (m_map.BankCode2 >= 0) {
            std::swap(m_map.BankCode, m_map.BankCode2);
        }
        if (m_map.Account2 >= 0) {
            std::swap(m_map.Account, m_map.Account2);
        }
    }

    static void SetEither(int& first, int& second, int column) { (first < 0 ? first : second) = column; }

    void TakeName(int column)
    {
        if (m_map.Name < 0) {
            m_map.Name = column;
        } else if (BelongTogether(m_map.Names.at(m_map.Name), m_map.Names.at(column))) {
            m_map.Name2 = column;
        }
    }

    void TakeCounterAccount(const QStringList& header)
    {
        const int account = static_cast<int>(header.indexOf(QStringLiteral("Gegenkonto")));
        const int bankCode = static_cast<int>(header.indexOf(QStringLiteral("Gegenkonto BLZ")));
        const int name = static_cast<int>(header.indexOf(QStringLiteral("Gegenkonto Inhaber")));
        if (account < 0 || bankCode < 0 || name < 0) {
            return;
        }
        m_map.Account = account;
        m_map.BankCode = bankCode;
        m_map.Name = name;
        if (const qsizetype own = header.indexOf(QStringLiteral("Kontonummer")); own >= 0) {
            m_map.BankCode2 = static_cast<int>(own); // deliberate: the owner's number stands where its bank code would
        }
    }

    cColumnMap m_map;
    QList<cCandidate> m_candidates;
};

} // namespace

cColumnMap modColumnWords::Detect(const QStringList& header)
{
    return cDetection(header).Map();
}
