#include "import/xml/modOfx.h"

#include "base/cText.h"
#include "base/modAmount.h"
#include "base/modChar.h"
#include "base/modCount.h"
#include "import/read/modPayee.h"
#include "import/read/modStatementText.h"
#include "import/xml/modOfxRepair.h"
#include "import/xml/modOfxText.h"
#include "import/xml/modXmlNode.h"
#include "import/xml/modXmlPieces.h"

#include <QHash>

#include <array>
#include <numeric>
#include <optional>
#include <pugixml.hpp>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

// Where the statements of a kind of account stand.
struct cKind
{
    const char* Messages;
    const char* Response;
    const char* Statement;
    const char* Account;
};

constexpr std::array kinds = {
    cKind{"BANKMSGSRSV1", "STMTTRNRS", "STMTRS", "BANKACCTFROM"},
    cKind{"CREDITCARDMSGSRSV1", "CCSTMTTRNRS", "CCSTMTRS", "CCACCTFROM"},
};

QString TextOf(const pugi::xml_node& node, const char* child)
{
    return modXmlNode::Text(node.child(child));
}

// Year, month and day are the first eight characters; time and zone behind them do not count. Invalid for no day.
QDate DateOf(QStringView text)
{
    const auto number = [&](qsizetype from, qsizetype count) {
        const QStringView digits = text.mid(from, count);
        const bool isNumber = digits.size() == count && modChar::AreDigits(digits);
        return isNumber ? std::accumulate(digits.begin(), digits.end(), 0,
                                          [](int sum, QChar c) { return sum * 10 + (c.unicode() - u'0'); })
                        : 0;
    };
    return {number(0, 4), number(4, 2), number(6, 2)};
}

// "SEPA-Lastschrift" is what the bank calls a payment, and nobody's name.
bool NamesSomebody(const QString& name)
{
    cImportEntry row;
    row.ImportPurpose = name;
    return !modPayee::Of(row).Key.isEmpty();
}

// Many banks put the purpose into NAME once more, as far as there is room for it.
bool IsBeginning(const QString& name, const QString& purpose)
{
    return purpose.startsWith(QStringView(name).left(1), Qt::CaseInsensitive)
        && purpose.simplified().startsWith(name.simplified(), Qt::CaseInsensitive);
}

class cReader
{
public:
    cReader(modXmlPieces::cPieces pieces, const cReadOptions& options) : m_pieces(std::move(pieces)), m_options(options)
    {
        m_read.Entries.reserve(qsizetype(m_pieces.Pieces.size()));
        m_read.WasNameless = options.OfxPayee == eOfxPayee::Take;
    }

    cStatementRead Run()
    {
        pugi::xml_document skeleton;
        if (qsizetype(m_pieces.Pieces.size()) > cStatementRead::mostEntries) {
            return cStatementRead::TooMany();
        }
        if (!modXmlNode::Load(skeleton, m_pieces.Skeleton)) {
            return Broken();
        }
        for (const cKind& kind : kinds) {
            for (const pugi::xml_node& document : skeleton.children("OFX")) {
                for (const pugi::xml_node& messages : document.children(kind.Messages)) {
                    TakeMessages(messages, kind);
                }
            }
        }
        if (!m_hasStatements) {
            return Refused(cText::Tr("Die Datei enthält keinen Auszug eines Bankkontos oder einer Kreditkarte."));
        }
        TellStrays();
        return m_isBroken ? Broken() : std::move(m_read);
    }

private:
    // With the number of transactions that the file has all the same.
    [[nodiscard]] cStatementRead Refused(const QString& reason) const
    {
        cStatementRead refused;
        const int count = static_cast<int>(m_pieces.Pieces.size());
        refused.Refusal = count == 0 ? reason : cText::Tr("{0} Betroffen: {1}.", {reason, modCount::Rows(count)});
        return refused;
    }

    [[nodiscard]] cStatementRead Broken() const
    {
        return Refused(cText::Tr("Die OFX-Datei ist beschädigt oder unvollständig. Es wurde nichts übernommen."));
    }

