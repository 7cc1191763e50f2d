#include "import/table/modTableParties.h"

#include "import/read/modAccountNumber.h"
#include "import/table/cColumnSurvey.h"
#include "import/table/modTablePurpose.h"

#include <algorithm>
#include <utility>

namespace {

constexpr QStringView ownWords =
    u"*Auftragskonto*|*Auftraggeberkonto*|*Kontoinhaber*|Account No|Account No.|Eigenes Konto|Eigen*|*Own account*|"
    u"Eigene IBAN|Konto|Mein*|My *|IBAN Konto*|Konto-IBAN|IBAN/BBAN|Rekening|Rekeningnummer|*Wallet-IBAN|*Account IBAN|"
    u"Kontonummer|IBAN|Account|Konto-Nr*|Kontonr*|Compte|Conto";
constexpr QStringView ordererWords = u"*Auftragskonto*|*Auftraggeberkonto*|*Kontoinhaber*|*Eigen*|*Own *|*Wallet*";
constexpr QStringView otherWords =
    u"*Empf*|*Partner*|*Gegen*|*Counterpart*|*Tegen*|*Begünstigt*|*Beguenstigt*|*Zahlungsbeteiligte*|"
    u"*Zahlungspflichtige*|*Payee*|*Payer*|*Recipient*|*Beneficiary*|*Sender*|*Absender*|*Creditor*|*Debtor*|"
    u"*Destinat*|*Remote*|*Dritt*|*Merchant*|*Bénéficiaire*|*Contrepartie*|Auftraggeber/*|Auftraggeber IBAN|"
    u"IBAN Auftraggeber|*Gläubiger*|*Glaeubiger*|*Zahler*|*Bank Account";
constexpr QStringView accountWords =
    u"*IBAN*|*Gegenkonto*|*Kontonummer*|*Konto-Nr*|*Kontonr*|*Kto*|*Account*|*rekening*|*Compte*|*Conto*|*Konto";
constexpr QStringView referenceWords = u"*Gläubiger*ID*|*Glaeubiger*ID*|*Creditor*ID*|*Gläubigerkennung*|*Mandat*|"
                                       u"*Referenz*|*Reference*|CI *|*Identif*|ID|*-ID|* ID|*_ID";
constexpr QStringView bankCodeWords = u"*BIC*|*SWIFT*|*BLZ*|*Bankleitzahl*";
constexpr QStringView nameWords =
    u"Payee|Beneficiary|*Merchant*|*Beguenstigte*|*Zahlungsbeteiligte*|*Counterparty*|*Gegenpartei*|Name*|*Empfänger*|"
    u"*Auftraggeber*|*Händler*|*Haendler*|Partner*|Naam*|*Recipient*|*sender_or_recipient*|*Begünstigte*|"
    u"*Zahlungsempf*|*Tegenpartij*|*Other party*|*Bénéficiaire*|Commerçant|*Zahler*|*Geschäft*|Firma|Von/An|*Payer*";
constexpr QStringView holderWords =
    u"*Karteninhaber*|*Kontoinhaber*|*Card*holder*|*Account*holder*|*Titulaire*|*Holder*|*getätigt von*|Account Name|"
    u"Kontoname|*Bezeichnung Auftragskonto*|*Bankname*|Wallet*|*Inhaber*";
constexpr QStringView payerWords =
    u"*Auftraggeber*|*Absender*|*Zahlungspflichtige*|*Payer*|*Sender*|*Debtor*|Zahler*|Source name";
constexpr QStringView payeeWords =
    u"*Empfänger*|*Empfaenger*|*Begünstigte*|*Beguenstigte*|*Payee*|*Recipient*|*Creditor*|*Beneficiary*|Target name";
constexpr QStringView notNameWords =
    u"*IBAN*|*BIC*|*Konto*|*Account*|*E-Mail*|*ID|*Referenz*|*Adresse*|*Address*|*Land|"
    u"*Country|*City|*Kategorie*|*Categor*|*Status*";
constexpr QStringView purposeWords =
    u"Payment reference|*Notification*|Reference|Memo|*Description*|Purpose|Betreff|Text|*Verwendungszweck*|Details|"
    u"*Buchungsinfo*|*Zahlungszweck*|*Omschrijving*|*Mededeling*|*Mitteilung*|*Avisierungstext*|*Beschreibung*|Label|"
    u"*Libellé*|*Texte*|*Causale*|*Descrizione*|Hinweis|Notiz*|Vermerk|*Zweck*|Narrative|Particulars|*Testo*|"
    u"*Buchungstext*|*Remittance*|*Communication*|Note";
// Beside another purpose these tell more of it.
constexpr QStringView furtherWords = u"Payment reference|*Verwendungszweck*|*Zahlungszweck*|*Mededeling*|*Mitteilung*|"
                                     u"Betreff|Memo|*Remittance*|Purpose|*Notification*";
constexpr QStringView typeWords = u"*Type*|Typ|*Umsatzart*|*Transaktionsart*|*Buchungsart*|Art|Soort*|Transaktionstyp|"
                                  u"Umsatztyp|Buchungsschlüssel";
constexpr QStringView statusWords = u"*Status|Info|State*";

class cParties
{
public:
    explicit cParties(cColumnSurvey& survey) : m_survey(survey), m_map(survey.Map()) {}

