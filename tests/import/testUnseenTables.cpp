#include "base/modAmount.h"
#include "import/read/cReadOptions.h"
#include "import/read/cStatementSource.h"
#include "import/table/cTable.h"
#include "import/table/modTable.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Own account, amount, counterparty with its account and bank, purpose: "1 -12.00 REWE (DE..) Einkauf".
QString Shown(const cImportEntry& entry)
{
    const QString number = QStringList{entry.ImportBeneficiaryAccount, entry.ImportBeneficiaryBLZ}.join(u' ').trimmed();
    const QString account = number.isEmpty() ? QString() : u'(' + number + u')';
    return QStringList{entry.ImportAccount, modAmount::CentsToText(entry.ImportValue), entry.ImportBeneficiary, account,
                       entry.ImportPurpose}
        .join(u' ')
        .simplified();
}

QStringList Shown(const QString& text)
{
    cReadOptions options;
    options.Account = u"1"_s; // where the file does not say
    const cStatementRead read = modTable::Read({u"a.csv"_s, {}, text}, options);
    QStringList lines;
    for (const cImportEntry& entry : read.Entries) {
        lines.append(Shown(entry));
    }
    for (const cSkippedRow& row : read.Skipped) {
        lines.append(u"left out: "_s + QString::number(row.Reason.Line));
    }
    if (read.Doubt) {
        lines.append(u"asks"_s);
    }
    return lines + (read.Refusal.isEmpty() ? QStringList() : QStringList(read.Refusal));
}

} // namespace

// Layouts of nobody's bank: each is read right, or asked about.
class testUnseenTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Each as "# name", its lines, and behind "=> " what is read of them.
    void Reads_data()
    {
        const cTestRows<QString, QStringList> row("text", "read");
        const QByteArray bytes = cTestFile::Bytes(QStringLiteral(TEST_DATA "/unseen/tables.txt"));
        const QStringList tables = QString::fromUtf8(bytes).split(u"\n# "_s).mid(1);
        QVERIFY(!tables.isEmpty());
        for (const QString& table : tables) {
            QStringList lines = table.section(u"\n\n"_s, 0, 0).trimmed().split(u'\n');
            const QString name = lines.takeFirst();
            const QStringList read = lines.filter(u"=> "_s);
            row(qPrintable(name), lines.first(lines.size() - read.size()).join(u'\n'),
                Each(read, [](const QString& line) { return line.mid(3); }));
        }
    }

    void Reads()
    {
        QFETCH(QString, text);
        QTEST(Shown(text), "read");
    }
};

TEST_CLASS(testUnseenTables, QCoreApplication)
#include "testUnseenTables.moc"
