#include "household/modStatement.h"

#include "support/bankMonth.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString GermanAmount(qint64 cents)
{
    const qint64 size = qAbs(cents);
    return (cents < 0 ? u"-"_s : QString()) + QString::number(size / 100) + u','
        + QString::number(size % 100).rightJustified(2, u'0');
}

QString Field(QString text)
{
    return u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

QByteArray Csv(const cHousehold::cAccount& account, const cBankMonth& part)
{
    qint64 balance = part.Opening;
    QString text =
        u"Auftragskonto;Buchungstag;Valutadatum;Buchungstext;Verwendungszweck;Beguenstigter/Zahlungspflichtiger;"
        "Kontonummer/IBAN;BIC (SWIFT-Code);Betrag;Waehrung;Saldo nach Buchung\r\n"_s;
    for (const cBankBooking& booking : part.Bookings) {
        balance += booking.Cents;
        const QString day = booking.Day.toString(u"dd.MM.yyyy"_s);
        text += QStringList{Field(account.Iban),
                            day,
                            day,
                            Field(booking.Kind),
                            Field(booking.Purpose),
                            Field(booking.Name),
                            booking.Iban,
                            booking.Iban.isEmpty() ? QString() : u"BANKDEFFXXX"_s,
                            GermanAmount(booking.Cents),
                            u"EUR"_s,
                            GermanAmount(balance)}
                    .join(u';')
            + u"\r\n"_s;
    }
    return text.toUtf8();
}

} // namespace

QByteArray modStatement::Text(const cHousehold::cAccount& account, QDate from, QDate to)
{
    cBankMonth all{account.Iban, account.Opening, {}};
    for (const cHousehold::cBooking& booking : account.Bookings) {
        all.Bookings.append({booking.Day, booking.Cents, booking.Name, booking.Iban, booking.Purpose, booking.Kind});
    }
    const cBankMonth part = all.Part(from, to);
    switch (account.Format) {
    case cHousehold::eFormat::MT940: return part.Mt940().toUtf8();
    case cHousehold::eFormat::Camt: return part.Bookings.isEmpty() ? QByteArray() : part.Camt();
    case cHousehold::eFormat::Csv: return Csv(account, part);
    }
    return {};
}

QString modStatement::Ending(cHousehold::eFormat format)
{
    return format == cHousehold::eFormat::MT940 ? u".sta"_s
        : format == cHousehold::eFormat::Camt   ? u".xml"_s
                                                : u".csv"_s;
}
