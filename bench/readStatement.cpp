// A statement file read alone, without database: milliseconds and peak memory, beside the floor of reading the file and
// counting its lines.
//   readStatement FILE           reads it as the program would
//   readStatement --floor FILE   the floor
//   readStatement --write FOLDER [DAYS]  writes 100,000 transactions of 700 or so many days in each format;
//                                        bench/reading.sh and bench/fetching.sh do all of it

#include "import/stage/modStatementFormat.h"

#include <QByteArrayList>
#include <QDate>
#include <QElapsedTimer>
#include <QFile>

#include <sys/resource.h>

#include <array>
#include <cstdio>

namespace {

constexpr int rows = 100000;

// The last day is always the same one.
QByteArray Day(int row, int days, const QString& format)
{
    const qint64 before = qint64{rows - 1 - row} * days / rows;
    return QDate(2025, 11, 30).addDays(-before).toString(format).toUtf8();
}

// "%1" to "%9" of the pattern: numbers, days and texts of the row.
QByteArray Transaction(QByteArray pattern, int row, int days)
{
    static const QByteArrayList names{"REWE Markt",         "Linden-Apotheke", "B\u00E4ckerei Kornblume",
                                      "Stadtwerke Talheim", "Jana Berger",     "Trattoria Sole",
                                      "Turnverein Talheim", "ARAL Tankstelle", "Kino am Markt"};
    const QByteArray number = QByteArray::number(row);
    return pattern.replace("%1", number.rightJustified(9, '0'))
        .replace("%2", QByteArray::number(1 + row % 90))
        .replace("%3", names.at(row % names.size()))
        .replace("%4", QByteArray::number(100 + row % 200).prepend("DE12999000104820000"))
        .replace("%5", Day(row, days, QStringLiteral("yyMMdd")))
        .replace("%6", Day(row, days, QStringLiteral("dd.MM.yyyy")))
        .replace("%7", Day(row, days, QStringLiteral("yyyyMMdd")))
        .replace("%8", Day(row, days, QStringLiteral("yyyy-MM-dd")));
}

struct cSample
{
    const char* Name;
    const char* Head;
    const char* Row;
    const char* Tail;
};

constexpr std::array samples = {
    cSample{"a.sta", ":20:STARTUMS\r\n:25:99900010/4711000815\r\n:60F:C231231EUR0,00\r\n",
            ":61:%5D%2,25N024NONREF\r\n:86:106?00KARTENZAHLUNG?109310?20EREF+%1X?21SVWZ+Beleg %1 vielen D?22ank fuer "
            "Ihren Einkauf?30DEMODE77XXX\r\n?31%4?32%3?34011\r\n",
            ":62F:C251231EUR1,00\r\n-\r\n"},
    cSample{"a.csv",
            "Buchungstag;Valuta;Auftraggeber/Zahlungsempf\u00E4nger;IBAN;BIC;Buchungstext;Verwendungszweck;Betrag;"
            "W\u00E4hrung\r\n",
            "%6;%6;\"%3\";%4;DEMODE77XXX;Kartenzahlung;\"EREF+%1X SVWZ+Beleg %1 vielen Dank fuer Ihren "
            "Einkauf\";-%2,25;EUR\r\n",
            ""},
    cSample{"a.ofx",
            "OFXHEADER:100\r\nDATA:OFXSGML\r\nVERSION:102\r\nENCODING:UTF-8\r\n\r\n<OFX>\r\n<BANKMSGSRSV1>\r\n"
            "<STMTTRNRS>\r\n<STMTRS>\r\n<CURDEF>EUR\r\n<BANKACCTFROM>\r\n<ACCTID>4711000815\r\n</BANKACCTFROM>\r\n"
            "<BANKTRANLIST>\r\n",
            "<STMTTRN>\r\n<TRNTYPE>DEBIT\r\n<DTPOSTED>%7120000\r\n<TRNAMT>-%2.25\r\n<FITID>%1\r\n<NAME>%3\r\n<MEMO>"
            "Beleg %1 vielen Dank fuer Ihren Einkauf & mehr\r\n</STMTTRN>\r\n",
            "</BANKTRANLIST>\r\n</STMTRS>\r\n</STMTTRNRS>\r\n</BANKMSGSRSV1>\r\n</OFX>\r\n"},
    cSample{
        "a.xml",
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Document><BkToCstmrStmt><Stmt><Acct><Id><IBAN>"
        "DE12999000104711000815</IBAN></Id></Acct>\n",
        "<Ntry><Amt Ccy=\"EUR\">%2.25</Amt><CdtDbtInd>DBIT</CdtDbtInd><Sts><Cd>BOOK</Cd></Sts><BookgDt><Dt>%8</Dt>"
        "</BookgDt><ValDt><Dt>%8</Dt></ValDt><AcctSvcrRef>%1</AcctSvcrRef><BkTxCd><Domn><Cd>PMNT</Cd><Fmly><Cd>CCRD"
        "</Cd><SubFmlyCd>POSD</SubFmlyCd></Fmly></Domn></BkTxCd><NtryDtls><TxDtls><Refs><EndToEndId>%1X</EndToEndId>"
        "</Refs><Amt Ccy=\"EUR\">%2.25</Amt><RltdPties><Cdtr><Pty><Nm>%3</Nm></Pty></Cdtr><CdtrAcct><Id><IBAN>%4"
        "</IBAN></Id></CdtrAcct></RltdPties><RltdAgts><CdtrAgt><FinInstnId><BICFI>DEMODE77XXX</BICFI></FinInstnId>"
        "</CdtrAgt></RltdAgts><RmtInf><Ustrd>Beleg %1 vielen Dank fuer Ihren Einkauf</Ustrd></RmtInf></TxDtls>"
        "</NtryDtls><AddtlNtryInf>Kartenzahlung</AddtlNtryInf></Ntry>\n",
        "</Stmt></BkToCstmrStmt></Document>\n"},
};

int Write(const QString& folder, int days)
{
    for (const cSample& sample : samples) {
        QFile file(folder + QStringLiteral("/%1").arg(QString::fromLatin1(sample.Name)));
        if (!file.open(QIODevice::WriteOnly)) {
            return 1;
        }
        file.write(sample.Head);
        for (int row = 0; row < rows; ++row) {
            file.write(Transaction(QByteArray(sample.Row), row, days));
        }
        file.write(sample.Tail);
    }
    return 0;
}

void Print(const char* what, qint64 count, const QElapsedTimer& timer)
{
    const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%-12s %9s %8.1f ms %7.1f MB\n", what, qUtf8Printable(QString::number(count)), milliseconds,
                static_cast<double>(usage.ru_maxrss) / 1024.0);
}

