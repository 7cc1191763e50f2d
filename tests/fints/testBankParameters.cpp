#include "fints/modBankParameters.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray row6 = "912:2:HHD1.4OPT:HHDOPT1:1.4:chipTAN?:optisch:6:1:Challenge:999:N:1:N:0:2:N:J:01:2:J:9";

QByteArray Methods(int version, const QByteArray& rows)
{
    return "HITANS:9:" + QByteArray::number(version) + ":4+1+1+0+J:N:0:" + rows;
}

} // namespace

class testBankParameters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Two rows of each version: only with the right number of fields does the second begin in its place. It is short.
    void ReadsProceduresOfAllVersions_data()
    {
        const cTestRows<int, QByteArray> row("version", "rows");
        const QByteArray end = ":920:2:smsTAN";
        row("1", 1, "0:912:2:HHD:Karte:6:1:Label:3:1:J:J" + end);
        row("2", 2, "912:2:HHD:Karte:6:1:Label:3:1:J:2:0:N:J:J" + end);
        row("3", 3, "912:2:HHD:Karte:6:1:Label:3:1:J:2:0:N:J:J:01:2:5" + end);
        row("4", 4, "912:2:HHD:ZKA:1.4:Karte:6:1:Label:3:1:J:2:0:N:N:J:J:N:01:2:5" + end);
        row("5", 5, "912:2:HHD:ZKA:1.4:Karte:6:1:Label:3:1:J:2:0:N:0:0:J:N:01:2:5" + end);
        row("6", 6, "912:2:HHD:ZKA:1.4:Karte:6:1:Label:3:J:2:N:0:0:J:N:01:2:J:5" + end);
        row("7", 7, "912:2:HHD:ZKA:1.4:Karte:6:1:Label:3:J:2:N:0:0:J:N:01:2:J:5:9:3:2:J:N" + end);
    }
    void ReadsProceduresOfAllVersions()
    {
        QFETCH(int, version);
        QFETCH(QByteArray, rows);
        const QList<TanVerfahrenItem> methods = modBankParameters::Methods({Methods(version, rows)});
        QCOMPARE(methods.size(), 2);
        const TanVerfahrenItem& item = methods[0];
        QCOMPARE(item.SegmentVersion, version);
        QCOMPARE(item.SecurityFunction, u"912"_s);
        QCOMPARE(item.TechnicalIdentification, u"HHD"_s);
        QCOMPARE(item.Name, u"Karte"_s);
        QCOMPARE(item.TanLength, 6);
        QCOMPARE(item.ChallengeLabel, u"Label"_s);
        QCOMPARE(item.ChallengeLength, 3);
        QCOMPARE(item.ZkaVersion, version >= 4 ? u"1.4"_s : QString());
        QCOMPARE(item.InitMode, version >= 3 ? u"01"_s : QString());
        QCOMPARE(item.MediaNameRequired, version >= 3 ? u"2"_s : u"0"_s);
        QCOMPARE(item.ActiveMediaCount, version >= 3 ? 5 : 0);
        QCOMPARE(item.IsChallengeClassRequired, version >= 2);
        QCOMPARE(item.IsChallengeAmountRequired, version >= 2 && version <= 4);
        QCOMPARE(item.IsHhdUcRequired, version >= 6);
        QCOMPARE(item.IsAutomaticAllowed, version < 7);
        QCOMPARE(item.WaitBeforeFirst, version == 7 ? 3 : 0);
        QCOMPARE(methods[1].SecurityFunction, u"920"_s);
        QCOMPARE(methods[1].TechnicalIdentification, u"smsTAN"_s);
    }

    void ApprovalInTheAppHasNoLength()
    {
        const QList<TanVerfahrenItem> methods = modBankParameters::Methods(
            {Methods(7, "946:2:App:Decoupled::Freigabe:::Freigabe:99:N:1:N:0:0:N:N:00:0:N::180:5:2:N:J")});
        QCOMPARE(methods.size(), 1);
        QCOMPARE(methods[0].TanLength, 0);
        QVERIFY(methods[0].IsNumber);
        QCOMPARE(methods[0].MostPolls, 180);
        QCOMPARE(methods[0].WaitBeforeFirst, 5);
        QCOMPARE(methods[0].WaitBeforeNext, 2);
        QVERIFY(!methods[0].IsManualAllowed);
        QVERIFY(methods[0].IsAutomaticAllowed);
    }

    void TheHighestVersionCounts()
    {
        const QList<TanVerfahrenItem> methods =
            modBankParameters::Methods({Methods(3, "912:2:alt:alt:6:1:L:3:1:J:2:0:N:N:N:00:0:1:920:2:SMS"),
                                        Methods(6, row6), Methods(8, "999:1:x")});
        QCOMPARE(methods.size(), 2);
        QCOMPARE(methods[0].SegmentVersion, 6);
        QCOMPARE(methods[0].Name, u"chipTAN:optisch"_s);
        QCOMPARE(methods[1].SecurityFunction, u"920"_s);
        QCOMPARE(methods[1].SegmentVersion, 3);
    }

    void KnowsWhatABankOffers()
    {
        const QList<QByteArray> bank{
            "HIKAZS:8:7:3+1+1+1+90:J:N",
            "HIKAZS:12:5:3+1+1+360:J:N",
            "HISALS:9:5:3+1+1",
            "HICAZS:87:1:4+1+1+1+450:N:N:urn?:iso?:camt.052.001.02:urn?:iso?:camt.052.001.08:urn?:iso?:camt.053.001.08",
            "HISPAS:142:1:4+1+1+1+J:N:N:sepade.pain",
            Methods(6, row6),
            "HIPINS:166:1:4+1+1+0+5:38:6:Anmelde?:Name:Kunde:HKKAZ:J:HKSAL:N"};
        using namespace modBankParameters;
        QCOMPARE(Version(bank, "HIKAZS", 7), 7);
        QCOMPARE(Version(bank, "HIKAZS", 6), 5);
        QCOMPARE(Version(bank, "HICSAS", 7), 0);
        QVERIFY(Offers(bank, "HIKAZS", 5));
        QVERIFY(!Offers(bank, "HIKAZS", 6));
        QCOMPARE(StatementDays(bank, "HIKAZS"), 90);
        QCOMPARE(StatementDays(bank, "HICAZS"), 450);
        QCOMPARE(StatementDays(bank, "HISALS"), 0);
        QCOMPARE(CamtFormat(bank), QByteArray("urn?:iso?:camt.052.001.08"));
        QVERIFY(!IsNationalAccountAllowed(bank));
        QVERIFY(IsOneStepAllowed(bank));
        QCOMPARE(UserIdLabel(bank), u"Anmelde:Name"_s);
        QVERIFY(NeedsTan(bank, "HKKAZ"));
        QVERIFY(!NeedsTan(bank, "HKSAL"));
        QVERIFY(!NeedsTan(bank, "HKCAZ"));
        QVERIFY(IsNationalAccountAllowed({}));
        QVERIFY(!IsOneStepAllowed({}));
        QVERIFY(CamtFormat({}).isEmpty());
    }
};

TEST_CLASS(testBankParameters, QCoreApplication)
#include "testBankParameters.moc"
