#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/statement/cSeriesCheck.h"

#include <QTranslator>

#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

class cOtherLanguage final : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* /*context*/, const char* text, const char* /*what*/,
                                    int /*count*/) const override
    {
        return qstrcmp(text, "Laut Kontoauszug") == 0 ? u"According to the bank"_s : QString();
    }
};

} // namespace

class testSeriesCheck final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The statement ends with January; that one of its rows is valued later says nothing about the rent of February.
    void LateValueDateCoversNoDay() const
    {
        cTestBook book;
        book.Settings->Set(modSettingKey::BankNumber.Of(u"111"_s), u"Girokonto"_s);
        const int rent = book.Spend(QDate(2026, 1, 1), 65000, u"Miete"_s, u"Monatlich"_s).ID;
        book.Stage(u"111"_s, QDate(2026, 1, 2), -65000, {}, rent);
        book.Stage(u"111"_s, QDate(2026, 2, 1), -1000, {}, -1);
        cImportHiveCache hive(book.Data);
        const cAccountMap accounts(book.Data, *book.Settings);
        QCOMPARE(cSeriesCheck(book.Tools, hive, accounts).Find().size(), 1);
        book.Settings->Set(modSettingKey::BankBalances.Of(u"111"_s), u"2026-01-31=5000=-1000=1"_s);
        QVERIFY(cSeriesCheck(book.Tools, hive, accounts).Find().isEmpty());
    }

    // The rent of January stands in the book beside the series, and its second row stays open for ever.
    void ADoublePaysNothing() const
    {
        cTestBook book;
        book.Settings->Set(modSettingKey::BankNumber.Of(u"111"_s), u"Girokonto"_s);
        const int rent = book.Spend(QDate(2025, 12, 1), 65000, u"Miete"_s, u"Monatlich"_s).ID;
        const QDate january(2026, 1, 1);
        const int beside = book.Spend(january, 65000, u"Miete"_s).ID;
        book.Stage(u"111"_s, QDate(2025, 12, 1), -65000, {}, rent);
        book.Stage(u"111"_s, QDate(2026, 2, 1), -65000, {}, rent);
        book.Stage(u"111"_s, january, -65000, u"Tann"_s, beside);
        book.Stage(u"111"_s, january, -65000, u"Tann GmbH"_s, -1);
        cImportHiveCache hive(book.Data);
        const cAccountMap accounts(book.Data, *book.Settings);
        QCOMPARE(cSeriesCheck(book.Tools, hive, accounts).Find().size(), 1);
    }

    // Statements of months ago, read and looked through one by one: what was put off behind today is not forgotten, not
    // even in another language.
    void WhatWasPutOffIsStillMissing() const
    {
        cTestBook book;
        book.Settings->Set(modSettingKey::BankNumber.Of(u"111"_s), u"Girokonto"_s);
        const int rent = book.Spend(QDate(2025, 10, 1), 65000, u"Miete"_s, u"Monatlich"_s).ID;
        const cAccountMap accounts(book.Data, *book.Settings);
        book.Stage(u"111"_s, QDate(2025, 10, 1), -65000, {}, rent);
        cOtherLanguage other; // leaves the program when it goes
        for (const QDate end : {QDate(2025, 11, 20), QDate(2025, 12, 20)}) {
            book.Stage(u"111"_s, end, -1000, {}, -1);
            cImportHiveCache hive(book.Data);
            book.User.Ticks = {QList<int>{0}};
            QCOMPARE(cSeriesCheck(book.Tools, hive, accounts).Ask({}).size(), 1);
            QCoreApplication::installTranslator(&other);
        }
        QCOMPARE(book.Data.LoadEntry(rent).value_or(cEntryItem()).EntryDateEnd, QDate(2025, 10, 1));
        QVERIFY(book.Data.GetEntryMods(rent).isEmpty());
    }

    void FindsWhatTheBankDoesNotPay_data() const
    {
        // paid: days of rows that belong to the series; occurrences: that count afterwards, up to May 2026
        const cTestRows<QDate, QString, QString, QStringList, QString> row("start", "paid", "others", "lines",
                                                                           "occurrences");
        const QDate start(2025, 11, 1);
        row("all is there", start, u"2025-11-01 2025-12-01 2026-01-02"_s, u"2025-11-01 2026-01-31"_s, {},
            u"2025-11-01 2025-12-01 2026-01-01 2026-02-01 2026-03-01 2026-04-01 2026-05-01"_s);
        row("ended", start, u"2025-11-01 2025-12-03"_s, u"2025-11-01 2026-02-20"_s,
            {u"'Miete' (Girokonto): zuletzt gebucht am 03.12.2025; endet am 01.12.2025"_s}, u"2025-11-01 2025-12-01"_s);
        row("late", start, u"2025-11-01 2025-12-01 2026-01-02"_s, u"2025-11-01 2026-02-05"_s,
            {u"'Miete' (Girokonto), fällig am 01.02.2026: noch nicht gebucht; wird auf den "
             "16.03.2026 verschoben"_s},
            u"2025-11-01 2025-12-01 2026-01-01 2026-03-01 2026-03-16 2026-04-01 2026-05-01"_s);
        row("left out in between", start, u"2025-11-01 2026-01-01 2026-02-01"_s, u"2026-02-05"_s,
            {u"'Miete' (Girokonto), fällig am 01.12.2025: nicht gebucht; wird ausgelassen"_s},
            u"2025-11-01 2026-01-01 2026-02-01 2026-03-01 2026-04-01 2026-05-01"_s);
        row("never paid", start, {}, u"2025-10-15 2026-02-20"_s,
            {u"'Miete' (Girokonto): von der Bank nie gebucht; endet am 01.11.2025"_s}, {});
        row("never paid from some day on", start, {}, u"2025-12-15 2026-03-20"_s,
            {u"'Miete' (Girokonto): von der Bank nie gebucht; endet am 31.12.2025"_s}, u"2025-11-01 2025-12-01"_s);
        row("statements of years ago", QDate(2024, 1, 1), u"2024-01-01 2024-02-01"_s, u"2024-02-20"_s,
            {u"'Miete' (Girokonto): zuletzt gebucht am 01.02.2024; endet am 01.02.2024"_s}, u"2024-01-01 2024-02-01"_s);
        row("days without statements say nothing", start, {}, u"2025-10-15 2025-10-31"_s, {},
            u"2025-11-01 2025-12-01 2026-01-01 2026-02-01 2026-03-01 2026-04-01 2026-05-01"_s);
    }

    void FindsWhatTheBankDoesNotPay() const
    {
        QFETCH(const QDate, start);
        QFETCH(const QString, paid);
        QFETCH(const QString, others);
        QFETCH(const QStringList, lines);
        cTestBook book;
        book.Settings->Set(modSettingKey::BankNumber.Of(u"111"_s), u"Girokonto"_s);
        const int rent = book.Spend(start, 65000, u"Miete"_s, u"Monatlich"_s).ID;
        const auto stage = [&](const QString& days, int entry, qint64 cents) {
            for (const QString& day : days.split(u' ', Qt::SkipEmptyParts)) {
                book.Stage(u"111"_s, modDate::FromIso(day), cents, {}, entry);
            }
        };
        stage(paid, rent, -65000);
        stage(others, -1, -1000);
        cImportHiveCache hive(book.Data);
        const cAccountMap accounts(book.Data, *book.Settings);
        cSeriesCheck check(book.Tools, hive, accounts);
        QList<int> all(lines.size());
        std::iota(all.begin(), all.end(), 0);
        book.User.Ticks.assign(lines.isEmpty() ? 0 : 1, all);
        QCOMPARE(check.Ask({}), lines);
        QVERIFY(check.IsClean()); // a second look finds nothing more
        QStringList days;
        cEntryQuery query;
        query.End = QDate(2026, 5, 31);
        for (const cEntryItem& entry : book.Data.GetEntries(query)) {
            days += entry.EntryValue > 0 ? QStringList(modDate::ToIso(entry.EntryDate)) : QStringList();
        }
        QTEST(days.join(u' '), "occurrences");
        if (!lines.isEmpty()) {
            QCOMPARE(book.Data.Journal().UndoName(), u"Serien geprüft"_s);
            QVERIFY(book.Data.Journal().Undo());
        }
        // What an open row may pay is left alone.
        stage(u"2025-12-02 2026-01-03 2026-02-02 2024-03-01"_s, -1, -65500);
        for (const cSeriesCheck::cFinding& finding : check.Find()) {
            QVERIFY(finding.IsLate);
        }
    }
};

TEST_CLASS(testSeriesCheck, QCoreApplication)
#include "testSeriesCheck.moc"
