#include "fints/cBankAnswer.h"

#include "base/modAmount.h"
#include "fints/cShield.h"
#include "fints/modFintsSplit.h"
#include "fints/modFintsValue.h"
#include "fints/modSegmentTable.h"

#include <QStringDecoder>
#include <QTime>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using modFintsValue::Unescaped;

namespace {

constexpr std::array wrongPin = {u"9942", u"9931", u"9910", u"9930", u"9933"};
constexpr std::array locked = {u"3931", u"3938"};

// Accounts that have no statements: securities and cards.
constexpr std::array hiddenAccounts = {u"standard privat", u"deka-depot", u"depot", u"wertpapier-depot"};

QByteArray Named(const HBCISegment& segment, QByteArrayView name)
{
    return segment.Element(modSegmentTable::Place(segment.Code(), segment.Version(), name));
}

QString NamedText(const HBCISegment& segment, QByteArrayView name)
{
    return Unescaped(Named(segment, name));
}

QString Part(const QList<QByteArrayView>& parts, qsizetype place)
{
    return Unescaped(parts.value(place - 1));
}

// What the bank says to people: ISO-8859-1 as agreed, but some send UTF-8, and then "ungültig" would not be found.
QString Said(QByteArrayView wire)
{
    const QString text = Unescaped(wire);
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = utf8(text.toLatin1());
    return utf8.hasError() ? text : decoded;
}

cReturnMessage MessageFrom(const HBCISegment& segment, QByteArrayView element)
{
    const QList<QByteArrayView> parts = modFintsSplit::Group(element);
    cReturnMessage message{Part(parts, 1),     Part(parts, 2), Said(parts.value(2)), {}, segment.Code() == "HIRMG",
                           segment.Reference()};
    for (qsizetype i = 3; i < parts.size(); ++i) {
        message.Parameters.append(parts[i].toByteArray());
    }
    return message;
}

// "number:sub:280:bank code", in old versions without the second.
void SetNational(cBankAccount& account, const QList<QByteArrayView>& parts)
{
    account.Number = Part(parts, 1);
    account.SubNumber = parts.size() > 3 ? Part(parts, 2) : QString();
    account.BankCode = parts.size() > 3 ? Part(parts, 4) : Part(parts, 3);
}

bool IsOrderCode(QByteArrayView code)
{
    const auto isCodeCharacter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); };
    return code.size() >= 5 && code.size() <= 6 && std::all_of(code.begin(), code.end(), isCodeCharacter);
}

// Behind the named elements: up to 999 places, most of them empty, and in the end a text of the bank.
QStringList OrdersOf(const HBCISegment& segment)
{
    QStringList orders;
    const int first = modSegmentTable::Place(segment.Code(), segment.Version(), "BusinessTransactions");
    for (int place = first; place <= segment.ElementCount(); ++place) {
        const QByteArray code = modFintsSplit::Group(segment.Element(place)).value(0).toByteArray();
        if (IsOrderCode(code)) {
            orders.append(QString::fromLatin1(code));
        }
    }
    return orders;
}

cBankAccount AccountFrom(const HBCISegment& segment)
{
    cBankAccount account;
    const QByteArray number = Named(segment, "Number");
    SetNational(account, modFintsSplit::Group(number));
    account.Iban = NamedText(segment, "Iban");
    account.CustomerId = NamedText(segment, "CustomerID");
    const QString currency = NamedText(segment, "Currency");
    account.Currency = currency.isEmpty() ? account.Currency : currency;
    account.Owner1 = NamedText(segment, "Name1");
    account.Owner2 = NamedText(segment, "Name2");
    account.ProductName = NamedText(segment, "ProductName");
    account.Limit = NamedText(segment, "Limit");
    account.Orders = OrdersOf(segment);
    return account;
}

bool IsHiddenName(const QString& name)
{
    return std::find(hiddenAccounts.begin(), hiddenAccounts.end(), name) != hiddenAccounts.end()
        || name.startsWith(u"cfd-");
}