    void Run()
    {
        CollectAccounts();
        SettleOwn();
        SettleOther();
        TakeStatus();
        SettleName();
        SettlePurpose();
    }

private:
    [[nodiscard]] const cColumnFacts& Facts(int column) const { return m_survey.Facts(column); }
    [[nodiscard]] bool IsOwnNamed(int column) const { return m_survey.IsNamed(column, ownWords); }
    [[nodiscard]] bool IsOtherNamed(int column) const { return m_survey.IsNamed(column, otherWords); }

    // What looks like an account number and tells something else, unless its name speaks of accounts too.
    [[nodiscard]] bool IsCode(int column) const
    {
        const bool isNamed = m_survey.IsNamed(column, bankCodeWords) || m_survey.IsNamed(column, referenceWords);
        return (isNamed && !(Facts(column).Ibans > 0 && m_survey.IsNamed(column, accountWords)))
            || Facts(column).IsAll(Facts(column).Creditors);
    }

    // Columns that hold account numbers and nothing else. Plain numbers are some only where the header says so.
    void CollectAccounts()
    {
        for (int column = 0; column < m_survey.Columns(); ++column) {
            const cColumnFacts& facts = Facts(column);
            const bool isNamed = !m_survey.HasNames() || m_survey.IsNamed(column, accountWords) || IsOwnNamed(column);
            const bool isMoney = column == m_map.Amount || column == m_map.Debit || column == m_map.Credit
                || column == m_map.Balance || column == m_map.Date;
            if (!isMoney && !IsCode(column) && facts.IsAccount() && (facts.Ibans > 0 || isNamed)) {
                m_accounts.append(column);
            }
        }
    }

    [[nodiscard]] bool IsSteady(int column) const { return m_survey.IsFull(column) && Facts(column).IsConstant(); }

    // The owner's number is the one that stays while the other side changes. Where nothing changes, or everything, the
    // names tell; where they do not either, nothing is taken, and the user is asked for the account.
    void SettleOwn()
    {
        int own = -1;
        for (const int column : std::as_const(m_accounts)) {
            const bool isBetter = own < 0 || (Facts(column).Ibans > 0 && Facts(own).Ibans == 0);
            own = isBetter && IsOwn(column) ? column : own;
        }
        m_map.OwnAccount = own;
        if (own < 0) {
            FindCommon();
        }
    }

    [[nodiscard]] bool IsOwn(int column) const
    {
        if (!m_survey.IsFull(column)) {
            return false;
        }
        if (!Facts(column).IsConstant()) {
            return IsOneOfOwn(column);
        }
        const bool hasChanging = std::any_of(m_accounts.begin(), m_accounts.end(),
                                             [&](int other) { return other != column && !IsSteady(other); });
        if (hasChanging && m_survey.Rows() > 1) {
            return !IsOtherNamed(column) || HasChangingNames();
        }
        if (IsOtherNamed(column) || IsBesideSteadyName(column)) {
            return false;
        }
        return IsOwnByPlace(column);
    }

