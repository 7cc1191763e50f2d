#include "import/xml/modCamtDocument.h"

#include "base/cText.h"
#include "base/modAmount.h"
#include "import/read/cRepeatedText.h"
#include "import/read/modAccountNumber.h"
#include "import/read/modStatementText.h"
#include "import/xml/cCamtEntry.h"
#include "import/xml/modXmlNode.h"
#include "import/xml/modXmlPieces.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <pugixml.hpp>

using namespace Qt::Literals::StringLiterals;
using modXmlNode::IsText;
using modXmlNode::Text;

namespace {

constexpr qsizetype headSize = 4000; // characters in which the message must name itself

// The messages, and the statements in them: account reports, statements, advices.
struct cMessage
{
    const char* Message;
    const char* Statement;
};

constexpr std::array messages = {
    cMessage{"BkToCstmrAcctRpt", "Rpt"},
    cMessage{"BkToCstmrStmt", "Stmt"},
    cMessage{"BkToCstmrDbtCdtNtfctn", "Ntfctn"},
};

// The lines of places that come in ascending order.
class cLines
{
public:
    explicit cLines(QByteArrayView text) : m_text(text) {}

    int LineOf(QByteArrayView part)
    {
        const qsizetype at = part.data() - m_text.data();
        if (at > m_at) {
            m_line += static_cast<int>(std::count(m_text.begin() + m_at, m_text.begin() + at, '\n'));
            m_at = at;
        }
        return m_line;
    }

private:
    QByteArrayView m_text;
    qsizetype m_at = 0;
    int m_line = 1;
};

class cReader
{
public:
    cReader(const QByteArray& xml, const cReadOptions& options)
        : m_pieces(modXmlPieces::Cut(xml, "Ntry")),
          m_lines(xml),
          m_options(options)
    {
        m_read.Entries.reserve(qsizetype(m_pieces.Pieces.size()));
    }

    cStatementRead Run()
    {
        pugi::xml_document skeleton;
        if (qsizetype(m_pieces.Pieces.size()) > cStatementRead::mostEntries) {
            return cStatementRead::TooMany();
        }
        const bool isXml = modXmlNode::Load(skeleton, m_pieces.Skeleton);
        if (isXml && !TakeMessages(skeleton)) {
            return cStatementRead::Refused(
                cText::Tr("Die XML-Datei ist kein Kontoauszug (camt.052, camt.053, camt.054)."));
        }
        if (!isXml || m_isBroken) {
            return cStatementRead::Refused(
                cText::Tr("Die XML-Datei ist beschädigt oder unvollständig. Es wurde nichts übernommen."));
        }
        return m_isTooLarge ? cStatementRead::TooMany() : std::move(m_read);
    }

private:
    // False when there is none.
    bool TakeMessages(const pugi::xml_document& document)
    {
        bool isKnown = false;
        for (const cMessage& known : messages) {
            for (const pugi::xml_node& message : document.document_element().children(known.Message)) {
                isKnown = true;
                for (const pugi::xml_node& statement : message.children(known.Statement)) {
                    TakeStatement(statement);
                }
            }
        }
        return isKnown;
    }

    void TakeStatement(const pugi::xml_node& statement)
    {
        const pugi::xml_node id = statement.child("Acct").child("Id");
        const QString iban = Text(id.child("IBAN"));
        const QString number = modAccountNumber::Compact(iban.isEmpty() ? Text(id.child("Othr").child("Id")) : iban);
        m_account = number.isEmpty() ? m_options.Account : number;
        m_read.NeedsAccount = m_read.NeedsAccount || m_account.isEmpty();
        const qsizetype firstBalance = m_read.Balances.size();
        m_openings = 0;
        for (const eBalance kind : {eBalance::Opening, eBalance::Closing}) {
            for (const pugi::xml_node& balance : statement.children("Bal")) {
                TakeBalance(balance, kind);
            }
        }
        const qsizetype firstEntry = m_read.Entries.size();
        for (const pugi::xml_node& row : statement.children("x")) {
            m_pieces.TakeAll(row.attribute("piece").as_uint(), row.attribute("count").as_uint(1),
                             [this](QByteArrayView piece) { TakeEntry(piece); });
        }
        DateOpening(firstBalance, firstEntry);
    }

    enum class eBalance { Opening, Closing };

    // A day cannot end with what its statement begins with: then the end of the day before is meant.
    void DateOpening(qsizetype firstBalance, qsizetype firstEntry)
    {
        QSet<QDate> days;
        for (qsizetype i = firstEntry; i < m_read.Entries.size(); ++i) {
            days.insert(m_read.Entries.at(i).ImportDate);
        }
        for (qsizetype i = firstBalance; i < firstBalance + m_openings; ++i) {
            QDate& date = m_read.Balances[i].Date;
            date = days.contains(date) ? date.addDays(-1) : date;
        }
    }

