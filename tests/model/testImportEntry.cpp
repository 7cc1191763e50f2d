#include "model/cImportEntry.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

cImportEntry Row(qint64 value, const QString& purpose, const QString& beneficiary = {})
{
    cImportEntry row;
    row.ImportValue = value;
    row.ImportPurpose = purpose;
    row.ImportBeneficiary = beneficiary;
    return row;
}

} // namespace

class testImportEntry final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Similar_data() const
    {
        const cTestRows<cImportEntry, cImportEntry, double> row("row", "other", "score");
        const cImportEntry rent = Row(-650, u"Miete Talstrasse 5"_s, u"Tann"_s);
        row("equal expenses", rent, Row(-9, u"Miete Talstrasse 5"_s, u"Tann"_s), 1.025);
        row("without purposes", Row(-1, {}, u"Tann"_s), Row(-2, {}, u"tann"_s), 1.025);
        row("other payee", rent, Row(-650, u"Miete Talstrasse 5"_s, u"Ohlig"_s), 0.525);
        row("the first letters in another case", rent, Row(-1, u"MIETE Talstrasse 5"_s, u"Tann"_s), 1.0);
        row("expense beside income", rent, Row(650, u"Miete Talstrasse 5"_s, u"Tann"_s), 0.0);
        row("nothing beside income", Row(0, u"A"_s), Row(1, u"A"_s), 0.0);
        row("income goes by its amount", Row(100, u"abcd"_s, u"X"_s), Row(80, u"efgh"_s, u"X"_s), 0.4);
        row("the larger one first or last", Row(80, u"abcd"_s), Row(100, u"abcf"_s), 0.775);
    }

    void Similar() const
    {
        QFETCH(const cImportEntry, row);
        QFETCH(const cImportEntry, other);
        QFETCH(const double, score);
        QCOMPARE(row.isSimilar(other), score);
        QCOMPARE(other.isSimilar(row), score);
    }
};

TEST_CLASS(testImportEntry, QCoreApplication)
#include "testImportEntry.moc"