    // In a file of several own accounts the other side has a column of its own. The few of the owner come again while
    // those of the many that are paid change.
    [[nodiscard]] bool IsOneOfOwn(int column) const
    {
        if (!IsOwnNamed(column) || IsOtherNamed(column)) {
            return false;
        }
        const qsizetype kinds = Facts(column).Variety();
        return m_survey.IsNamed(column, ordererWords)
            || std::any_of(m_accounts.begin(), m_accounts.end(), [&](int other) {
                   const bool isBeside = IsFirstColumn(column) && IsOtherNamed(other);
                   return isBeside || (kinds * 2 <= m_survey.Rows() && kinds < Facts(other).Variety());
               });
    }

    // Alone, or beside other numbers that do not change either.
    [[nodiscard]] bool IsOwnByPlace(int column) const
    {
        const bool isFirst = m_map.Date < 0 || column < m_map.Date;
        if (m_survey.Rows() == 1) {
            return (IsOwnNamed(column) && isFirst) || IsSurelyOwn(column);
        }
        return IsOwnNamed(column) || HasChangingNames() || (isFirst && IsOnlyPlain(column)) || !m_survey.HasNames();
    }

    [[nodiscard]] bool IsSurelyOwn(int column) const
    {
        return m_survey.IsNamed(
            column,
            u"*Auftragskonto*|*Auftraggeberkonto*|*Kontoinhaber*|*Eigen*|*Own *|*Wallet*|Konto|Account|Rekening|"
            u"Konto-IBAN|IBAN Konto*|IBAN/BBAN");
    }

    [[nodiscard]] bool IsOnlyPlain(int column) const
    {
        return std::none_of(m_accounts.begin(), m_accounts.end(),
                            [&](int other) { return other != column && !IsOtherNamed(other); });
    }

    [[nodiscard]] bool HasChangingNames() const
    {
        return m_survey.First([&](int column) { return IsNameColumn(column) && Facts(column).Variety() > 1; }) >= 0;
    }

    // The same person in every row, with this account.
    [[nodiscard]] bool IsBesideSteadyName(int column) const
    {
        return !IsSurelyOwn(column) && m_survey.Rows() > 1
            && m_survey.First([&](int name) { return IsNameColumn(name) && IsSteady(name); }) >= 0
            && !HasChangingNames() && !IsFirstColumn(column);
    }

    [[nodiscard]] bool IsFirstColumn(int column) const { return column == 0 || column < m_map.Date; }

    // Where sender and recipient are listed, the owner's number is on one of the two sides of every row.
    void FindCommon()
    {
        if (m_accounts.size() != 2 || m_survey.Rows() < 3) {
            return;
        }
        for (const int column : std::as_const(m_accounts)) {
            const QString number = modAccountNumber::Compact(m_survey.Cell(0, column).toString());
            bool isCommon = !number.isEmpty();
            for (int place = 0; place < m_survey.Rows() && isCommon; ++place) {
                isCommon = std::any_of(m_accounts.begin(), m_accounts.end(), [&](int side) {
                    return modAccountNumber::Compact(m_survey.Cell(place, side).toString()) == number;
                });
            }
            if (isCommon && m_survey.Layout().OwnNumber.isEmpty()) {
                m_survey.Layout().OwnNumber = number;
                m_map.Account = m_accounts.first();
                m_map.Account2 = m_accounts.last();
            }
        }
    }

    [[nodiscard]] bool IsOwnNumber(int column) const
    {
        const bool isCopy = IsSteady(column) && column != m_map.Account
            && modAccountNumber::IsSame(Facts(m_map.OwnAccount).First, {}, Facts(column).First);
        return column == m_map.OwnAccount || (m_map.OwnAccount >= 0 && isCopy) || IsSurelyOwn(column);
    }

    [[nodiscard]] bool IsOthers(int column) const { return Facts(column).Filled > 0 && !IsOwnNumber(column); }