// Some banks say in the name what the account is. There "visa" counts as a word of its own only: it may be a part of
// the customer's name.
bool IsVisaName(const QString& name)
{
    const QStringList words = name.split(u' ', Qt::SkipEmptyParts);
    return words.contains(u"visa"_s);
}

bool MayBeOffered(const cBankAccount& account)
{
    const QString product = account.ProductName.toLower();
    const QString name1 = account.Owner1.toLower();
    const QString name2 = account.Owner2.toLower();
    return !account.Number.isEmpty() && !IsHiddenName(product) && !IsHiddenName(name1) && !IsHiddenName(name2)
        && !product.contains(u"visa") && !IsVisaName(name1) && !IsVisaName(name2);
}

QDateTime MomentFrom(QByteArrayView element)
{
    const QList<QByteArrayView> parts = modFintsSplit::Group(element);
    const QDate day = QDate::fromString(Part(parts, 1), u"yyyyMMdd"_s);
    const QTime time = QTime::fromString(Part(parts, 2), u"HHmmss"_s);
    return day.isValid() && time.isValid() ? QDateTime(day, time) : QDateTime();
}

// "2 to 4: the 13th, in 5 the 14th", because a security function came in between.
constexpr int oldMediumName = 13;
constexpr int newMediumName = 14;

// Active are cards and telephones, and a follow-up card that replaces one.
QString ActiveMedium(const HBCISegment& segment, QByteArrayView element)
{
    const QList<QByteArrayView> parts = modFintsSplit::Group(element);
    const QByteArrayView status = parts.value(1);
    const bool isActive = status.isEmpty() || status == "1" || status == "3";
    return isActive ? Part(parts, segment.Version() >= 5 ? newMediumName : oldMediumName) : QString();
}

std::optional<cBankBalanceRead> BalanceFrom(const HBCISegment& segment)
{
    const QByteArray element = Named(segment, "Balance");
    const QList<QByteArrayView> parts = modFintsSplit::Group(element);
    QString amount = Part(parts, 2);
    if (amount.endsWith(u',')) {
        amount.chop(1);
    }
    const std::optional<qint64> cents = modAmount::CentsFromText(amount);
    const QDate day = QDate::fromString(Part(parts, 4), u"yyyyMMdd"_s);
    if (!cents || !day.isValid()) {
        return std::nullopt;
    }
    return cBankBalanceRead{parts[0] == "D" ? -*cents : *cents, day, Part(parts, 3)};
}

} // namespace

cBankAnswer::cBankAnswer(QList<HBCISegment> segments) : m_segments(std::move(segments))
{
    m_dialogId = Named(m_segments.value(0), "DialogID");
    ReadMessages();
}

std::optional<cBankAnswer> cBankAnswer::Read(const QByteArray& bytes)
{
    if (!bytes.startsWith("HNHBK:")) {
        return std::nullopt;
    }
    const cShield shield(bytes);
    if (shield.IsCut() || shield.IsOverlong()) {
        return std::nullopt;
    }
    QList<HBCISegment> segments;
    for (const cWireSegment& wire : ::SegmentsOf(shield)) {
        QList<QByteArray> elements;
        for (const QByteArrayView element : wire.Elements) {
            elements.append(element.toByteArray());
        }
        segments.append(HBCISegment(wire.Head, elements));
    }
    cBankAnswer answer(segments);
    const bool isWhole = segments.last().Code() == "HNHBS";
    return isWhole && !answer.m_dialogId.isEmpty() ? std::optional(answer) : std::nullopt;
}

void cBankAnswer::ReadMessages()
{
    for (const HBCISegment& segment : m_segments) {
        if (segment.Code() != "HIRMG" && segment.Code() != "HIRMS") {
            continue;
        }
        for (int place = 1; place <= segment.ElementCount(); ++place) {
            const QByteArray element = segment.Element(place);
            if (!element.isEmpty()) {
                m_messages.append(MessageFrom(segment, element));
            }
        }
    }
}

