#include "import/table/modTableMoney.h"

#include "import/table/cColumnSurvey.h"

#include <utility>

namespace {

// Words for columns beyond the vocabulary of the header, for layouts that nobody has described yet.
constexpr QStringView currencyWords = u"*Währung|*Waehrung|*Currency|Whg|Whg.|Valuta Code|Devise|Munt|Ccy|Ccy.";
constexpr QStringView amountWords = u"*Betrag*|*Amount*|Umsatz*|Bedrag*|Netto|Montant*|Importo*|Value (*";
constexpr QStringView debitWords =
    u"*D?bit*|Debet*|*Money out*|*Paid out*|*Belastung*|*Lastschrift*|Soll*|"
    u"*Abgang*|*Ausgabe*|*Ausgang*|*Auszahlung*|*Withdraw*|Out|*Amount out*|Af|*Addebit*|"
    u"*Uscite*|*Spent*|*Outgoing*";
constexpr QStringView creditWords = u"*Cr?dit*|*Money in*|*Paid in*|*Gutschrift*|Haben*|*Zugang*|*Einnahme*|"
                                    u"*Eingang*|*Einzahlung*|*Deposit*|In|*Amount in|*Amount in (*|Bij|*Accredit*|"
                                    u"*Entrate*|*Received*|*Incoming*|Kredit*";

class cMoney
{
public:
    explicit cMoney(cColumnSurvey& survey) : m_survey(survey), m_map(survey.Map()) {}

    void Run()
    {
        ReplaceAmount();
        PreferEuros();
        TakeSides();
        if (m_map.Amount < 0 && m_map.Debit < 0 && m_map.Credit < 0) {
            GuessAmount();
        }
        CompleteIndicator();
        CompleteByName();
    }

private:
    [[nodiscard]] const cColumnFacts& Facts(int column) const { return m_survey.Facts(column); }

    // Whole numbers alone ("12") are an amount when the header says so.
    [[nodiscard]] bool HasNumbers(int column) const { return Facts(column).Amounts > 0 || Facts(column).Wholes > 0; }

    void ReplaceAmount()
    {
        if (m_map.Amount < 0 || (!m_survey.IsForeign(m_map.Amount) && HasNumbers(m_map.Amount))) {
            return;
        }
        const int better = m_survey.First([&](int column) {
            return m_survey.IsNamed(column, amountWords) && !m_survey.IsForeign(column) && !m_survey.IsBalance(column)
                && Facts(column).Amounts > 0;
        });
        m_map.Amount = better < 0 ? m_map.Amount : better;
        ReplaceMisnamedAmount();
    }

    // "Betrag in EUR" beside "Betrag in USD": the account's own money, whichever comes last.
    void PreferEuros()
    {
        constexpr QStringView euroWords = u"*EUR|*EUR)|*(\u20AC)|*\u20AC";
        constexpr QStringView otherWords = u"*USD*|*GBP*|*CHF*|*JPY*|*PLN*|*CZK*|*DKK*|*SEK*";
        const int euros = m_survey.First([&](int column) {
            return m_survey.IsNamed(column, amountWords) && m_survey.IsNamed(column, euroWords)
                && !m_survey.IsForeign(column) && !m_survey.IsBalance(column) && HasNumbers(column);
        });
        if (euros >= 0 && m_survey.IsFull(euros) && m_survey.IsNamed(m_map.Amount, otherWords)) {
            m_map.Amount = euros;
        }
    }

    // "Umsatz vom" is named like an amount and holds days.
    void ReplaceMisnamedAmount()
    {
        if (Facts(m_map.Amount).Dates == 0) {
            return;
        }
        const int misnamed = std::exchange(m_map.Amount, -1);
        GuessAmount();
        if (m_map.Amount < 0 && m_map.Debit < 0) {
            m_map.Amount = misnamed;
        }
        m_survey.Layout().Origin = eMapOrigin::Contents;
    }

    [[nodiscard]] bool IsOneSide(int column, QStringView words, QStringView others) const
    {
        return m_survey.IsNamed(column, words) && !m_survey.IsNamed(column, others) && !m_survey.IsBalance(column)
            && (Facts(column).Filled == 0 || Facts(column).IsMostlyMoney());
    }

    // What the names of the sides mean in every bank goes before the order of the vocabulary, when two columns are
    // filled in turns.
    void TakeSides()
    {
        const int debit = m_survey.First([&](int column) { return IsOneSide(column, debitWords, creditWords); });
        const int credit = m_survey.First([&](int column) { return IsOneSide(column, creditWords, debitWords); });
        if (Facts(debit).Filled + Facts(credit).Filled == 0) {
            TakeSigned();
            return;
        }
        const bool isFullAmount = m_map.Amount >= 0 && HasNumbers(m_map.Amount) && m_survey.IsFull(m_map.Amount)
            && !m_survey.IsForeign(m_map.Amount);
        if (isFullAmount) {
            return;
        }
        if (m_survey.IsForeign(m_map.Amount)) {
            m_map.Amount = -1;
        }
        m_map.Debit = debit;
        m_map.Credit = credit;
        if (debit < 0 || credit < 0) {
            CompleteSide();
        }
    }

