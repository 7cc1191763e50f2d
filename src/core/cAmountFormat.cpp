#include "core/cAmountFormat.h"

#include "base/modAmount.h"
#include "core/cConfiguration.h"
#include "model/modSettingKey.h"

#include <QLocale>

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

class cLocaleFormatter final : public cCultureFormatter
{
public:
    explicit cLocaleFormatter(const QLocale& locale) : m_locale(locale) {}

    [[nodiscard]] QString Currency(double amount) const override { return m_locale.toCurrencyString(amount); }

private:
    QLocale m_locale;
};

qint64 CentsOf(const cAmountFormat::cAmount& amount)
{
    const auto* text = std::get_if<QString>(&amount);
    return text != nullptr ? modAmount::CentsFromGerman(*text, modAmount::eHalf::AwayFromZero).value_or(0)
                           : modAmount::ToCents(std::get<double>(amount));
}

QLocale LocaleOf(const QString& culture)
{
    const QLocale locale(QString(culture).replace(u'-', u'_'));
    const bool isKnown = locale.language() != QLocale::C; // nothing chosen, or a name that nobody knows
    return isKnown ? locale : QLocale(QLocale::German, QLocale::Germany);
}

QString DecimalSign()
{
    return QLocale().toString(1.1, 'f', 1).remove(u'1');
}

// Rupiah are shown without symbol, and without decimals when they are whole.
QString WithoutRupiah(QString text)
{
    if (!text.startsWith(u"Rp"_s) && !text.startsWith(u"-Rp"_s)) {
        return text;
    }
    if (text.endsWith(u",00"_s)) {
        text.chop(3);
    }
    return text.remove(u"Rp"_s);
}

// The two forms that the culture's formatter renders badly.
QString CurrencyText(const cCultureFormatter& formatter, qint64 signedCents)
{
    QString text = formatter.Currency(modAmount::ToEuros(signedCents));
    return WithoutRupiah(text.replace(u"SFr.-"_s, u"SFr. -"_s));
}

} // namespace

cAmountFormat::cAmountFormat(const cConfiguration& configuration, fnMakeFormatter makeFormatter)
    : m_configuration(configuration),
      m_makeFormatter(std::move(makeFormatter)),
      m_decimalSign(DecimalSign())
{
}

QString cAmountFormat::FormatAmount(const cAmount& amount, bool& isNegative, const cAmountOptions& options)
{
    const qint64 cents = CentsOf(amount);
    if (options.SignFromText && cents < 0) {
        isNegative = true;
    }
    if (options.Plain) {
        return modAmount::CentsToText(cents).replace(u"."_s, m_decimalSign);
    }
    QString text = Currency(isNegative ? -std::abs(cents) : std::abs(cents));
    if (options.StripMarkup) {
        text.remove(u'\'').remove(u'"').remove(u'<').remove(u'>');
    }
    return text;
}

QString cAmountFormat::Cents(qint64 signedCents) const
{
    return Currency(signedCents);
}

eDecimal cAmountFormat::Decimal() const
{
    const QString text = Currency(123456); // the library does not tell the signs of its currency texts
    const qsizetype cents = text.indexOf(u"56"_s);
    const bool isPoint = cents > 0 ? text.at(cents - 1) == u'.' : text.contains(u',');
    return isPoint ? eDecimal::Point : eDecimal::Comma;
}

void cAmountFormat::UseFormatCulture()
{
    m_formatter = m_makeFormatter(m_configuration.GetSetting(modSettingKey::LanguageFormat));
}

void cAmountFormat::CultureChanged()
{
    m_formatter.reset();
    modDate::UseForm(DayForm(m_configuration.GetSetting(modSettingKey::LanguageFormat)));
}

QString cAmountFormat::Sample(const QString& culture, qint64 signedCents)
{
    return CurrencyText(*MakeFormatter(culture), signedCents);
}

// Order and separator as the culture's short form has them; years have four digits, days and months two, so that lists
// line up and no text is shorter than another.
cDayForm cAmountFormat::DayForm(const QString& culture)
{
    constexpr QStringView separators = u"./-";
    const QString pattern = LocaleOf(culture).dateFormat(QLocale::ShortFormat);
    const qsizetype day = pattern.indexOf(u'd');
    const qsizetype month = pattern.indexOf(u'M');
    const qsizetype year = pattern.indexOf(u'y');
    cDayForm form;
    if (day < 0 || month < 0 || year < 0) {
        return form;
    }
    const qsizetype first = std::min({day, month, year});
    form.Order = first == year ? cDayForm::eOrder::YearFirst
        : first == month       ? cDayForm::eOrder::MonthFirst
                               : cDayForm::eOrder::DayFirst;
    const auto end = std::find_if(pattern.begin() + first, pattern.end(), [](QChar c) { return !c.isLetter(); });
    if (end != pattern.end() && separators.contains(*end)) {
        form.Separator = end->unicode();
    }
    return form;
}

std::unique_ptr<cCultureFormatter> cAmountFormat::MakeFormatter(const QString& culture)
{
    return std::make_unique<cLocaleFormatter>(LocaleOf(culture));
}

QString cAmountFormat::CurrencyCode() const
{
    return LocaleOf(Culture()).currencySymbol(QLocale::CurrencyIsoCode);
}

QString cAmountFormat::Culture() const
{
    const QString currency = m_configuration.GetSetting(modSettingKey::LanguageCurrency);
    return currency.isEmpty() ? m_configuration.GetSetting(modSettingKey::LanguageFormat) : currency;
}

QString cAmountFormat::Currency(qint64 signedCents) const
{
    if (!m_formatter) {
        m_formatter = m_makeFormatter(Culture());
    }
    return CurrencyText(*m_formatter, signedCents);
}