QList<HBCISegment> cBankAnswer::SegmentsOf(QByteArrayView code) const
{
    QList<HBCISegment> found;
    for (const HBCISegment& segment : m_segments) {
        if (segment.Code() == code) {
            found.append(segment);
        }
    }
    return found;
}

bool cBankAnswer::Has(QStringView code) const
{
    return std::any_of(m_messages.begin(), m_messages.end(), [&](const auto& message) { return message.Code == code; });
}

QString cBankAnswer::CollectedText() const
{
    QStringList lines;
    for (const cReturnMessage& message : m_messages) {
        if (message.Code != u"0020") {
            lines.append(message.Code + u' ' + message.Text);
        }
    }
    return lines.join(u"\r\n");
}

// Successes and the announcement of warnings say nothing to the user.
QString cBankAnswer::BankWords() const
{
    QStringList lines;
    for (const cReturnMessage& message : m_messages) {
        const bool isWorthSaying = !message.Code.startsWith(u'0') && message.Code != u"3060";
        if (isWorthSaying && !message.Text.isEmpty() && !lines.contains(message.Text)) {
            lines.append(message.Text);
        }
    }
    return lines.join(u'\n');
}

bool cBankAnswer::HasMoreThanWarnings() const
{
    return std::any_of(m_messages.begin(), m_messages.end(),
                       [](const cReturnMessage& message) { return message.Code != u"3060"; });
}

bool cBankAnswer::IsAborted() const
{
    return std::any_of(m_messages.begin(), m_messages.end(),
                       [](const cReturnMessage& message) { return message.IsGlobal && message.Code == u"9800"; });
}

QByteArray cBankAnswer::Continuation() const
{
    const auto found = std::find_if(m_messages.begin(), m_messages.end(), [](const cReturnMessage& message) {
        return !message.IsGlobal && message.Code == u"3040";
    });
    return found == m_messages.end() ? QByteArray() : found->Parameters.value(0);
}

std::optional<QStringList> cBankAnswer::AllowedFunctions() const
{
    std::optional<QStringList> functions;
    for (const cReturnMessage& message : m_messages) {
        if (message.IsGlobal || message.Code != u"3920") {
            continue;
        }
        functions = functions.value_or(QStringList());
        for (const QByteArray& parameter : message.Parameters) {
            if (!parameter.isEmpty()) {
                functions->append(Unescaped(parameter));
            }
        }
    }
    return functions;
}

bool cBankAnswer::IsWrongPin() const
{
    return std::any_of(m_messages.begin(), m_messages.end(), [](const cReturnMessage& message) {
        const QString text = message.Text.toUpper();
        return std::find(wrongPin.begin(), wrongPin.end(), message.Code) != wrongPin.end()
            || (text.contains(u"PIN") && (text.contains(u"FALSCH") || text.contains(u"UNGÜLTIG")));
    });
}

bool cBankAnswer::IsLocked() const
{
    return std::any_of(locked.begin(), locked.end(), [this](const auto* code) { return Has(code); });
}

std::optional<QByteArray> cBankAnswer::SystemId() const
{
    for (const HBCISegment& segment : m_segments) {
        if (segment.Code() == "HISYN" && !segment.Element(1).isEmpty()) {
            return segment.Element(1);
        }
    }
    return std::nullopt;
}

QString cBankAnswer::BpdVersion() const
{
    return NamedText(SegmentsOf("HIBPA").value(0), "BPDVersion");
}

QString cBankAnswer::BankName() const
{
    return NamedText(SegmentsOf("HIBPA").value(0), "InstituteName");
}

QString cBankAnswer::UpdVersion() const
{
    return NamedText(SegmentsOf("HIUPA").value(0), "UPDVersion");
}

QList<QByteArray> cBankAnswer::Parameters() const
{
    QList<QByteArray> parameters;
    for (const HBCISegment& segment : m_segments) {
        const QByteArray& code = segment.Code();
        if (code == "HIBPA" || (code.size() == 6 && code.startsWith("HI") && code.endsWith('S'))) {
            parameters.append(segment.toString());
        }
    }
    return parameters;
}