int Floor(QFile& file, const QElapsedTimer& timer)
{
    Print("floor: lines", file.readAll().count('\n'), timer);
    return 0;
}

int Read(QFile& file, const QElapsedTimer& timer)
{
    cReadOptions options;
    options.Account = QStringLiteral("1234567");
    const cStatementSource source = modStatementFormat::Source(file.fileName(), file.readAll());
    const modStatementFormat::cReader reader = modStatementFormat::Reader(modStatementFormat::Detect(source));
    if (reader == nullptr) {
        return 1;
    }
    const cStatementRead read = reader(source, options);
    Print(read.Refusal.isEmpty() ? "transactions" : "refused", read.Entries.size(), timer);
    if (!read.Refusal.isEmpty()) {
        std::printf("%s\n", qUtf8Printable(read.Refusal));
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QElapsedTimer timer;
    timer.start();
    if (argc >= 3 && qstrcmp(argv[1], "--write") == 0) {
        constexpr int usualDays = 700;
        return Write(QString::fromLocal8Bit(argv[2]), argc > 3 ? QByteArray(argv[3]).toInt() : usualDays);
    }
    const bool isFloor = argc == 3 && qstrcmp(argv[1], "--floor") == 0;
    QFile file(argc < 2 ? QString() : QString::fromLocal8Bit(argv[argc - 1]));
    if (!file.open(QIODevice::ReadOnly)) {
        std::fputs("no file\n", stderr);
        return 2;
    }
    return isFloor ? Floor(file, timer) : Read(file, timer);
}
