#include "fints/modBankParameters.h"

#include "fints/HBCISegment.h"
#include "fints/modFintsSplit.h"
#include "fints/modFintsValue.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using modFintsValue::Unescaped;

namespace {

constexpr int newestMethods = 7; // version of HITANS that is understood

// What a field of a row in HITANS says, as a letter of the table below.
enum eField : char {
    Ignored = '.',
    SecurityFunction = 'f',
    TanProcess = 'p',
    TechnicalIdentification = 't',
    ZkaName = 'z',
    ZkaVersion = 'v',
    Name = 'n',
    TanLength = 'l',
    Format = 'x',
    ChallengeLabel = 'L',
    ChallengeLength = 'r',
    Structured = 's',
    ClassRequired = 'k',
    AmountRequired = 'b',
    InitMode = 'i',
    MediaNameRequired = 'm',
    HhdUcRequired = 'h',
    ActiveMedia = 'a',
    MostPolls = 'P',
    WaitBeforeFirst = '1',
    WaitBeforeNext = '2',
    Manual = 'H',
    Automatic = 'A',
};

struct cOrder
{
    qsizetype Before = 0; // fields of the group in front of the rows
    QByteArrayView Fields;
};

// The fields of a row by version, from 1 on: lists, several TANs, time, cancelling and accounts are of no use here.
constexpr std::array<cOrder, newestMethods> orders{{
    {4, "fptnlxLr..."},
    {3, "fptnlxLr.....kb"},
    {3, "fptnlxLr.....kbima"},
    {3, "fptzvnlxLr......kbsima"},
    {3, "fptzvnlxLr.......ksima"},
    {3, "fptzvnlxLr.....ksimha"},
    {3, "fptzvnlxLr.....ksimhaP12HA"},
}};

bool IsYes(const QString& text)
{
    return text == u"J";
}

// What the bank leaves out keeps its preset.
void SetWait(TanVerfahrenItem& item, eField field, const QString& text)
{
    switch (field) {
    case MostPolls: item.MostPolls = text.toInt(); break;
    case WaitBeforeFirst: item.WaitBeforeFirst = text.toInt(); break;
    case WaitBeforeNext: item.WaitBeforeNext = text.toInt(); break;
    case Manual: item.IsManualAllowed = IsYes(text); break;
    case Automatic: item.IsAutomaticAllowed = IsYes(text); break;
    default: break;
    }
}

void SetNeed(TanVerfahrenItem& item, eField field, const QString& text)
{
    switch (field) {
    case Structured: item.IsChallengeStructured = IsYes(text); break;
    case ClassRequired: item.IsChallengeClassRequired = IsYes(text); break;
    case AmountRequired: item.IsChallengeAmountRequired = IsYes(text); break;
    case InitMode: item.InitMode = text; break;
    case MediaNameRequired: item.MediaNameRequired = text; break;
    case HhdUcRequired: item.IsHhdUcRequired = IsYes(text); break;
    case ActiveMedia: item.ActiveMediaCount = text.toInt(); break;
    default: SetWait(item, field, text); break;
    }
}

void Set(TanVerfahrenItem& item, eField field, const QString& text)
{
    switch (field) {
    case SecurityFunction: item.SecurityFunction = text; break;
    case TanProcess: item.TanProcess = text; break;
    case TechnicalIdentification: item.TechnicalIdentification = text; break;
    case ZkaName: item.ZkaName = text; break;
    case ZkaVersion: item.ZkaVersion = text; break;
    case Name: item.Name = text; break;
    case TanLength: item.TanLength = text.toInt(); break;
    case Format: item.IsNumber = text == u"1"; break;
    case ChallengeLabel: item.ChallengeLabel = text; break;
    case ChallengeLength: item.ChallengeLength = text.toInt(); break;
    default: SetNeed(item, field, text); break;
    }
}

// The last row may be short.
QList<TanVerfahrenItem> RowsOf(const HBCISegment& segment)
{
    const cOrder& order = orders.at(static_cast<std::size_t>(segment.Version() - 1));
    const QByteArray group = segment.Element(static_cast<int>(segment.ElementCount()));
    const QList<QByteArrayView> fields = modFintsSplit::Group(group);
    QList<TanVerfahrenItem> rows;
    for (qsizetype from = order.Before; from < fields.size(); from += order.Fields.size()) {
        TanVerfahrenItem item;
        item.SegmentVersion = segment.Version();
        for (qsizetype i = 0; i < std::min(order.Fields.size(), fields.size() - from); ++i) {
            if (!fields[from + i].isEmpty()) {
                Set(item, static_cast<eField>(order.Fields[i]), Unescaped(fields[from + i]));
            }
        }
        if (!item.SecurityFunction.isEmpty()) {
            rows.append(item);
        }
    }
    return rows;
}

// All segments of a code that have fields, the highest version first.
QList<HBCISegment> SegmentsOf(const QList<QByteArray>& parameters, QByteArrayView code, int most)
{
    const QByteArray beginning = code.toByteArray() + ':';
    QList<HBCISegment> segments;
    for (const QByteArray& wire : parameters) {
        if (!wire.startsWith(beginning)) {
            continue;
        }
        const HBCISegment segment = HBCISegment::Read(wire);
        if (segment.Version() >= 1 && segment.Version() <= most) {
            segments.append(segment);
        }
    }
    std::stable_sort(segments.begin(), segments.end(),
                     [](const HBCISegment& a, const HBCISegment& b) { return a.Version() > b.Version(); });
    return segments;
}

constexpr int anyVersion = 99;
constexpr int plainElements = 2; // most orders, fewest signatures; what a segment has of its own comes behind

// The fields of a segment's own, which are one group in its last element; empty when it has none.
QList<QByteArray> OwnFields(const QList<HBCISegment>& segments)
{
    QList<QByteArray> fields;
    if (segments.isEmpty() || segments[0].ElementCount() <= plainElements) {
        return fields;
    }
    const QByteArray group = segments[0].Element(static_cast<int>(segments[0].ElementCount()));
    for (const QByteArrayView field : modFintsSplit::Group(group)) {
        fields.append(field.toByteArray());
    }
    return fields;
}

constexpr int firstTanPair = 5; // in HIPINS: lengths and labels come before

} // namespace

