#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/book/cNationalSettings.h"
#include "windows/book/frmLaender.h"
#include "windows/widget/cDayEdit.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cMachine
{
    cTestBook Book;
    cNationalSettings Settings{Book.Tools, Book.Configuration, Book.Format};
};

void Choose(QComboBox& combo, const QString& stored)
{
    combo.setCurrentIndex(combo.findData(stored));
}

} // namespace

class testFrmLaender final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PreviewFollowsTheChoice()
    {
        cMachine machine;
        frmLaender window(machine.Settings);
        window.show();
        const QList<QComboBox*> combos = window.findChildren<QComboBox*>();
        QCOMPARE(combos.size(), 3);
        auto* amount = window.findChild<QLabel*>(u"amount"_s);
        auto* date = window.findChild<QLabel*>(u"date"_s);
        const QDate today = machine.Book.Clock.Today();
        Choose(*combos[1], u"en-IE"_s);
        QCOMPARE(amount->text(), u"€1,234.56"_s);
        QCOMPARE(date->text(), today.toString(u"dd/MM/yyyy"_s));
        Choose(*combos[2], u"en-US"_s);
        QCOMPARE(amount->text(), u"$1,234.56"_s);
        QCOMPARE(date->text(), today.toString(u"dd/MM/yyyy"_s));
        QVERIFY(machine.Book.Settings->Get(modSettingKey::LanguageCurrency).isEmpty()); // nothing is stored yet
        QTest::keyClick(&window, Qt::Key_Return);
        QVERIFY(!window.isVisible());
        QCOMPARE(machine.Book.Settings->Get(modSettingKey::LanguageCurrency), u"en-US"_s);
        QCOMPARE(machine.Book.Settings->Get(modSettingKey::LanguageFormat), u"en-IE"_s);
    }

    // What another program has stored is not lost when something else is changed.
    void UnknownCultureStays()
    {
        cMachine machine;
        QVERIFY(machine.Book.Settings->Set(modSettingKey::LanguageFormat, u"fr_FR"_s));
        frmLaender window(machine.Settings);
        window.show();
        QTest::keyClick(&window, Qt::Key_Return);
        QCOMPARE(machine.Book.Settings->Get(modSettingKey::LanguageFormat), u"fr-FR"_s);
    }

    // A field that stood open while another form was chosen.
    void DayFieldsKeepTheirDay()
    {
        cMachine machine;
        cDayEdit edit(QDate(2026, 3, 15));
        const QDate day(2026, 4, 3);
        const auto choose = [&machine](const QString& format) {
            return machine.Settings.Save({.Language = u"de"_s, .Format = format, .Currency = {}});
        };
        QVERIFY(choose(u"en-GB"_s));
        edit.SetDay(day);
        QCOMPARE(edit.text(), u"03/04/2026"_s);
        QVERIFY(choose(u"en-US"_s));
        QCOMPARE(edit.Day(), day);
        edit.setText(u"3/4"_s); // typed now
        QCOMPARE(edit.Day(), QDate(2026, 3, 4));
        QVERIFY(choose(u"de-DE"_s));
        edit.SetDay(day);
        QCOMPARE(edit.text(), u"03.04.2026"_s);
    }
};

TEST_CLASS(testFrmLaender, QApplication)
#include "testFrmLaender.moc"
