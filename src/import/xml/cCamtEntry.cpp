#include "import/xml/cCamtEntry.h"

#include "base/modAmount.h"
#include "import/read/modAccountNumber.h"
#include "import/read/modStatementText.h"
#include "import/xml/modCamtText.h"
#include "import/xml/modXmlNode.h"

#include <array>
#include <cstring>
#include <numeric>

using namespace Qt::Literals::StringLiterals;
using modXmlNode::IsText;
using modXmlNode::Text;

namespace {

constexpr std::size_t mostDetails = 100'000; // a booking with more is not split

// The elements of one side of a payment.
struct cSide
{
    const char* Party;
    const char* Ultimate;
    const char* Account;
    const char* Agent;
};

constexpr cSide creditor = {"Cdtr", "UltmtCdtr", "CdtrAcct", "CdtrAgt"};
constexpr cSide debtor = {"Dbtr", "UltmtDbtr", "DbtrAcct", "DbtrAgt"};

struct cParty
{
    QString Name;
    QString Account;
    QString BankCode;
};

QString FirstOf(const QString& first, const QString& second)
{
    return first.isEmpty() ? second : first;
}

// A code that newer versions wrap into a choice.
QString CodeOf(const pugi::xml_node& node)
{
    return FirstOf(FirstOf(Text(node), Text(node.child("Cd"))), Text(node.child("Prtry")));
}

QDate DateOf(const pugi::xml_node& date)
{
    const QDate day = modXmlNode::Day(date.child("Dt"));
    return day.isValid() ? day : modXmlNode::Day(date.child("DtTm"));
}

// A person or company; newer versions wrap it, and a bank can stand in its place.
QString NameOf(const pugi::xml_node& party)
{
    const QString name = FirstOf(Text(party.child("Nm")), Text(party.child("Pty").child("Nm")));
    return FirstOf(name, Text(party.child("Agt").child("FinInstnId").child("Nm")));
}

QString NumberOf(const pugi::xml_node& account)
{
    const pugi::xml_node id = account.child("Id");
    return modAccountNumber::Compact(FirstOf(Text(id.child("IBAN")), Text(id.child("Othr").child("Id"))));
}

QString BankCodeOf(const pugi::xml_node& agent)
{
    const pugi::xml_node bank = agent.child("FinInstnId");
    const QString bic = FirstOf(Text(bank.child("BICFI")), Text(bank.child("BIC")));
    return FirstOf(bic, Text(bank.child("ClrSysMmbId").child("MmbId")));
}

cParty PartyOf(const pugi::xml_node& detail, const cSide& side)
{
    const pugi::xml_node parties = detail.child("RltdPties");
    const QString name = FirstOf(NameOf(parties.child(side.Party)), NameOf(parties.child(side.Ultimate)));
    return {name, NumberOf(parties.child(side.Account)), BankCodeOf(detail.child("RltdAgts").child(side.Agent))};
}

bool IsOutgoing(const pugi::xml_node& node)
{
    return IsText(node.child("CdtDbtInd"), "DBIT");
}

bool IsReversal(const pugi::xml_node& node)
{
    const pugi::xml_node mark = node.child("RvslInd");
    return IsText(mark, "true") || IsText(mark, "1");
}

std::optional<qint64> SignedCents(const pugi::xml_node& amount, bool isOutgoing)
{
    const std::optional<qint64> cents = modAmount::CentsFromText(Text(amount));
    return cents && isOutgoing ? std::optional(-*cents) : cents;
}

// The amount of a detail in the currency of the booking; an empty node when it has none.
pugi::xml_node AmountOf(const pugi::xml_node& detail, const char* currency)
{
    const std::array<pugi::xml_node, 2> candidates = {detail.child("Amt"),
                                                      detail.child("AmtDtls").child("TxAmt").child("Amt")};
    for (const pugi::xml_node& amount : candidates) {
        if (amount && std::strcmp(amount.attribute("Ccy").value(), currency) == 0) {
            return amount;
        }
    }
    return {};
}

std::vector<pugi::xml_node> DetailsOf(const pugi::xml_node& entry)
{
    std::vector<pugi::xml_node> details;
    for (const pugi::xml_node& list : entry.children("NtryDtls")) {
        for (const pugi::xml_node& detail : list.children("TxDtls")) {
            details.push_back(detail);
        }
    }
    return details;
}

bool IsDirectDebit(const pugi::xml_node& entry, const pugi::xml_node& detail)
{
    const QString own = Text(detail.child("BkTxCd").child("Domn").child("Fmly").child("Cd"));
    return !Text(detail.child("Refs").child("MndtId")).isEmpty()
        || FirstOf(own, Text(entry.child("BkTxCd").child("Domn").child("Fmly").child("Cd"))).endsWith(u"DDT");
}

QString ReferenceOf(const pugi::xml_node& detail, const char* name)
{
    const QString reference = Text(detail.child("Refs").child(name));
    return reference == u"NOTPROVIDED" ? QString() : reference;
}

QString CreditorIdOf(const pugi::xml_node& detail)
{
    const pugi::xml_node party = detail.child("RltdPties").child("Cdtr");
    const QString id = Text(party.child("Id").child("PrvtId").child("Othr").child("Id"));
    return FirstOf(id, Text(party.child("Pty").child("Id").child("PrvtId").child("Othr").child("Id")));
}

void AppendText(QStringList& lines, const pugi::xml_node& node)
{
    const QString text = Text(node);
    if (!text.isEmpty()) {
        lines.append(text);
    }
}

// Free lines; where there are none, the reference and the remarks of the structured form, or what the bank adds.
QStringList RemittanceOf(const pugi::xml_node& detail)
{
    QStringList lines;
    QStringList structured;
    const pugi::xml_node remittance = detail.child("RmtInf");
    for (const pugi::xml_node& node : remittance.children("Ustrd")) {
        AppendText(lines, node);
    }
    for (const pugi::xml_node& node : remittance.children("Strd")) {
        AppendText(structured, node.child("CdtrRefInf").child("Ref"));
        AppendText(structured, node.child("AddtlRmtInf"));
    }
    if (lines.isEmpty() && structured.isEmpty()) {
        AppendText(lines, detail.child("AddtlTxInf")); // card payments often have their text there
    }
    return lines.isEmpty() ? structured : lines;
}

// The party that ordered the payment lets another one step in front: the payer of a transfer, the payee of a debit.
QString PurposeOf(const pugi::xml_node& entry, const pugi::xml_node& detail)
{
    const bool isDebit = IsDirectDebit(entry, detail);
    const cSide& originator = isDebit ? creditor : debtor;
    modCamtText::cPurpose purpose;
    purpose.EndToEnd = ReferenceOf(detail, "EndToEndId");
    purpose.Mandate = ReferenceOf(detail, "MndtId");
    purpose.Creditor = isDebit ? CreditorIdOf(detail) : QString();
    purpose.Lines = RemittanceOf(detail);
    purpose.UltimateOriginator = NameOf(detail.child("RltdPties").child(originator.Ultimate));
    return modCamtText::Purpose(purpose);
}

// The texts of the first transactions: thousands of them are no purpose any more.
QString PurposeOfBatch(const std::vector<pugi::xml_node>& details)
{
    constexpr qsizetype enough = 270; // characters; the room that MT940 has
    modCamtText::cPurpose purpose;
    qsizetype size = 0;
    for (auto detail = details.begin(); detail != details.end() && size < enough; ++detail) {
        const QStringList lines = RemittanceOf(*detail);
        size = std::accumulate(lines.begin(), lines.end(), size,
                               [](qsizetype sum, const QString& line) { return sum + line.size(); });
        purpose.Lines += lines;
    }
    return modCamtText::Purpose(purpose);
}

} // namespace