int modBankParameters::Version(const QList<QByteArray>& parameters, QByteArrayView code, int most)
{
    const QList<HBCISegment> segments = SegmentsOf(parameters, code, most);
    return segments.isEmpty() ? 0 : segments[0].Version();
}

bool modBankParameters::Offers(const QList<QByteArray>& parameters, QByteArrayView code, int version)
{
    return Version(parameters, code, version) == version;
}

QList<TanVerfahrenItem> modBankParameters::Methods(const QList<QByteArray>& parameters)
{
    QList<TanVerfahrenItem> methods;
    for (const HBCISegment& segment : SegmentsOf(parameters, "HITANS", newestMethods)) {
        for (const TanVerfahrenItem& row : RowsOf(segment)) {
            const bool isKnown = std::any_of(methods.begin(), methods.end(), [&](const TanVerfahrenItem& item) {
                return item.SecurityFunction == row.SecurityFunction;
            });
            if (!isKnown) {
                methods.append(row);
            }
        }
    }
    return methods;
}

bool modBankParameters::IsOneStepAllowed(const QList<QByteArray>& parameters)
{
    return OwnFields(SegmentsOf(parameters, "HITANS", newestMethods)).value(0) == "J";
}

// An account without a list is restricted by nothing.
bool modBankParameters::IsAllowed(const cBankAccount& account, const QString& order)
{
    return account.Orders.isEmpty() || account.Orders.contains(order);
}

// A bank that names an older version only is asked in the usual one, when it has no camt.
modBankParameters::cStatementOrder modBankParameters::StatementOrder(const QList<QByteArray>& parameters,
                                                                     const cBankAccount& account)
{
    constexpr int usual = 5;
    constexpr int newest = 7;
    const int highest = IsAllowed(account, u"HKKAZ"_s) ? Version(parameters, "HIKAZS", newest) : 0;
    if (highest >= usual) {
        return {.MT940 = Offers(parameters, "HIKAZS", usual) ? usual : highest};
    }
    const bool hasCamt = Offers(parameters, "HICAZS", 1) && IsAllowed(account, u"HKCAZ"_s);
    const QByteArray camt = hasCamt ? CamtFormat(parameters) : QByteArray();
    return {.MT940 = camt.isEmpty() && highest > 0 ? usual : 0, .Camt = camt};
}

int modBankParameters::StatementDays(const QList<QByteArray>& parameters, QByteArrayView code)
{
    return std::max(0, OwnFields(SegmentsOf(parameters, code, anyVersion)).value(0).toInt());
}

QByteArray modBankParameters::CamtFormat(const QList<QByteArray>& parameters)
{
    static const QRegularExpression version(u"camt\\.052\\.(\\d{3})\\.(\\d{2,3})"_s);
    QByteArray highest;
    std::pair<int, int> highestVersion{0, 0};
    for (const QByteArray& field : OwnFields(SegmentsOf(parameters, "HICAZS", 1))) {
        const QRegularExpressionMatch match = version.match(QString::fromLatin1(field));
        const std::pair found(match.captured(1).toInt(), match.captured(2).toInt());
        if (match.hasMatch() && found > highestVersion) {
            highest = field;
            highestVersion = found;
        }
    }
    return highest;
}

bool modBankParameters::IsNationalAccountAllowed(const QList<QByteArray>& parameters)
{
    return OwnFields(SegmentsOf(parameters, "HISPAS", anyVersion)).value(1) != "N";
}

QString modBankParameters::UserIdLabel(const QList<QByteArray>& parameters)
{
    return Unescaped(OwnFields(SegmentsOf(parameters, "HIPINS", anyVersion)).value(3));
}

bool modBankParameters::NeedsTan(const QList<QByteArray>& parameters, QByteArrayView segment)
{
    const QList<QByteArray> fields = OwnFields(SegmentsOf(parameters, "HIPINS", anyVersion));
    for (qsizetype i = firstTanPair; i + 1 < fields.size(); i += 2) {
        if (fields[i] == segment) {
            return fields[i + 1] == "J";
        }
    }
    return false;
}
