#pragma once

#include "base/modDate.h"
#include "base/modSum.h"

#include <QString>

#include <functional>
#include <memory>
#include <variant>

class cConfiguration;

// Writes an amount as the currency text of one culture.
class cCultureFormatter
{
public:
    cCultureFormatter() = default;
    cCultureFormatter(const cCultureFormatter&) = delete;
    cCultureFormatter& operator=(const cCultureFormatter&) = delete;
    virtual ~cCultureFormatter() = default;

    [[nodiscard]] virtual QString Currency(double amount) const = 0;
};

struct cAmountOptions
{
    bool StripMarkup = false;  // without quotes and angle brackets
    bool Plain = false;        // "0.00" with the system's decimal sign, and nothing else
    bool SignFromText = false; // an amount below zero asks for the negative form
};

// Every amount that the user sees. The culture is the setting "LanguageCurrency", else
// "LanguageFormat"; without both it is German.
class cAmountFormat
{
public:
    // An amount in euros, or a text in German form.
    using cAmount = std::variant<double, QString>;
    using fnMakeFormatter = std::function<std::unique_ptr<cCultureFormatter>(const QString& culture)>;

    // `makeFormatter` is called with a culture name ("de-DE" or "de_DE"; empty for the default).
    explicit cAmountFormat(const cConfiguration& configuration, fnMakeFormatter makeFormatter = MakeFormatter);

    // The amount as text. Its sign is `isNegative` alone, because amounts are stored without sign and callers carry the
    // sign beside them: -5 without `isNegative` gives the positive form. SignFromText may set `isNegative`.
    [[nodiscard]] QString FormatAmount(const cAmount& amount, bool& isNegative, const cAmountOptions& options = {});

    // The text of an amount in cents, with its own sign.
    [[nodiscard]] QString Cents(qint64 signedCents) const;

    // The code of the currency in these texts: "EUR".
    [[nodiscard]] QString CurrencyCode() const;

    // The sign before the cents in these texts, which is the one that the user types.
    [[nodiscard]] eDecimal Decimal() const;

    // Goes on with the culture of the setting "LanguageFormat" in place of the currency's.
    void UseFormatCulture();

    // To be called after a book was opened or its culture settings were changed. The days of the whole program follow
    // the setting "LanguageFormat" from then on.
    void CultureChanged();

    // What an amount of cents looks like in a culture that nobody has chosen yet.
    [[nodiscard]] static QString Sample(const QString& culture, qint64 signedCents);

    // How days are written in a culture.
    [[nodiscard]] static cDayForm DayForm(const QString& culture);

    // A formatter over the library's locales.
    [[nodiscard]] static std::unique_ptr<cCultureFormatter> MakeFormatter(const QString& culture);

private:
    [[nodiscard]] QString Culture() const; // of the currency
    [[nodiscard]] QString Currency(qint64 signedCents) const;

    const cConfiguration& m_configuration;
    fnMakeFormatter m_makeFormatter;
    mutable std::unique_ptr<cCultureFormatter> m_formatter; // made on first use and kept until the culture changes
    QString m_decimalSign;
};