    // Only what the day begins and closes with; interim and available balances come beside it.
    [[nodiscard]] static bool IsOfKind(const pugi::xml_node& balance, eBalance kind)
    {
        const pugi::xml_node code = balance.child("Tp").child("CdOrPrtry").child("Cd");
        return kind == eBalance::Closing ? IsText(code, "CLBD") : IsText(code, "OPBD") || IsText(code, "PRCD");
    }

    void TakeBalance(const pugi::xml_node& balance, eBalance kind)
    {
        const std::optional<qint64> cents = modAmount::CentsFromText(Text(balance.child("Amt")));
        if (!cents || !IsOfKind(balance, kind)) {
            return;
        }
        const bool isDebit = IsText(balance.child("CdtDbtInd"), "DBIT");
        const pugi::xml_node date = balance.child("Dt");
        const QDate day = modXmlNode::Day(date.child("Dt"));
        const qint64 value = isDebit ? -*cents : *cents;
        if (kind == eBalance::Closing) {
            m_read.ClosingBalance = value;
        } else {
            ++m_openings;
        }
        m_read.Balances.append({m_account, value, day.isValid() ? day : modXmlNode::Day(date.child("DtTm"))});
    }

    void TakeEntry(QByteArrayView piece)
    {
        pugi::xml_document document;
        m_isTooLarge = m_isTooLarge || m_read.Entries.size() + m_read.Skipped.size() > cStatementRead::mostEntries;
        if (m_isTooLarge) {
            return;
        }
        if (!modXmlNode::Load(document, piece)) {
            m_isBroken = true;
            return;
        }
        const cCamtEntry entry(m_account, document.first_child());
        cImportEntryList records = entry.Records();
        if (!entry.IsBooked()) {
            Skip(records, piece, cText::Tr("Der Umsatz ist nur vorgemerkt."), eSkipped::Pending);
            return;
        }
        // Nothing is staged on a day or with an amount that is made up.
        if (!records.first().ImportDate.isValid()) {
            Skip(records, piece, cText::Tr("Der Umsatz hat kein lesbares Buchungsdatum."), eSkipped::Unreadable);
            return;
        }
        if (!entry.Cents()) {
            Skip(records, piece, cText::Tr("Der Umsatz hat keinen lesbaren Betrag."), eSkipped::Unreadable);
            return;
        }
        for (cImportEntry& record : records) {
            record.ImportType = m_type.Of(record.ImportType);
            record.ImportCurrency = m_currency.Of(record.ImportCurrency);
            record.ImportBeneficiaryBLZ = m_bankCode.Of(record.ImportBeneficiaryBLZ);
        }
        if (entry.IsClosedBatch()) {
            m_read.Problems.append({m_lines.LineOf(piece),
                                    cText::Tr("Die Sammelbuchung wurde nicht aufgeteilt, weil die Einzelbeträge fehlen "
                                              "oder nicht ihre Summe ergeben.")});
        }
        m_read.Entries += std::move(records);
    }

    void Skip(const cImportEntryList& records, QByteArrayView piece, const QString& reason, eSkipped kind)
    {
        const int line = m_lines.LineOf(piece);
        for (const cImportEntry& record : records) {
            m_read.Skipped.append({{line, reason}, kind, record});
        }
    }

    modXmlPieces::cPieces m_pieces;
    cLines m_lines;
    const cReadOptions& m_options;
    cStatementRead m_read;
    QString m_account;        // of the statement at hand
    qsizetype m_openings = 0; // opening balances of the statement at hand
    cRepeatedText m_type;
    cRepeatedText m_currency;
    cRepeatedText m_bankCode;
    bool m_isBroken = false;
    bool m_isTooLarge = false; // batches can hold more bookings than there are entries
};

} // namespace

bool modCamtDocument::IsCamt(const QString& text)
{
    const QStringView head = QStringView(text).left(headSize);
    return head.trimmed().startsWith(u'<')
        && std::any_of(messages.begin(), messages.end(),
                       [&](const cMessage& message) { return head.contains(QLatin1StringView(message.Message)); });
}

cStatementRead modCamtDocument::Read(const QByteArray& xml, const cReadOptions& options)
{
    if (!xml.isValidUtf8()) {
        return Read(modStatementText::Decode(xml).toUtf8(), options);
    }
    return cReader(xml, options).Run();
}