    void TakeMessages(const pugi::xml_node& messages, const cKind& kind)
    {
        for (const pugi::xml_node& response : messages.children(kind.Response)) {
            for (const pugi::xml_node& statement : response.children(kind.Statement)) {
                TakeStatement(statement, kind);
            }
        }
    }

    void TakeStatement(const pugi::xml_node& statement, const cKind& kind)
    {
        m_hasStatements = true;
        const QString named = TextOf(statement.child(kind.Account), "ACCTID");
        m_account = named.isEmpty() ? m_options.Account : named;
        if (const QString bank = TextOf(statement.child(kind.Account), "BANKID"); !bank.isEmpty() && !named.isEmpty()) {
            m_read.BankCodes.insert(m_account, bank);
        }
        m_currency = TextOf(statement, "CURDEF");
        m_read.NeedsAccount = m_read.NeedsAccount || m_account.isEmpty();
        for (const pugi::xml_node& child : statement.children()) {
            TakeTransactions(child);
        }
        TakeBalance(statement.child("LEDGERBAL"));
    }

    // A transaction, or an element with some: the list may lack its tags, so that they stand beside it.
    void TakeTransactions(const pugi::xml_node& node)
    {
        if (qstrcmp(node.name(), "x") == 0) {
            m_pieces.TakeAll(node.attribute("piece").as_uint(), node.attribute("count").as_uint(1),
                             [this](QByteArrayView piece) {
                                 if (std::optional<cSkippedRow> row = TransactionOf(piece)) {
                                     Take(std::move(*row));
                                 }
                             });
            return;
        }
        for (const pugi::xml_node& piece : node.children("x")) {
            TakeTransactions(piece);
        }
    }

    void Take(cSkippedRow row)
    {
        if (row.Reason.Text.isEmpty()) {
            if (!m_id.isEmpty()) {
                m_read.Ids.insert(m_read.Entries.size(), m_id);
            }
            m_read.Entries.append(std::move(row.Entry));
        } else {
            m_read.Skipped.append(std::move(row));
        }
    }

    // The transaction with the reason why it is none; empty when it has no end.
    [[nodiscard]] std::optional<cSkippedRow> TransactionOf(QByteArrayView piece)
    {
        pugi::xml_document document;
        if (!modXmlNode::Load(document, piece)) {
            m_isBroken = true;
            return std::nullopt;
        }
        const pugi::xml_node node = document.first_child();
        m_id = TextOf(node, "FITID");
        const QString day = TextOf(node, "DTPOSTED");
        const QString amount = TextOf(node, "TRNAMT");
        const std::optional<qint64> value = modAmount::CentsFromGerman(modOfxText::ToGermanAmount(amount));
        cSkippedRow row;
        row.Entry.ImportAccount = m_account;
        row.Entry.ImportDate = DateOf(day);
        row.Entry.ImportPurpose = PurposeOf(node);
        if (m_options.OfxPayee == eOfxPayee::Take) {
            TakeCounterparty(node, row.Entry);
        }
        row.Entry.ImportCurrency = m_currency;
        row.Entry.ImportValue = value.value_or(0);
        if (!row.Entry.ImportDate.isValid()) {
            row.Reason.Text = cText::Tr("Das Buchungsdatum ist kein Datum: {0}", {day.left(40)});
        } else if (!value) {
            row.Reason.Text = cText::Tr("Der Betrag ist keine Zahl: {0}", {amount.left(40)});
        }
        return row;
    }

    // What the walk over the statements has not met stands outside of them.
    void TellStrays()
    {
        m_account = m_options.Account;
        m_currency.clear();
        for (unsigned int number = 0; number < m_pieces.Pieces.size(); ++number) {
            const QByteArrayView piece = m_pieces.Take(number);
            std::optional<cSkippedRow> row = piece.isEmpty() ? std::nullopt : TransactionOf(piece);
            if (row) {
                row->Reason.Text = cText::Tr("Der Umsatz steht außerhalb der Auszüge in der Datei.");
                m_read.Skipped.append(*row);
            }
        }
    }

    [[nodiscard]] QString PurposeOf(const pugi::xml_node& node) const
    {
        const QString memo = modStatementText::DecodeField(TextOf(node, "MEMO"));
        const bool takesName = memo.isEmpty() && m_options.MissingPurpose == eMissingPurpose::Name;
        return takesName ? modStatementText::DecodeField(TextOf(node, "NAME")) : memo;
    }