    void SettleOther()
    {
        if (m_accounts.contains(m_map.Name2) || IsCode(m_map.Name2)) {
            m_map.Name2 = -1;
        }
        if (m_accounts.contains(m_map.Name) || IsCode(m_map.Name)) {
            m_map.Name = std::exchange(m_map.Name2, -1);
        }
        if (!m_survey.Layout().OwnNumber.isEmpty()) {
            return;
        }
        if (!IsOthers(m_map.Account)) {
            m_map.Account = IsOthers(m_map.Account2) ? std::exchange(m_map.Account2, -1) : -1;
        }
        m_map.BankCode = Facts(m_map.BankCode).Filled == 0 ? -1 : m_map.BankCode;
        TakeAccount([&](int column) { return IsOtherNamed(column) && Facts(column).Ibans > 0; });
        TakeAccount([&](int column) { return IsOtherNamed(column) && m_accounts.contains(column); });
        TakeAccount([&](int column) {
            return Facts(column).Ibans > 0 && (!m_survey.HasNames() || m_survey.IsNamed(column, accountWords));
        });
        TakeAccount([&](int column) {
            // Always the same number and no name beside it: as likely the owner's.
            const bool isNameless = m_survey.First([&](int name) { return IsNameColumn(name); }) < 0;
            return m_accounts.contains(column) && !(IsSteady(column) && isNameless && m_survey.Rows() > 1);
        });
        const bool isOwnBank = IsSteady(m_map.BankCode) && m_survey.Rows() > 1 && Facts(m_map.Account).Variety() > 1;
        if (isOwnBank && m_map.OwnAccount >= 0) {
            const bool hasOther = m_survey.IsNamed(m_map.BankCode2, bankCodeWords);
            m_map.OwnBankCode = std::exchange(m_map.BankCode, hasOther ? std::exchange(m_map.BankCode2, -1) : -1);
        }
        m_survey.SetFirst(m_map.BankCode, [&](int column) {
            return m_survey.IsNamed(column, bankCodeWords)
                && !m_survey.IsNamed(column, u"*Auftragskonto*|*Kontoinhaber*");
        });
    }

    void TakeAccount(auto isFit)
    {
        m_survey.SetFirst(m_map.Account,
                          [&](int column) { return IsOthers(column) && !IsCode(column) && isFit(column); });
    }

    void TakeStatus()
    {
        m_survey.SetFirst(m_map.Status, [&](int column) { return m_survey.IsNamed(column, statusWords); });
    }

    [[nodiscard]] bool HasText(int column) const
    {
        const cColumnFacts& facts = Facts(column);
        return facts.Letters > 0 && facts.Dates * 2 < facts.Filled && !facts.IsAccount() && !facts.IsMoney();
    }

    [[nodiscard]] bool IsHolder(int column) const { return m_survey.IsNamed(column, holderWords); }

    [[nodiscard]] bool IsNameColumn(int column) const
    {
        const bool isExcluded =
            m_survey.IsNamed(column, notNameWords) && !m_survey.IsNamed(column, u"Name *|* Name|*-Name");
        return m_survey.IsNamed(column, nameWords) && !isExcluded && !IsHolder(column) && HasText(column);
    }

    void SettleName()
    {
        while (m_map.Name >= 0 && (IsHolder(m_map.Name) || IsOwnerInEveryRow(m_map.Name) || !HasText(m_map.Name))) {
            m_map.Name = std::exchange(m_map.Name2, -1);
        }
        TakeDirections();
        m_survey.SetFirst(m_map.Name, [&](int column) { return IsNameColumn(column) && Facts(column).Variety() > 1; });
        m_survey.SetFirst(m_map.Name, [&](int column) { return IsNameColumn(column) && !IsOwnerInEveryRow(column); });
    }

    // One person all the time, while the accounts of the other side change or another column tells the names.
    [[nodiscard]] bool IsOwnerInEveryRow(int column) const
    {
        constexpr int enough = 3;
        if (!IsSteady(column) || m_survey.Rows() < enough) {
            return false;
        }
        const bool hasOther = m_survey.First([&](int other) {
            return other != column && IsNameColumn(other) && Facts(other).Variety() > 1;
        }) >= 0;
        return hasOther || Facts(m_map.Account).Variety() > 1;
    }