cCamtEntry::cCamtEntry(const QString& account, const pugi::xml_node& entry)
    : m_account(account),
      m_entry(entry),
      m_details(DetailsOf(entry)),
      m_cents(SignedCents(entry.child("Amt"), IsOutgoing(entry)))
{
    SplitBatch();
}

bool cCamtEntry::IsBooked() const
{
    const QString status = CodeOf(m_entry.child("Sts"));
    return status.isEmpty() || status == u"BOOK";
}

// Details without amounts, in another currency, or with another sum leave the booking whole.
void cCamtEntry::SplitBatch()
{
    if (m_details.size() < 2 || m_details.size() > mostDetails || !m_cents) {
        return;
    }
    const char* const currency = m_entry.child("Amt").attribute("Ccy").value();
    for (const pugi::xml_node& detail : m_details) {
        const bool hasMark = !detail.child("CdtDbtInd").empty();
        const std::optional<qint64> cents =
            SignedCents(AmountOf(detail, currency), IsOutgoing(hasMark ? detail : m_entry));
        if (!cents) {
            m_parts.clear();
            return;
        }
        m_parts.push_back(*cents);
    }
    if (std::accumulate(m_parts.begin(), m_parts.end(), qint64{0}) != *m_cents) {
        m_parts.clear();
    }
}

cImportEntryList cCamtEntry::Records() const
{
    if (IsClosedBatch()) {
        cImportEntry record = Record({}, m_cents.value_or(0));
        record.ImportPurpose = modStatementText::DecodeField(PurposeOfBatch(m_details));
        return {record};
    }
    if (m_parts.empty()) {
        const pugi::xml_node detail = m_details.empty() ? pugi::xml_node() : m_details.front();
        return {Record(detail, m_cents.value_or(0))};
    }
    cImportEntryList records;
    for (std::size_t i = 0; i < m_parts.size(); ++i) {
        records.append(Record(m_details[i], m_parts[i]));
    }
    return records;
}

cImportEntry cCamtEntry::Record(const pugi::xml_node& detail, qint64 cents) const
{
    // A reversal keeps the sides of the payment that it takes back.
    const bool isToCreditor = (cents < 0) != IsReversal(m_entry);
    cParty party = PartyOf(detail, isToCreditor ? creditor : debtor);
    if (!party.Account.isEmpty() && party.Account == m_account) {
        const cParty other = PartyOf(detail, isToCreditor ? debtor : creditor);
        party = other.Account.isEmpty() ? party : other; // a bank that turns the sides of a reversal round
    }
    const QDate booked = DateOf(m_entry.child("BookgDt"));
    cImportEntry record;
    record.ImportAccount = m_account;
    record.ImportDate = booked.isValid() ? booked : DateOf(m_entry.child("ValDt"));
    record.ImportType = modStatementText::DecodeField(Text(m_entry.child("AddtlNtryInf")));
    record.ImportPurpose = modStatementText::DecodeField(PurposeOf(m_entry, detail));
    record.ImportBeneficiary = modStatementText::DecodeField(party.Name);
    record.ImportBeneficiaryAccount = party.Account;
    record.ImportBeneficiaryBLZ = party.BankCode;
    record.ImportValue = cents;
    record.ImportCurrency = QString::fromUtf8(m_entry.child("Amt").attribute("Ccy").value());
    return record;
}