QList<cBankAccount> cBankAnswer::Accounts() const
{
    QList<cBankAccount> accounts;
    for (const HBCISegment& segment : SegmentsOf("HIUPD")) {
        const cBankAccount account = AccountFrom(segment);
        if (MayBeOffered(account)) {
            accounts.append(account);
        }
    }
    return accounts;
}

QList<cBankAccount> cBankAnswer::SepaAccounts() const
{
    QList<cBankAccount> accounts;
    for (const HBCISegment& segment : SegmentsOf("HISPA")) {
        for (int place = 1; place <= segment.ElementCount(); ++place) {
            const QByteArray element = segment.Element(place);
            const QList<QByteArrayView> parts = modFintsSplit::Group(element);
            cBankAccount account;
            account.Iban = Part(parts, 2);
            account.Bic = Part(parts, 3);
            SetNational(account, parts.mid(3));
            accounts.append(account);
        }
    }
    return accounts;
}

QStringList cBankAnswer::Media() const
{
    QStringList media;
    for (const HBCISegment& segment : SegmentsOf("HITAB")) {
        for (int place = 2; place <= segment.ElementCount(); ++place) {
            const QString medium = ActiveMedium(segment, segment.Element(place));
            if (!medium.isEmpty() && !media.contains(medium)) {
                media.append(medium);
            }
        }
    }
    return media;
}

std::optional<cTanChallenge> cBankAnswer::Tan() const
{
    const QList<HBCISegment> segments = SegmentsOf("HITAN");
    if (segments.isEmpty()) {
        return std::nullopt;
    }
    const auto hasChallenge = [](const HBCISegment& segment) { return !Named(segment, "Challenge").isEmpty(); };
    const auto found = std::find_if(segments.begin(), segments.end(), hasChallenge);
    const HBCISegment& segment = found == segments.end() ? segments[0] : *found;
    const QByteArray reference = Named(segment, "Reference");
    const QString challenge = Said(Named(segment, "Challenge"));
    cTanChallenge tan;
    tan.Process = Named(segment, "Process");
    tan.Reference = reference.isEmpty() ? QByteArrayLiteral("noref") : reference;
    tan.Challenge = challenge.isEmpty() ? u"nochallenge"_s : challenge;
    tan.HhdUc = modFintsSplit::Data(Named(segment, "HhdUc")).toByteArray();
    tan.ValidUntil = MomentFrom(Named(segment, "ValidUntil"));
    tan.Medium = NamedText(segment, "Medium");
    return tan;
}

QByteArray cBankAnswer::BookedMT940() const
{
    QList<QByteArray> elements;
    qsizetype size = 0;
    for (const HBCISegment& segment : SegmentsOf("HIKAZ")) {
        elements.append(Named(segment, "Booked"));
        size += elements.last().size();
    }
    QByteArray booked;
    booked.reserve(size);
    for (const QByteArray& element : elements) {
        booked.append(modFintsSplit::Data(element));
    }
    return booked;
}

QList<QByteArray> cBankAnswer::BookedCamt() const
{
    QList<QByteArray> documents;
    for (const HBCISegment& segment : SegmentsOf("HICAZ")) {
        const QByteArray booked = Named(segment, "Booked");
        for (const QByteArrayView document : modFintsSplit::Group(booked)) {
            const QByteArrayView data = modFintsSplit::Data(document);
            if (!data.isEmpty()) {
                documents.append(data.toByteArray());
            }
        }
    }
    return documents;
}

std::optional<cBankBalanceRead> cBankAnswer::Balance() const
{
    for (const HBCISegment& segment : SegmentsOf("HISAL")) {
        if (const std::optional<cBankBalanceRead> balance = BalanceFrom(segment)) {
            return balance;
        }
    }
    return std::nullopt;
}
