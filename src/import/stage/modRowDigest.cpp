#include "import/stage/modRowDigest.h"

#include "base/modDate.h"

#include <QCryptographicHash>
#include <QtEndian>
#include <QVarLengthArray>

quint64 modRowDigest::Value(const cImportEntry& row, int number, eBank bank)
{
    QVarLengthArray<char16_t, 512> fields;
    const auto add = [&](const QString& field, bool isExact) {
        for (const QChar c : field) {
            if (isExact || !c.isSpace()) {
                fields.append(c.unicode());
            }
        }
        fields.append(u'\n');
    };
    add(modDate::ToIso(row.ImportDate), true);
    add(QString::number(row.ImportValue), true);
    add(row.ImportBeneficiaryAccount, true);
    add(bank == eBank::Counts ? row.ImportBeneficiaryBLZ : QString(), true);
    add(row.ImportBeneficiary, false);
    add(row.ImportPurpose, false);
    if (number > 1) {
        add(QString::number(number), true); // books know the first one without it
    }
    const QByteArray text = QStringView(fields.constData(), fields.size() - 1).toUtf8();
    return qFromBigEndian<quint64>(QCryptographicHash::hash(text, QCryptographicHash::Sha1).constData());
}

QString modRowDigest::Of(const cImportEntry& row, int number, eBank bank)
{
    return QString::number(Value(row, number, bank), 16).rightJustified(16, u'0');
}
