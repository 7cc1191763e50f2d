#include "import/stage/modRowDigest.h"

#include "base/modDate.h"

#include <QCryptographicHash>
#include <QStringList>

namespace {

constexpr qsizetype digestSize = 16; // of hexadecimal digits: far more than a few hundred rows need

QString WithoutBlanks(QString text)
{
    return text.removeIf([](QChar c) { return c.isSpace(); });
}

} // namespace

QString modRowDigest::Of(const cImportEntry& row, int number)
{
    QStringList fields{modDate::ToIso(row.ImportDate),       QString::number(row.ImportValue),
                       row.ImportBeneficiaryAccount,         row.ImportBeneficiaryBLZ,
                       WithoutBlanks(row.ImportBeneficiary), WithoutBlanks(row.ImportPurpose)};
    if (number > 1) {
        fields.append(QString::number(number)); // books know the first one without it
    }
    const QByteArray digest =
        QCryptographicHash::hash(fields.join(u'\n').toUtf8(), QCryptographicHash::Sha1).toHex().left(digestSize);
    return QString::fromLatin1(digest);
}
