#include "views/book/cNationalSettings.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "core/cConfiguration.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 sampleCents = 123456;

// Names are stored as cultures, "de-DE", and read with "-" or "_".
QString Culture(const QString& stored, const QString& missing)
{
    return stored.isEmpty() ? missing : QString(stored).replace(u'_', u'-');
}

} // namespace

cNationalSettings::cNationalSettings(const cBookTools& tools, cConfiguration& configuration, cAmountFormat& format,
                                     QObject* parent)
    : QObject(parent),
      m_tools(tools),
      m_configuration(configuration),
      m_format(format)
{
}

QList<cNationalSettings::cOption> cNationalSettings::Languages()
{
    return {{QString(), cText::Tr("wie das System")}, {u"de"_s, u"Deutsch"_s}, {u"en"_s, u"English"_s}};
}

QList<cNationalSettings::cOption> cNationalSettings::Formats()
{
    return {{u"de-DE"_s, cText::Tr("Deutschland")},       {u"de-AT"_s, cText::Tr("Österreich")},
            {u"de-CH"_s, cText::Tr("Schweiz")},           {u"de-LU"_s, cText::Tr("Luxemburg")},
            {u"en-GB"_s, cText::Tr("Großbritannien")},    {u"en-IE"_s, cText::Tr("Irland")},
            {u"en-US"_s, cText::Tr("Vereinigte Staaten")}};
}

QList<cNationalSettings::cOption> cNationalSettings::Currencies()
{
    return {{QString(), cText::Tr("wie im Zahlenformat")}, {u"de-DE"_s, cText::Tr("Euro")},
            {u"de-CH"_s, cText::Tr("Schweizer Franken")},  {u"en-GB"_s, cText::Tr("Britisches Pfund")},
            {u"en-US"_s, cText::Tr("US-Dollar")},          {u"da-DK"_s, cText::Tr("Dänische Krone")},
            {u"pl-PL"_s, cText::Tr("Polnischer Złoty")},   {u"cs-CZ"_s, cText::Tr("Tschechische Krone")},
            {u"hu-HU"_s, cText::Tr("Ungarischer Forint")}, {u"id-ID"_s, cText::Tr("Indonesische Rupiah")}};
}

cNationalSettings::cFields cNationalSettings::Current() const
{
    return {m_configuration.GetSetting(modSettingKey::LanguageName),
            Culture(m_configuration.GetSetting(modSettingKey::LanguageFormat), modSettingKey::LanguageFormat.Default()),
            Culture(m_configuration.GetSetting(modSettingKey::LanguageCurrency), {})};
}

cNationalSettings::cPreview cNationalSettings::Preview(const cFields& fields) const
{
    const QString culture = fields.Currency.isEmpty() ? fields.Format : fields.Currency;
    return {cAmountFormat::Sample(culture, sampleCents), cAmountFormat::Sample(culture, -sampleCents),
            modDate::ToText(m_tools.Clock.Today(), cAmountFormat::DayForm(fields.Format))};
}

bool cNationalSettings::Save(const cFields& fields)
{
    const cFields before = Current();
    const bool isStored = !m_tools.Data.IsReadOnly()
        && m_configuration.SaveSetting(modSettingKey::LanguageName, fields.Language, eSettingPlace::Database)
        && m_configuration.SaveSetting(modSettingKey::LanguageFormat, fields.Format, eSettingPlace::Database)
        && m_configuration.SaveSetting(modSettingKey::LanguageCurrency, fields.Currency, eSettingPlace::Database);
    m_format.CultureChanged();
    Q_EMIT CultureChanged();
    if (!isStored) {
        m_tools.User.Show(eTone::Critical, cText::Tr("Die Einstellungen konnten nicht gespeichert werden."));
    } else if (fields.Language != before.Language) {
        Q_EMIT LanguageChanged();
    }
    return isStored;
}

void cNationalSettings::ChooseLanguage(const QString& language)
{
    if (m_configuration.SaveSetting(modSettingKey::LanguageName, language, eSettingPlace::Database)) {
        Q_EMIT LanguageChanged();
    }
}