    void TakeCounterparty(const pugi::xml_node& node, cImportEntry& entry)
    {
        const QString plain = TextOf(node, "NAME");
        const QString name =
            modStatementText::DecodeField(plain.isEmpty() ? TextOf(node.child("PAYEE"), "NAME") : plain);
        auto known = m_names.constFind(name);
        if (known == m_names.constEnd()) {
            known = m_names.insert(name, NamesSomebody(name) ? name : QString());
        }
        if (!IsBeginning(*known, entry.ImportPurpose)) {
            entry.ImportBeneficiary = *known;
        }
        if (const pugi::xml_node account = node.child("BANKACCTTO")) {
            entry.ImportBeneficiaryAccount = TextOf(account, "ACCTID");
            entry.ImportBeneficiaryBLZ =
                entry.ImportBeneficiaryAccount.isEmpty() ? QString() : TextOf(account, "BANKID");
        }
    }

    void TakeBalance(const pugi::xml_node& ledger)
    {
        const std::optional<qint64> cents =
            modAmount::CentsFromGerman(modOfxText::ToGermanAmount(TextOf(ledger, "BALAMT")));
        if (!cents) {
            return;
        }
        m_read.ClosingBalance = cents;
        m_read.Balances.append({m_account, *cents, DateOf(TextOf(ledger, "DTASOF"))});
    }

    modXmlPieces::cPieces m_pieces;
    const cReadOptions& m_options;
    cStatementRead m_read;
    QString m_account; // of the statement at hand
    QString m_id;      // of the transaction at hand
    QString m_currency;
    QHash<QString, QString> m_names; // the counterparty by what stands in NAME; the same names come again and again
    bool m_hasStatements = false;
    bool m_isBroken = false;
};

// OFX 1 names its character set in the header. Only the old DOS sets differ from what the text was decoded with.
bool IsDosText(const QByteArray& bytes)
{
    const QByteArray header = bytes.left(1000);
    return header.contains("CHARSET:850") || header.contains("CHARSET:437");
}

// The text of the file in UTF-8.
QByteArray Utf8(const cStatementSource& source, const cReadOptions& options)
{
    const bool isLeftToUs = options.Table.Charset == eCharset::Detect;
    const bool hasBytes = isLeftToUs && !source.Bytes.isEmpty();
    if (hasBytes && source.Bytes.isValidUtf8()) {
        return source.Bytes;
    }
    const bool isDos = hasBytes && IsDosText(source.Bytes);
    return (isDos ? modStatementText::Decode(source.Bytes, eCharset::Cp850) : source.Text).toUtf8();
}

} // namespace

bool modOfx::IsOfx(const QString& text)
{
    const auto has = [&](QStringView mark) { return modStatementText::HasMark(text, mark); };
    const auto ends = [&] { // looked for from where it stands
        qsizetype at = text.lastIndexOf(u'<');
        while (at > 0 && !QStringView(text).sliced(at).startsWith(u"</OFX>")) {
            at = text.lastIndexOf(u'<', at - 1);
        }
        return at > 0;
    };
    if (has(u"<BANKTRANLIST>") && (has(u"<OFX>") || has(u"OFXHEADER")) && ends()) {
        return true;
    }
    // Statements without transactions, of a securities account, or cut off: still better refused or read as what they
    // are than taken for a table.
    const QString start = text.left(2000).trimmed();
    return (start.startsWith(u'<') || start.contains(u"OFXHEADER")) && start.contains(u"<OFX>", Qt::CaseInsensitive);
}

cStatementRead modOfx::Read(const cStatementSource& source, const cReadOptions& options)
{
    QByteArray text = modOfxRepair::Repair(Utf8(source, options));
    text = modOfxText::ToXml(text); // the repaired text is large and not needed any more
    return ReadXml(text, options);
}

cStatementRead modOfx::ReadXml(const QByteArray& xml, const cReadOptions& options)
{
    return cReader(modXmlPieces::Cut(xml, "STMTTRN"), options).Run();
}
