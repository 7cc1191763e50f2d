#include "core/cAmountFormat.h"
#include "core/cConfiguration.h"
#include "support/cTestClass.h"
#include "support/fakes.h"

#include <QLocale>
#include <QRandomGenerator>

using namespace Qt::Literals::StringLiterals;

namespace {

// Answers with a fixed text, in which "{0}" is the number it was given.
class cFixedFormatter final : public cCultureFormatter
{
public:
    explicit cFixedFormatter(QString text) : m_text(std::move(text)) {}
    [[nodiscard]] QString Currency(double amount) const override
    {
        return QString(m_text).replace(u"{0}"_s, QString::number(amount));
    }

private:
    QString m_text;
};

struct cFormat
{
    explicit cFormat(const QString& culture = {})
    {
        Registry.Write(cConfiguration::RegistryKey, u"LanguageCurrency"_s, culture);
    }

    cFakeRegistry Registry;
    cConfiguration Configuration{Registry};
    cAmountFormat Format{Configuration};
};

} // namespace

class testAmountFormat final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() const { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }

    void Cultures_data() const
    {
        const cTestRows<QString, double, bool, QString> row("culture", "amount", "isNegative", "text");
        row("none chosen", {}, 1234.5, false, u"1.234,50\u00A0€"_s);
        row("unknown culture", u"xx-YY"_s, 1234.5, false, u"1.234,50\u00A0€"_s);
        row("name with hyphen", u"en-GB"_s, 1234.5, false, u"£1,234.50"_s);
        row("name with underscore", u"en_GB"_s, 1234.5, false, u"£1,234.50"_s);
        row("the sign is not the amount's", {}, -1234.5, false, u"1.234,50\u00A0€"_s);
        row("negative asked for", {}, 12.0, true, u"-12,00\u00A0€"_s);
        row("negative amount, negative asked for", {}, -12.0, true, u"-12,00\u00A0€"_s);
        row("half a cent", {}, 1.005, false, u"1,01\u00A0€"_s);
        row("nothing has no sign", {}, 0.004, true, u"0,00\u00A0€"_s);
        row("rupiah, whole", u"id-ID"_s, 15000.0, false, u"15.000"_s);
        row("rupiah with decimals", u"id-ID"_s, 1234.5, false, u"1.234,50"_s);
    }

    void Cultures() const
    {
        QFETCH(const QString, culture);
        QFETCH(const double, amount);
        QFETCH(bool, isNegative);
        cFormat format(culture);
        QTEST(format.Format.FormatAmount(amount, isNegative), "text");
    }

    void Repairs_data() const
    {
        const cTestRows<QString, bool, QString> row("formatted", "isStripped", "text");
        row("Swiss minus", u"SFr.-12.00"_s, false, u"SFr. -12.00"_s);
        row("rupiah below zero", u"-Rp1.000,00"_s, false, u"-1.000"_s);
        row("rupiah sign elsewhere", u"5 Rp,00"_s, false, u"5 Rp,00"_s);
        row("markup kept", u"<1'000\">"_s, false, u"<1'000\">"_s);
        row("markup stripped", u"<1'000\">"_s, true, u"1000"_s);
    }

    void Repairs() const
    {
        QFETCH(const QString, formatted);
        QFETCH(const bool, isStripped);
        cFormat format;
        cAmountFormat repaired(format.Configuration,
                               [&](const QString&) { return std::make_unique<cFixedFormatter>(formatted); });
        bool isNegative = false;
        QTEST(repaired.FormatAmount(1.0, isNegative, {.StripMarkup = isStripped}), "text");
    }

    void SignFromText() const
    {
        cFormat format;
        bool isNegative = false;
        QCOMPARE(format.Format.FormatAmount(u"-12,50"_s, isNegative, {.SignFromText = true}), u"-12,50\u00A0€"_s);
        QVERIFY(isNegative);
        QCOMPARE(format.Format.FormatAmount(u"12,50"_s, isNegative, {.SignFromText = true}), u"-12,50\u00A0€"_s);
        QCOMPARE(format.Format.Cents(-5), u"-0,05\u00A0€"_s);
    }

    void PlainIgnoresTheCulture() const
    {
        cFormat format(u"id-ID"_s);
        bool isNegative = false;
        QCOMPARE(format.Format.FormatAmount(3.456, isNegative, {.Plain = true}), u"3,46"_s);
        QCOMPARE(format.Format.FormatAmount(-1234.5, isNegative, {.Plain = true}), u"-1234,50"_s);
    }

    // Whoever copies an amount from a list into a field gets that amount. What a culture writes in a way that the
    // fields do not know (other digits, say) is refused, but never taken for another amount.
    void ShownAmountsAreReadBack_data() const
    {
        const cTestRows<QString, bool> row("culture", "isOffered");
        for (const char* culture : {"de-DE", "de-AT", "de-CH", "de-LU", "en-GB", "en-IE", "en-US", "da-DK", "pl-PL",
                                    "cs-CZ", "hu-HU", "id-ID"}) {
            row(culture, QString::fromLatin1(culture), true);
        }
        for (const char* culture : {"fr-FR", "fr-CH", "nl-NL", "sv-SE", "ja-JP", "en-IN", "ar-EG", "fa-IR", "ar-TN",
                                    "pt-BR", "tr-TR", "he-IL", "bg-BG", "ru-RU"}) {
            row(culture, QString::fromLatin1(culture), false);
        }
    }

    void ShownAmountsAreReadBack() const
    {
        QFETCH(const QString, culture);
        QFETCH(const bool, isOffered);
        const cFormat format(culture);
        const eDecimal decimal = format.Format.Decimal();
        QRandomGenerator random(1);
        for (int i = 0; i < 2000; ++i) {
            const qint64 most = i % 2 == 0 ? 1'000'000 : 1'000'000'000;
            const qint64 cents = random.bounded(2 * most) - most;
            const qint64 shown = format.Format.Cents(12) == format.Format.Cents(0) ? cents / 100 * 100 : cents;
            const QString text = format.Format.Cents(shown);
            const std::optional<qint64> read = modSum::Evaluate(text, decimal);
            QVERIFY2(read == shown || (!read && !isOffered), qPrintable(text));
            QCOMPARE(modSum::Evaluate(modSum::ToText(cents, decimal), decimal), std::optional(cents));
        }
    }

    void DayForms_data() const
    {
        const cTestRows<QString, QString> row("culture", "text");
        row("none chosen", {}, u"09.02.2024"_s);
        row("Switzerland", u"de-CH"_s, u"09.02.2024"_s);
        row("Great Britain", u"en-GB"_s, u"09/02/2024"_s);
        row("United States", u"en_US"_s, u"02/09/2024"_s);
        row("Netherlands", u"nl-NL"_s, u"09-02-2024"_s);
        row("Sweden", u"sv-SE"_s, u"2024-02-09"_s);
        row("Hungary", u"hu-HU"_s, u"2024.02.09"_s);
    }

    // The days of the program follow the format and not the currency.
    void DayForms() const
    {
        QFETCH(const QString, culture);
        cFormat format(u"en-US"_s);
        format.Registry.Write(cConfiguration::RegistryKey, u"LanguageFormat"_s, culture);
        format.Format.CultureChanged();
        const QString text = modDate::ToText(QDate(2024, 2, 9));
        modDate::UseForm({});
        QTEST(text, "text");
    }

    // The culture is looked up once; only the other setting replaces it.
    void FormatterIsKept() const
    {
        cFormat format(u"de-DE"_s);
        QStringList made;
        cAmountFormat counted(format.Configuration, [&](const QString& culture) {
            made.append(culture);
            return std::make_unique<cFixedFormatter>(u"{0}"_s);
        });
        QCOMPARE(counted.Cents(-150), u"-1.5"_s);
        format.Registry.Write(cConfiguration::RegistryKey, u"LanguageCurrency"_s, u"en-GB"_s);
        (void)counted.Cents(1);
        QCOMPARE(made, QStringList(u"de-DE"_s));
        format.Registry.Write(cConfiguration::RegistryKey, u"LanguageFormat"_s, u"de-CH"_s);
        counted.UseFormatCulture();
        (void)counted.Cents(1);
        QCOMPARE(made, QStringList({u"de-DE"_s, u"de-CH"_s}));
        // After the settings were changed the currency comes first again, and the format where none is chosen.
        counted.CultureChanged();
        (void)counted.Cents(1);
        QCOMPARE(made.constLast(), u"en-GB"_s);
        format.Registry.Write(cConfiguration::RegistryKey, u"LanguageCurrency"_s, {});
        counted.CultureChanged();
        (void)counted.Cents(1);
        QCOMPARE(made.mid(2), QStringList({u"en-GB"_s, u"de-CH"_s}));
    }
};

TEST_CLASS(testAmountFormat, QCoreApplication)
#include "testAmountFormat.moc"
