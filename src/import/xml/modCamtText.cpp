#include "import/xml/modCamtText.h"

#include "import/read/modSepaPurpose.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype subfieldSize = 27;
constexpr qsizetype nameSubfields = 2;
constexpr qsizetype purposeSubfields = 10;

QStringList Cut(const QString& text)
{
    QStringList pieces;
    for (qsizetype at = 0; at < text.size(); at += subfieldSize) {
        pieces.append(text.mid(at, subfieldSize));
    }
    return pieces;
}

void AddKeyword(QStringList& subfields, const QString& keyword, const QString& value)
{
    if (!value.isEmpty()) {
        subfields += Cut(keyword + value);
    }
}

// Some banks hand over the subfields of their own MT940 statement as lines.
bool AreSubfields(const QStringList& lines)
{
    return lines.size() > 1
        && std::all_of(lines.begin(), lines.end(), [](const QString& line) { return line.size() <= subfieldSize; });
}

bool BeginsWithKeyword(const QString& text)
{
    const qsizetype plus = text.left(5).indexOf(u'+'); // "BIC+", "SVWZ+"
    return plus >= 3 && modSepaPurpose::Rewrite(text) != text;
}

QString Joined(const QStringList& subfields, qsizetype most)
{
    return subfields.mid(0, most).join(u' ').trimmed();
}

} // namespace

QString modCamtText::Name(const QString& name)
{
    return Joined(Cut(name), nameSubfields);
}

QString modCamtText::Purpose(const cPurpose& purpose)
{
    if (AreSubfields(purpose.Lines)) {
        return modSepaPurpose::Rewrite(Joined(purpose.Lines, purposeSubfields));
    }
    const QString remittance = purpose.Lines.join(u' ').trimmed();
    if (BeginsWithKeyword(remittance)) {
        return modSepaPurpose::Rewrite(remittance);
    }
    QStringList subfields;
    AddKeyword(subfields, u"EREF+"_s, purpose.EndToEnd);
    AddKeyword(subfields, u"MREF+"_s, purpose.Mandate);
    AddKeyword(subfields, u"CRED+"_s, purpose.Creditor);
    if (subfields.isEmpty() && purpose.UltimateOriginator.isEmpty()) {
        return Joined(Cut(remittance), purposeSubfields); // no SEPA payment: a plain text without keywords
    }
    AddKeyword(subfields, u"SVWZ+"_s, remittance);
    AddKeyword(subfields, u"ABWA+"_s, purpose.UltimateOriginator);
    return modSepaPurpose::Rewrite(Joined(subfields, purposeSubfields));
}
