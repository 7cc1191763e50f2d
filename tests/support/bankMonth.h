#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

// Invented bookings of one account as a bank tells them in its two formats.
struct cBankBooking
{
    QDate Day;
    qint64 Cents = 0; // signed
    QString Name;
    QString Iban; // empty where the bank names none
    QString Purpose;
    QString Kind = QStringLiteral("BUCHUNG");
};

struct cBankMonth
{
    QString Iban = QStringLiteral("DE02100200300001234567");
    qint64 Opening = 10000;
    QList<cBankBooking> Bookings; // by day

    [[nodiscard]] qint64 Closing() const
    {
        qint64 cents = Opening;
        for (const cBankBooking& booking : Bookings) {
            cents += booking.Cents;
        }
        return cents;
    }

    // The part of it from one day to another, with its balances.
    [[nodiscard]] cBankMonth Part(QDate from, QDate to) const
    {
        cBankMonth part{Iban, Opening, {}};
        for (const cBankBooking& booking : Bookings) {
            if (booking.Day < from) {
                part.Opening += booking.Cents;
            } else if (booking.Day <= to) {
                part.Bookings.append(booking);
            }
        }
        return part;
    }

    // Purposes broken after 27 characters, "SVWZ+" among them.
    [[nodiscard]] QString Mt940() const
    {
        if (Bookings.isEmpty()) {
            return {};
        }
        QString text = QStringLiteral(":20:STARTUMS\r\n:25:%1\r\n:28C:0\r\n:60F:%2\r\n")
                           .arg(Iban, Balance(Opening, Bookings.first().Day));
        for (const cBankBooking& booking : Bookings) {
            text += QStringLiteral(":61:%1%2%3NMSCNONREF\r\n:86:166?00%4")
                        .arg(booking.Day.toString(QStringLiteral("yyMMdd")), Mark(booking.Cents),
                             Amount(booking.Cents, u','), booking.Kind);
            text += Subfields(QStringLiteral("SVWZ+") + booking.Purpose, 20)
                + (booking.Iban.isEmpty() ? QString() : QStringLiteral("?30BANKDEFFXXX?31") + booking.Iban)
                + Subfields(booking.Name, 32) + QStringLiteral("\r\n");
        }
        return text + QStringLiteral(":62F:%1\r\n-\r\n").arg(Balance(Closing(), Bookings.last().Day));
    }

    // Purposes as a whole.
    [[nodiscard]] QByteArray Camt() const
    {
        const QDate first = Bookings.isEmpty() ? QDate(2026, 1, 1) : Bookings.first().Day;
        const QDate last = Bookings.isEmpty() ? first : Bookings.last().Day;
        QString text =
            QStringLiteral("<Document xmlns=\"urn:iso:std:iso:20022:tech:xsd:camt.052.001.08\"><BkToCstmrAcctRpt>"
                           "<GrpHdr><MsgId>M</MsgId></GrpHdr><Rpt><Id>1</Id><Acct><Id><IBAN>%1</IBAN></Id></Acct>")
                .arg(Iban)
            + CamtBalance(QStringLiteral("PRCD"), Opening, first.addDays(-1))
            + CamtBalance(QStringLiteral("CLBD"), Closing(), last);
        for (const cBankBooking& booking : Bookings) {
            const QString party = booking.Cents < 0 ? QStringLiteral("Cdtr") : QStringLiteral("Dbtr");
            const QString account =
                QStringLiteral("<%1Acct><Id><IBAN>%2</IBAN></Id></%1Acct>").arg(party, booking.Iban);
            const QString agent =
                QStringLiteral(
                    "<RltdAgts><%1Agt><FinInstnId><BICFI>BANKDEFFXXX</BICFI></FinInstnId></%1Agt></RltdAgts>")
                    .arg(party);
            text += QStringLiteral("<Ntry>") + CamtAmount(booking.Cents)
                + QStringLiteral("<Sts><Cd>BOOK</Cd></Sts><BookgDt><Dt>%1</Dt></BookgDt><ValDt><Dt>%1</Dt></ValDt>"
                                 "<NtryDtls><TxDtls><RltdPties><%2><Pty><Nm>%3</Nm></Pty></%2>")
                      .arg(booking.Day.toString(Qt::ISODate), party, booking.Name.toHtmlEscaped())
                + (booking.Iban.isEmpty() ? QStringLiteral("</RltdPties>")
                                          : account + QStringLiteral("</RltdPties>") + agent)
                + QStringLiteral("<RmtInf><Ustrd>%1</Ustrd></RmtInf></TxDtls></NtryDtls><AddtlNtryInf>%2</AddtlNtryInf>"
                                 "</Ntry>")
                      .arg(booking.Purpose.toHtmlEscaped(), booking.Kind);
        }
        return (text + QStringLiteral("</Rpt></BkToCstmrAcctRpt></Document>")).toUtf8();
    }

