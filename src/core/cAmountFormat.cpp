#include "core/cAmountFormat.h"

#include "base/modAmount.h"
#include "core/cConfiguration.h"
#include "model/modSettingKey.h"

#include <QLocale>

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
    return modAmount::ToCents(text != nullptr ? modAmount::ReadGerman(*text) : std::get<double>(amount));
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
}

QString cAmountFormat::Sample(const QString& culture, qint64 signedCents)
{
    return CurrencyText(*MakeFormatter(culture), signedCents);
}

std::unique_ptr<cCultureFormatter> cAmountFormat::MakeFormatter(const QString& culture)
{
    QLocale locale(QString(culture).replace(u'-', u'_'));
    if (locale.language() == QLocale::C) {
        locale = QLocale(QLocale::German, QLocale::Germany); // nothing chosen, or a name that nobody knows
    }
    return std::make_unique<cLocaleFormatter>(locale);
}

QString cAmountFormat::Currency(qint64 signedCents) const
{
    if (!m_formatter) {
        const QString currency = m_configuration.GetSetting(modSettingKey::LanguageCurrency);
        m_formatter =
            m_makeFormatter(currency.isEmpty() ? m_configuration.GetSetting(modSettingKey::LanguageFormat) : currency);
    }
    return CurrencyText(*m_formatter, signedCents);
}
