#include "modFuzzBank.h"

#include "base/cSecret.h"
#include "fints/cBankAnswer.h"
#include "fints/cBankLog.h"
#include "fints/cShield.h"
#include "fints/modBankParameters.h"
#include "fints/modFintsSplit.h"

#include <QBitArray>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto pin = "12345";

void Mark(QBitArray& marks, const QByteArray& bytes, QByteArrayView token)
{
    if (!token.isEmpty())
        marks.fill(true, token.data() - bytes.constData(), token.data() - bytes.constData() + token.size());
}

// Separators, and what is nothing but blanks.
bool IsLossOf(const QByteArray& bytes, qsizetype at)
{
    return QByteArrayView("'+ \t\n\v\f\r").contains(bytes[at]);
}

QByteArray Wrapped(const QByteArray& inner)
{
    return "HNHBK:1:3+000000000000+300+D+1+D:1'HNVSD:999:1+@" + QByteArray::number(inner.size()) + "@" + inner
        + "'HNHBS:9:1+1'";
}

QString FaultOfValues(const cBankAnswer& answer)
{
    const QList<cBankAccount> accounts = answer.Accounts();
    if (std::any_of(accounts.begin(), accounts.end(), [](const auto& account) { return account.Number.isEmpty(); }))
        return u"an account without a number"_s;
    const std::optional<cTanChallenge> tan = answer.Tan();
    if (tan && (tan->Reference.isEmpty() || tan->Challenge.isEmpty()))
        return u"a challenge without its placeholders"_s;
    const std::optional<cBankBalanceRead> balance = answer.Balance();
    if (balance && !balance->Day.isValid())
        return u"a balance without a day"_s;
    if (answer.Media().contains(QString()))
        return u"a medium without a name"_s;
    if (answer.BookedCamt().contains(QByteArray()))
        return u"an empty document"_s;
    for (const QByteArray& wire : answer.Parameters()) {
        if (HBCISegment::Read(wire).toString() != wire)
            return u"a parameter that is read in another way the second time"_s;
    }
    return {};
}

// Called for what a sanitizer sees in them.
void ReadMore(const cBankAnswer& answer)
{
    static_cast<void>(answer.CollectedText() + answer.BankWords() + answer.BankName() + answer.UpdVersion());
    static_cast<void>(answer.IsWrongPin() || answer.IsLocked() || answer.IsAborted());
    static_cast<void>(answer.AllowedFunctions());
    static_cast<void>(answer.Continuation());
    static_cast<void>(answer.SystemId());
    static_cast<void>(answer.BookedMT940());
    static_cast<void>(answer.SepaAccounts());
    for (const HBCISegment& segment : answer.Segments())
        static_cast<void>(segment.DebugDescription());
}

} // namespace

QString modFuzzBank::FaultOfSplit(const QByteArray& bytes)
{
    for (const char separator : {'\'', '+', ':'}) {
        if (modFintsSplit::Split(bytes, separator).size() > bytes.size() + 1)
            return u"more tokens than characters"_s;
    }
    const cShield shield(bytes);
    if (shield.Text().size() != bytes.size())
        return u"a covered text of another length"_s;
    const bool hasContainer = bytes.contains("HNVSD:");
    QBitArray marks(bytes.size());
    for (const cWireSegment& segment : SegmentsOf(shield)) {
        Mark(marks, bytes, segment.Head);
        for (const QByteArrayView element : segment.Elements) {
            Mark(marks, bytes, element);
            static_cast<void>(modFintsSplit::Group(element));
        }
    }
    for (qsizetype at = 0; at < bytes.size() && !hasContainer; ++at) {
        if (!marks.testBit(at) && !IsLossOf(bytes, at))
            return u"the byte in place %1 is lost"_s.arg(at);
    }
    return {};
}

QString modFuzzBank::FaultOfAnswer(const QByteArray& bytes)
{
    const QByteArray message = bytes.startsWith("HNHBK") ? bytes : Wrapped(bytes);
    const cSecret secret(QString::fromLatin1(pin));
    cBankLog log;
    log.AddAnswer(message, {&secret}, u"PRODUKT"_s);
    if (log.Text().contains(QLatin1StringView(pin)) || log.Text().contains(QChar(QChar::Null)))
        return u"a log with a PIN or a NUL"_s;
    static_cast<void>(log.TextForOthers({u"Eva Muster"_s}));
    const std::optional<cBankAnswer> answer = cBankAnswer::Read(message);
    if (!answer)
        return {};
    ReadMore(*answer);
    return FaultOfValues(*answer);
}

QString modFuzzBank::FaultOfMethods(const QByteArray& bytes)
{
    const QList<QByteArray> parameters = bytes.split('\n');
    for (const TanVerfahrenItem& item : modBankParameters::Methods(parameters)) {
        if (item.SecurityFunction.isEmpty() || item.SegmentVersion < 1 || item.SegmentVersion > 7)
            return u"a procedure without function or version"_s;
    }
    if (modBankParameters::StatementDays(parameters, "HIKAZS") < 0)
        return u"less than no days"_s;
    static_cast<void>(modBankParameters::CamtFormat(parameters));
    static_cast<void>(modBankParameters::IsNationalAccountAllowed(parameters));
    static_cast<void>(modBankParameters::IsOneStepAllowed(parameters));
    static_cast<void>(modBankParameters::UserIdLabel(parameters));
    static_cast<void>(modBankParameters::NeedsTan(parameters, "HKKAZ"));
    return {};
}
