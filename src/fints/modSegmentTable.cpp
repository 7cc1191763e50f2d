#include "fints/modSegmentTable.h"

#include <algorithm>

namespace {

using modSegmentTable::cElement;
using modSegmentTable::cRow;
using modSegmentTable::mostElements;
using enum modSegmentTable::eTold;

// Rows of one code stand with the highest version first. Labels are those of the log, spelled as ever.
// clang-format off
constexpr std::array rows = {
    // Envelope
    cRow{"HNHBK", 3, 3, 1, "MessageStart: ", {{
        {"Size", nullptr, Open}, {"HBCIVersion", "HBCIVersion=", Open}, {"DialogID", " DialogID=", Open},
        {"MessageIndex", " MessageIndex=", Open}, {"RelationIndex", " RelationIndex=", Open}}}},
    cRow{"HNVSK", 3, 2, 1, "EncryptionHead: ", {{
        {"Profile", "Profile=", Open}, {"SecurityFunction", " SecurityFunction=", Open}, {"Role", nullptr, Open},
        {"CustomerSysID"}, {"Moment", nullptr, Open}, {"Algorithm", nullptr, Open}, {"KeyName", nullptr, Person},
        {"Compression", nullptr, Open}, {"Certificate"}}}},
    cRow{"HNVSD", 1, 1, 1, "EncryptedData: ", {{{"Data"}}}},
    cRow{"HNSHK", 4, 3, 1, "SignatureHead: ", {{
        {"Profile", "Profile=", Open}, {"SecurityFunction", " SecurityFunction=", Open}, {"Control", nullptr, Open},
        {"Area", nullptr, Open}, {"Role", nullptr, Open}, {"CustomerSysID"}, {"Reference", nullptr, Open},
        {"Moment", nullptr, Open}, {"HashAlgorithm", nullptr, Open}, {"SignatureAlgorithm", nullptr, Open},
        {"KeyName", nullptr, Person}, {"Certificate"}}}},
    cRow{"HNSHA", 2, 1, 1, "SignatureEnd: ", {{
        {"Control", "Control=", Open}, {"Validation", nullptr, Open}, {"Signature"}}}},
    cRow{"HNHBS", 1, 1, 1, "MessageEnd: ", {{{"MessageIndex", "MessageIndex=", Open}}}},

    // Requests
    cRow{"HKIDN", 2, 2, 1, "Identification: ", {{
        {"Institute", "Institute=", Person}, {"CustomerID", " CustomerID=", Person},
        {"CustomerSysID", " CustomerSysID="}, {"CustomerState", " CustomerState=", Open}}}},
    cRow{"HKVVB", 3, 2, 1, "ProcessingRule: ", {{
        {"BPD", "BPD=", Open}, {"UPD", " UPD=", Open}, {"DialogLang", " DialogLang=", Open},
        {"ProductDesc", " ProductDesc="}, {"ProductVersion", " ProductVersion=", Open}}}},
    cRow{"HKSYN", 3, 2, 1, "Synchronisation: ", {{{"Mode", "Mode=", Open}}}},
    cRow{"HKTAN", 0, 0, 1, "TanProcess: ", {{
        {"Process", "Process=", Open}, {"Segment", " Segment=", Open}, {"Account", nullptr, Person}, {"OrderHash"},
        {"Reference", " Reference="}, {"HasMore", " HasMore=", Open}, {"Cancel", nullptr, Open},
        {"SmsAccount", nullptr, Person}, {"ChallengeClass", nullptr, Open}, {"Parameters"},
        {"Medium", " Medium=", Person}, {"HhdUcAnswer"}}}},
    cRow{"HKTAB", 4, 4, 1, "TanMedia: ", {{{"Kind", "Kind=", Open}, {"Class", " Class=", Open}}}},
    cRow{"HKSPA", 1, 1, 1, "SepaAccounts: ", {{{"Account", "Account=", Person}}}},
    cRow{"HKKAZ", 5, 5, 1, "AccountTransactions: ", {{
        {"AccountID", "AccountID=", Person}, {"AllAccounts", " AllAccounts=", Open}, {"StartDate", " StartDate=", Open},
        {"EndDatex", " EndDatex=", Open}, {"MaxResponse", " MaxResponse=", Open},
        {"Aufsetzpunkt", " Aufsetzpunkt="}}}},
    cRow{"HKCAZ", 1, 1, 1, "CamtTransactions: ", {{
        {"AccountID", "AccountID=", Person}, {"Format", " Format=", Open}, {"AllAccounts", " AllAccounts=", Open},
        {"StartDate", " StartDate=", Open}, {"EndDatex", " EndDatex=", Open}, {"MaxResponse", " MaxResponse=", Open},
        {"Aufsetzpunkt", " Aufsetzpunkt="}}}},
    cRow{"HKSAL", 5, 5, 1, "Balance: ", {{
        {"AccountID", "AccountID=", Person}, {"AllAccounts", " AllAccounts=", Open}}}},
    cRow{"HKEND", 1, 1, 1, "DialogEnd: ", {{{"DialogID", "", Open}}}},
    cRow{"HKISA", 2, 2, 1, "RequestPublicKey: ", {{
        {"KeyRelation", "KeyRelation=", Open}, {"KeyFunctionTyp", " KeyFunctionTyp=", Open},
        {"KeyName", " KeyName=", Person}}}},
    cRow{"HKCCS", 1, 1, 1, "SepaTransfer: ", {{{"Transfer"}}}},

    // Answers
    cRow{"HIRMG", 0, 0, 1, "ResponseMessage: ", {{{"Entry", "", Words}}}},
    cRow{"HIRMS", 0, 0, 1, "ResponseSegment: ", {{{"Entry", "", Words}}}},
    cRow{"HIBPA", 0, 0, 1, "BankParamUniveral: ", {{
        {"BPDVersion", "BPDVersion=", Open}, {"InstituteID", " InstituteID=", Person},
        {"InstituteName", " InstituteName=", Open}, {"BusinessTransactions", " BusinessTransactions=", Open},
        {"SupportedLanguages", " SupportedLanguages=", Open}, {"HBCIVersions", " HBCIVersions=", Open},
        {"MaxMessageSize", " MaxMessageSize=", Open}}}},
    cRow{"HIUPA", 0, 0, 1, "UserParam: ", {{
        {"UserIdent", "UserIdent=", Person}, {"UPDVersion", " UPDVersion=", Open}, {"UPDUsage", " UPDUsage: ", Open},
        {"UserName", nullptr, Person}, {"Extension"}}}},
    cRow{"HIUPD", 0, 0, 6, "AccountInformation: ", {{
        {"Number", "Number=", Person}, {"Iban", nullptr, Person}, {"CustomerID", " CustomerID=", Person},
        {"Type", nullptr, Open}, {"Currency", " Currency=", Open}, {"Name1", " Name1=", Person},
        {"Name2", " Name2=", Person}, {"ProductName", " ProductName=", Words}, {"Limit", " Limit="},
        {"BusinessTransactions", " BusinessTransactions=", Words}}}},
    cRow{"HIUPD", 0, 0, 5, "AccountInformation: ", {{
        {"Number", "Number=", Person}, {"CustomerID", " CustomerID=", Person}, {"Type", nullptr, Open},
        {"Currency", " Currency=", Open}, {"Name1", " Name1=", Person}, {"Name2", " Name2=", Person},
        {"ProductName", " ProductName=", Words}, {"Limit", " Limit="},
        {"BusinessTransactions", " BusinessTransactions=", Words}}}},
    cRow{"HIUPD", 0, 0, 1, "AccountInformation: ", {{
        {"Number", "Number=", Person}, {"CustomerID", " CustomerID=", Person}, {"Currency", " Currency=", Open},
        {"Name1", " Name1=", Person}, {"Name2", " Name2=", Person}, {"ProductName", " ProductName=", Words},
        {"Limit", " Limit="}, {"BusinessTransactions", " BusinessTransactions=", Words}}}},
    cRow{"HISYN", 0, 0, 1, "SynchronisationResponse: ", {{
        {"CustomerSysID", "CustomerSysID="}, {"MessageID", " MessageID=", Open},
        {"SecurityRelationID", " SecurityRelationID=", Open}}}},
    cRow{"HIKAZ", 0, 0, 1, "AccountTransactionsResponse: ", {{
        {"Booked", "Booked="}, {"NotBooked", " NotBooked="}}}},
    cRow{"HICAZ", 0, 0, 1, "CamtTransactionsResponse: ", {{
        {"AccountID", "AccountID=", Person}, {"Format", " Format=", Open}, {"Booked"}, {"NotBooked"}}}},
    cRow{"HISAL", 0, 0, 1, "BalanceResponse: ", {{
        {"AccountID", "AccountID=", Person}, {"ProductName", " ProductName=", Words}, {"Currency", " Currency=", Open},
        {"Balance", " Balance="}}}},
    cRow{"HISPA", 0, 0, 1, "SepaAccountsResponse: ", {{{"Account", "Account=", Person}}}},
    cRow{"HITAN", 0, 0, 1, "TanProcessResponse: ", {{
        {"Process", "Process=", Open}, {"OrderHash"}, {"Reference", " Reference="}, {"Challenge", " Challenge=", Words},
        {"HhdUc"}, {"ValidUntil", " ValidUntil=", Open}, {"Medium", " Medium=", Person}}}},
    cRow{"HITANS", 0, 0, 1, "TanParameters: ", {{
        {"MostOrders", "MostOrders=", Open}, {"LeastSignatures", nullptr, Open}, {"SecurityClass", nullptr, Open},
        {"Parameters", " Parameters=", Open}}}},
    cRow{"HITAB", 0, 0, 1, "TanMediaResponse: ", {{{"Usage", "Usage=", Open}, {"Media"}}}},
    cRow{"HIKOM", 0, 0, 1, "Communication: ", {{
        {"InstituteID", "InstituteID=", Person}, {"Language", nullptr, Open}, {"Access", " Access=", Open}}}},
};
// clang-format on

constexpr cElement hidden{};

// Parameters of the bank concern nobody: HITANS, HIKAZS, DIPINS and so on.
bool IsParameter(QByteArrayView code)
{
    return code.size() == 6 && code[1] == 'I' && code.endsWith('S');
}

const cElement& ElementAt(const cRow& row, int place)
{
    const auto last = std::find_if(row.Elements.begin(), row.Elements.end(),
                                   [](const cElement& element) { return element.Name == nullptr; });
    const auto count = static_cast<int>(last - row.Elements.begin());
    return place < 1 || count == 0 ? hidden : row.Elements.at(static_cast<std::size_t>(std::min(place, count) - 1));
}

} // namespace

const modSegmentTable::cRow* modSegmentTable::Find(QByteArrayView code, int version)
{
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&](const cRow& row) { return code == row.Code && version >= row.From; });
    return found == rows.end() ? nullptr : &*found;
}

int modSegmentTable::Version(QByteArrayView code, QStringView protocol)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const cRow& row) { return code == row.Code; });
    if (found == rows.end()) {
        return 0;
    }
    return protocol == u"300" ? found->Version300 : found->Version220;
}

int modSegmentTable::Place(QByteArrayView code, int version, QByteArrayView name)
{
    const cRow* const row = Find(code, version);
    if (row == nullptr) {
        return 0;
    }
    const auto found = std::find_if(row->Elements.begin(), row->Elements.end(), [&](const cElement& element) {
        return element.Name != nullptr && name == element.Name;
    });
    return found == row->Elements.end() ? 0 : static_cast<int>(found - row->Elements.begin()) + 1;
}

modSegmentTable::eTold modSegmentTable::Told(QByteArrayView code, int version, int place)
{
    if (IsParameter(code)) {
        return Open;
    }
    const cRow* const row = Find(code, version);
    return row == nullptr ? Never : ElementAt(*row, place).Told;
}
