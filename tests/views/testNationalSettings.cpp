#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/book/cNationalSettings.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QChar space = u'\u00a0'; // between amount and symbol

struct cMachine
{
    cTestBook Book;
    cNationalSettings Settings{Book.Tools, Book.Configuration, Book.Format};
};

} // namespace

class testNationalSettings final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Preview_data() const
    {
        const cTestRows<QString, QString, QString, QString> row("format", "currency", "amount", "negative");
        row("german", u"de-DE"_s, {}, QString(u"1.234,56"_s + space + u'€'), QString(u"-1.234,56"_s + space + u'€'));
        row("the currency decides", u"de-DE"_s, u"en-GB"_s, u"£1,234.56"_s, u"(£1,234.56)"_s);
        row("repaired form", u"de-DE"_s, u"id-ID"_s, u"1.234,56"_s, u"-1.234,56"_s);
    }

    void Preview() const
    {
        QFETCH(const QString, format);
        QFETCH(const QString, currency);
        cMachine machine;
        const cNationalSettings::cPreview preview = machine.Settings.Preview({u"de"_s, format, currency});
        QTEST(preview.Amount, "amount");
        QTEST(preview.Negative, "negative");
        QCOMPARE(preview.Date, u"15.03.2026"_s);
    }

    void AmountsFollowAtOnce() const
    {
        cMachine machine;
        QCOMPARE(machine.Book.Format.Cents(100), QString(u"1,00"_s + space + u'€'));
        QSignalSpy changed(&machine.Settings, &cNationalSettings::CultureChanged);
        const cNationalSettings::cFields british{{}, u"en-GB"_s, {}};
        QVERIFY(machine.Settings.Save(british));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(machine.Book.Format.Cents(100), u"£1.00"_s);
        QCOMPARE(machine.Settings.Current().Format, british.Format);
    }

    void LanguageIsTheSystemsUntilOneIsChosen() const
    {
        cMachine machine;
        QSignalSpy changed(&machine.Settings, &cNationalSettings::LanguageChanged);
        QVERIFY(machine.Settings.Save({machine.Settings.Current().Language, u"de-AT"_s, {}}));
        QCOMPARE(machine.Book.Settings->Get(modSettingKey::LanguageName), QString());
        QCOMPARE(changed.size(), 0);
        QVERIFY(machine.Settings.Save({u"en"_s, u"de-DE"_s, {}}));
        QCOMPARE(machine.Book.Settings->Get(modSettingKey::LanguageName), u"en"_s);
        QCOMPARE(changed.size(), 1);
        machine.Settings.ChooseLanguage({});
        QCOMPARE(machine.Settings.Current().Language, QString());
        QCOMPARE(changed.size(), 2);
    }

    // Every offered culture is known to the library: an unknown one would silently be German.
    void EveryCultureIsKnown() const
    {
        const QList<cNationalSettings::cOption> options =
            cNationalSettings::Formats() + cNationalSettings::Currencies().mid(1);
        for (const cNationalSettings::cOption& option : options) {
            const QLocale locale(QString(option.Stored).replace(u'-', u'_'));
            QCOMPARE(locale.name().replace(u'_', u'-'), option.Stored);
        }
    }
};

TEST_CLASS(testNationalSettings, QCoreApplication)
#include "testNationalSettings.moc"