    // One column for who pays and one for who is paid: the owner is in the one or the other.
    void TakeDirections()
    {
        const auto isOnly = [&](int column, QStringView words, QStringView others) {
            return m_survey.IsNamed(column, words) && !m_survey.IsNamed(column, others)
                && !m_survey.IsNamed(column, notNameWords) && HasText(column);
        };
        const int payer = m_survey.First([&](int column) { return isOnly(column, payerWords, payeeWords); });
        const int payee = m_survey.First([&](int column) { return isOnly(column, payeeWords, payerWords); });
        const bool isFree = payer >= 0 && payee >= 0 && (m_map.Name < 0 || m_map.Name == payer || m_map.Name == payee);
        if (isFree) {
            m_map.Payer = payer;
            m_map.Name = payee;
            m_map.Name2 = -1;
        }
    }

    void SettlePurpose()
    {
        if (m_map.Purpose[0] >= 0 && (m_survey.IsCategory(m_map.Purpose[0]) || !HasText(m_map.Purpose[0]))) {
            const int dropped = std::exchange(m_map.Purpose[0], -1);
            m_map.Text = m_map.Text < 0 && m_survey.IsCategory(dropped) && !HasType() ? dropped : m_map.Text;
        }
        m_survey.SetFirst(m_map.Text,
                          [&](int column) { return m_survey.IsNamed(column, typeWords) && HasText(column); });
        m_survey.SetFirst(m_map.Purpose[0],
                          [&](int column) { return m_survey.IsNamed(column, purposeWords) && HasText(column); });
        if (m_map.Purpose[0] < 0) {
            m_map.Purpose[0] = MostVaried();
        } else if (IsPoor(m_map.Purpose[0])) {
            ReplacePoorPurpose();
        }
        TakeFurther();
    }

    [[nodiscard]] bool HasType() const
    {
        return m_survey.First([&](int column) { return m_survey.IsNamed(column, typeWords) && HasText(column); }) >= 0;
    }

    // A kind of transaction that comes again and again, and not what each of them was for.
    [[nodiscard]] bool IsPoor(int column) const
    {
        constexpr int enough = 4;
        return m_survey.Rows() >= enough && Facts(column).Variety() * 2 <= m_survey.Rows();
    }

    void ReplacePoorPurpose()
    {
        const int better = m_survey.First([&](int column) {
            return !m_survey.IsTaken(column) && m_survey.IsNamed(column, purposeWords) && HasText(column)
                && Facts(column).Variety() > Facts(m_map.Purpose[0]).Variety();
        });
        if (better >= 0) {
            const int kind = std::exchange(m_map.Purpose[0], better);
            m_map.Text = m_map.Text < 0 ? kind : m_map.Text;
        }
    }

    // The free column with the most to read, of which at most as much is said again and again as in the others.
    [[nodiscard]] int MostVaried() const
    {
        const auto weight = [&](int column) { return Facts(column).Letters * Facts(column).Variety(); };
        int best = -1;
        for (int column = 0; column < m_survey.Columns(); ++column) {
            const bool isFit = !m_survey.IsTaken(column) && Facts(column).Letters > 0 && !m_survey.IsCategory(column)
                && !IsHolder(column) && !m_accounts.contains(column);
            if (isFit && weight(column) > (best < 0 ? 0 : weight(best))) {
                best = column;
            }
        }
        return best;
    }

    void TakeFurther()
    {
        const QList<int> parts = modTablePurpose::Parts(m_map);
        for (std::size_t i = 0; i < m_map.Purpose.size() && parts.size() > 1; ++i) {
            m_map.Purpose.at(i) = parts.value(static_cast<qsizetype>(i), -1);
        }
        for (std::size_t i = 1; i < m_map.Purpose.size(); ++i) {
            m_survey.SetFirst(m_map.Purpose.at(i), [&](int column) {
                return m_survey.IsNamed(column, furtherWords) && HasText(column) && !m_survey.IsCategory(column);
            });
        }
    }

    cColumnSurvey& m_survey;
    cColumnMap& m_map;
    QList<int> m_accounts;
};

} // namespace

void modTableParties::Complete(cColumnSurvey& survey)
{
    cParties(survey).Run();
}