    // "Credit/Debit Amount" holds one signed amount.
    void TakeSigned()
    {
        const int both = m_survey.First([&](int column) {
            return m_survey.IsNamed(column, debitWords) && m_survey.IsNamed(column, creditWords)
                && Facts(column).IsMoney() && !m_survey.IsBalance(column);
        });
        if (both < 0 || (m_map.Amount >= 0 && HasNumbers(m_map.Amount))) {
            return;
        }
        m_map.Amount = both;
        m_map.Debit = -1;
        m_map.Credit = -1;
    }

    // Only one of the two sides is known by its name.
    void CompleteSide()
    {
        int& known = m_map.Debit >= 0 ? m_map.Debit : m_map.Credit;
        int& other = m_map.Debit >= 0 ? m_map.Credit : m_map.Debit;
        const cColumnFacts& facts = Facts(known);
        const bool hasBothSigns = facts.Negative > 0 && facts.Negative < facts.Filled;
        if (m_map.Amount < 0 && hasBothSigns && m_survey.IsFull(known)) {
            m_survey.Layout().IsSideGuess = true;
            m_survey.Layout().Sign = m_map.Debit >= 0 ? eSignRule::Negated : eSignRule::AsWritten;
            m_map.Amount = std::exchange(known, -1);
            return;
        }
        other = m_survey.First([&](int column) { return column != known && IsPair(known, column); });
    }

    [[nodiscard]] bool IsAmountColumn(int column) const
    {
        return Facts(column).IsMoney() && Facts(column).Amounts > 0 && !Facts(column).IsAccount()
            && !m_survey.IsBalance(column) && !m_survey.IsEarlier(column) && !m_survey.IsForeign(column);
    }

    void GuessAmount()
    {
        const auto isFull = [&](int column) { return IsAmountColumn(column) && m_survey.IsFull(column); };
        const int found = m_survey.First([&](int column) { return isFull(column) && Facts(column).Signed > 0; });
        if (found < 0 && TakePair()) {
            return;
        }
        const int unsignedOne = m_survey.First(isFull);
        const int any = m_survey.First([&](int column) { return IsAmountColumn(column); });
        m_map.Amount = found >= 0 ? found : (unsignedOne >= 0 ? unsignedOne : any);
        if (m_map.Amount >= 0) {
            m_map.Debit = -1;
            m_map.Credit = -1;
        }
    }

    // Two columns of which every row fills one: what goes out and what comes in.
    bool TakePair()
    {
        for (int first = 0; first < m_survey.Columns(); ++first) {
            const int second = m_survey.First([&](int column) { return column > first && IsPair(first, column); });
            if (second < 0) {
                continue;
            }
            const bool isTurned = Facts(second).Negative > Facts(first).Negative;
            m_map.Debit = isTurned ? second : first;
            m_map.Credit = isTurned ? first : second;
            m_survey.Layout().IsSideGuess = Facts(first).Negative == Facts(second).Negative;
            return true;
        }
        return false;
    }

    [[nodiscard]] bool IsPair(int first, int second) const
    {
        if (!IsAmountColumn(first) || !IsAmountColumn(second)
            || Facts(first).Filled + Facts(second).Filled != m_survey.Rows()) {
            return false;
        }
        for (int place = 0; place < m_survey.Rows(); ++place) {
            if (!m_survey.Cell(place, first).isEmpty() && !m_survey.Cell(place, second).isEmpty()) {
                return false;
            }
        }
        return true;
    }

    void CompleteIndicator()
    {
        if (m_map.Amount < 0 || Facts(m_map.Amount).Signed > 0) {
            return;
        }
        const auto isIndicator = [&](int column) {
            return Facts(column).IsAll(Facts(column).Indicators) && Facts(column).Filled * 2 > m_survey.Rows();
        };
        // "Ausgabe" and "Einnahme" are neither a kind of transaction nor a purpose.
        for (int* const text : {&m_map.Text, &m_map.Purpose[0]}) {
            if (*text >= 0 && isIndicator(*text) && Facts(*text).Variety() > 1) {
                *text = -1;
            }
        }
        m_survey.SetFirst(m_map.Indicator, isIndicator);
    }

    void CompleteByName()
    {
        m_survey.SetFirst(m_map.Currency, [&](int column) {
            return m_survey.IsNamed(column, currencyWords) && !m_survey.IsForeign(column)
                && Facts(column).IsAll(Facts(column).Codes);
        });
        m_survey.SetFirst(m_map.Balance, [&](int column) {
            return m_survey.IsBalance(column) && Facts(column).Amounts + Facts(column).Wholes > 0;
        });
        if (!m_survey.HasNames()) {
            m_survey.SetFirst(m_map.Currency, [&](int column) {
                return Facts(column).IsAll(Facts(column).Codes) && m_survey.IsFull(column) && column >= 2;
            });
        }
    }

    cColumnSurvey& m_survey;
    cColumnMap& m_map;
};

} // namespace

void modTableMoney::Complete(cColumnSurvey& survey)
{
    cMoney(survey).Run();
}
