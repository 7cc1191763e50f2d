#include "import/xml/modCamtText.h"

#include "import/read/modSepaPurpose.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype subfieldSize = 27; // of MT940

void AddKeyword(QStringList& parts, const QString& keyword, const QString& value)
{
    if (!value.isEmpty()) {
        parts.append(keyword + value);
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

} // namespace

QString modCamtText::Purpose(const cPurpose& purpose)
{
    if (AreSubfields(purpose.Lines)) {
        return modSepaPurpose::Rewrite(purpose.Lines.join(u' '));
    }
    const QString remittance = purpose.Lines.join(u' ').trimmed();
    if (BeginsWithKeyword(remittance)) {
        return modSepaPurpose::Rewrite(remittance);
    }
    QStringList parts;
    AddKeyword(parts, u"EREF+"_s, purpose.EndToEnd);
    AddKeyword(parts, u"MREF+"_s, purpose.Mandate);
    AddKeyword(parts, u"CRED+"_s, purpose.Creditor);
    if (parts.isEmpty() && purpose.UltimateOriginator.isEmpty()) {
        return remittance; // no SEPA payment: a plain text without keywords
    }
    AddKeyword(parts, u"SVWZ+"_s, remittance);
    AddKeyword(parts, u"ABWA+"_s, purpose.UltimateOriginator);
    return modSepaPurpose::Rewrite(parts.join(u' '));
}