    // A salary, what a household pays, and two long purposes.
    [[nodiscard]] static cBankMonth Example()
    {
        const auto day = [](int d) { return QDate(2026, 3, d); };
        const QString shop = QStringLiteral("DE02200505501015871393");
        const QString person = QStringLiteral("DE02300209000106531065");
        return {QStringLiteral("DE02100200300001234567"),
                10000,
                {{day(2), 250000, QStringLiteral("Muster GmbH"), person, QStringLiteral("Gehalt")},
                 {day(3), -80000, QStringLiteral("Hausverwaltung Linde"), person, QStringLiteral("Miete 03")},
                 {day(4), -4599, QStringLiteral("Markt am Eck"), shop, QStringLiteral("Einkauf")},
                 {day(5), -8400, QStringLiteral("Stadtwerke Lindental"), shop,
                  QStringLiteral("Abschlag Strom Zaehlernummer 123456789 Kundennummer 4711")},
                 {day(9), -1250, QStringLiteral("Eiscafe Tann"), shop, QStringLiteral("Danke")},
                 {day(11), -5990, QStringLiteral("Versicherung Nord"), person,
                  QStringLiteral("Beitrag Haftpflicht Vertrag 2026-0815-4711 Dank")},
                 {day(12), 1500, QStringLiteral("Ole Tann"), person, QStringLiteral("Kino")}}};
    }

private:
    [[nodiscard]] static QString Mark(qint64 cents) { return cents < 0 ? QStringLiteral("D") : QStringLiteral("C"); }

    [[nodiscard]] static QString Amount(qint64 cents, QChar separator)
    {
        const qint64 size = qAbs(cents);
        return QString::number(size / 100) + separator + QString::number(size % 100).rightJustified(2, u'0');
    }

    [[nodiscard]] static QString Balance(qint64 cents, QDate day)
    {
        return Mark(cents) + day.toString(QStringLiteral("yyMMdd")) + QStringLiteral("EUR") + Amount(cents, u',');
    }

    [[nodiscard]] static QString Subfields(const QString& text, int number)
    {
        QString fields;
        for (qsizetype at = 0; at < text.size(); at += 27) {
            fields += u'?' + QString::number(number++) + text.mid(at, 27);
        }
        return fields;
    }

    [[nodiscard]] static QString CamtAmount(qint64 cents)
    {
        return QStringLiteral("<Amt Ccy=\"EUR\">%1</Amt><CdtDbtInd>%2</CdtDbtInd>")
            .arg(Amount(cents, u'.'), cents < 0 ? QStringLiteral("DBIT") : QStringLiteral("CRDT"));
    }

    [[nodiscard]] static QString CamtBalance(const QString& kind, qint64 cents, QDate day)
    {
        return QStringLiteral("<Bal><Tp><CdOrPrtry><Cd>%1</Cd></CdOrPrtry></Tp>%2<Dt><Dt>%3</Dt></Dt></Bal>")
            .arg(kind, CamtAmount(cents), day.toString(Qt::ISODate));
    }
};
