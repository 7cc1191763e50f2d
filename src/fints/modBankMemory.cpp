#include "fints/modBankMemory.h"

#include "base/cText.h"
#include "fints/modBankParameters.h"
#include "fints/modFintsSplit.h"
#include "fints/modFintsValue.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// What an account was told once stays known when the bank leaves it out the next time.
cBankAccount Completed(cBankAccount account, const QList<cBankAccount>& known)
{
    const auto same = std::find_if(known.begin(), known.end(), [&](const cBankAccount& old) {
        return old.Number == account.Number && old.SubNumber == account.SubNumber;
    });
    if (same != known.end() && account.Iban.isEmpty()) {
        account.Iban = same->Iban;
    }
    if (same != known.end() && account.Bic.isEmpty()) {
        account.Bic = same->Bic;
    }
    return account;
}

void TakeParameters(const cBankAnswer& answer, cBankState& state)
{
    const QString version = answer.BpdVersion();
    if (version.isEmpty()) {
        return;
    }
    state.BpdVersion = version;
    state.Parameters = answer.Parameters();
    if (!answer.BankName().isEmpty()) {
        state.BankName = answer.BankName();
    }
}

// A version without accounts is none: before the strong authentication some banks tell only the version.
QList<cBankAccount> TakeAccounts(const cBankAnswer& answer, cBankState& state)
{
    if (answer.SegmentsOf("HIUPD").isEmpty()) {
        return {};
    }
    if (!answer.UpdVersion().isEmpty()) {
        state.UpdVersion = answer.UpdVersion();
    }
    QList<cBankAccount> accounts;
    for (const cBankAccount& account : answer.Accounts()) {
        accounts.append(Completed(account, state.Accounts));
    }
    state.Accounts = accounts;
    return accounts;
}

// A bank that changed the parameters of a procedure means the one that was chosen too.
void TakeMethods(const cBankAnswer& answer, cBankState& state)
{
    const auto allowed = answer.AllowedFunctions();
    if (allowed) {
        state.AllowedFunctions = *allowed;
    }
    state.Methods = modBankMemory::Methods(state);
    if (!state.Method) {
        return;
    }
    for (const TanVerfahrenItem& method : std::as_const(state.Methods)) {
        if (method.SecurityFunction == state.Method->SecurityFunction) {
            state.Method = method;
        }
    }
}

void TakeMedia(const cBankAnswer& answer, cBankState& state)
{
    if (answer.SegmentsOf("HITAB").isEmpty()) {
        return;
    }
    state.Media = answer.Media();
    if (!state.Media.isEmpty() && !state.Media.contains(state.Medium)) {
        state.Medium.clear();
    }
    if (state.Medium.isEmpty() && state.Media.size() == 1) {
        state.Medium = state.Media.constFirst();
    }
}

} // namespace

QList<cBankAccount> modBankMemory::Take(const cBankAnswer& answer, cBankState& state)
{
    const auto systemId = answer.SystemId();
    if (systemId && !systemId->isEmpty()) {
        state.SystemId = *systemId;
    }
    const bool hasMethods = !answer.BpdVersion().isEmpty() || answer.AllowedFunctions().has_value();
    TakeParameters(answer, state);
    if (hasMethods) {
        TakeMethods(answer, state);
    }
    TakeMedia(answer, state);
    return TakeAccounts(answer, state);
}

QString modBankMemory::BpdVersion(const cBankState& state)
{
    return state.Parameters.isEmpty() || state.BpdVersion.isEmpty() ? u"0"_s : state.BpdVersion;
}

QString modBankMemory::UpdVersion(const cBankState& state)
{
    return state.Accounts.isEmpty() || state.UpdVersion.isEmpty() ? u"0"_s : state.UpdVersion;
}

TanVerfahrenItem modBankMemory::OneStep(const QString& name)
{
    TanVerfahrenItem method;
    method.SecurityFunction = u"999"_s;
    method.Name = name;
    return method;
}

bool modBankMemory::IsOneStep(const TanVerfahrenItem& method)
{
    return method.SecurityFunction == u"999";
}

bool modBankMemory::IsApproval(const TanVerfahrenItem& method)
{
    return method.ZkaName.startsWith(u"decoupled", Qt::CaseInsensitive);
}

QList<TanVerfahrenItem> modBankMemory::Methods(const cBankState& state)
{
    QList<TanVerfahrenItem> methods = modBankParameters::Methods(state.Parameters);
    methods.removeIf([&](const TanVerfahrenItem& method) {
        const bool isSpoken = method.SegmentVersion == 6 || method.SegmentVersion == 7;
        return !isSpoken || !state.AllowedFunctions.contains(method.SecurityFunction);
    });
    std::stable_partition(methods.begin(), methods.end(), IsApproval);
    if (methods.isEmpty() && !state.AllowedFunctions.isEmpty()
        && modBankParameters::IsOneStepAllowed(state.Parameters)) {
        methods.append(OneStep(cText::Tr("Nur PIN")));
    }
    return methods;
}

bool modBankMemory::LacksMedium(const cBankState& state)
{
    return state.Method && state.Method->MediaNameRequired == u"2" && state.Medium.isEmpty();
}

void modBankMemory::TakeIbans(const QList<cBankAccount>& sepa, cBankState& state)
{
    for (cBankAccount& account : state.Accounts) {
        account = Completed(account, sepa);
    }
}

QString modBankMemory::Address(const cBankAnswer& answer)
{
    for (const HBCISegment& segment : answer.SegmentsOf("HIKOM")) {
        for (int place = 3; place <= segment.ElementCount(); ++place) {
            const QByteArray element = segment.Element(place);
            const QList<QByteArrayView> group = modFintsSplit::Group(element);
            if (group.size() < 2 || group.at(0) != "3") { // 3 is HTTPS, others are services of old
                continue;
            }
            const QString address = modFintsValue::Unescaped(group.at(1)).trimmed();
            return address.isEmpty() || address.contains(u"://") ? address : u"https://" + address;
        }
    }
    return {};
}

bool modBankMemory::IsSameAddress(const QString& left, const QString& right)
{
    const auto bare = [](const QString& address) { return address.endsWith(u'/') ? address.chopped(1) : address; };
    return bare(left).compare(bare(right), Qt::CaseInsensitive) == 0;
}
