#include "model/modSettingKey.h"

#include <algorithm>
#include <array>

bool cSettingFamily::Holds(const QString& name) const
{
    return name.size() >= m_head.size() + m_tail.size() && name.startsWith(m_head, Qt::CaseInsensitive)
        && name.endsWith(m_tail, Qt::CaseInsensitive);
}

QString cSettingFamily::PartOf(const QString& name) const
{
    return Holds(name) ? name.mid(m_head.size(), name.size() - m_head.size() - m_tail.size()) : QString();
}

// A table. NOLINTNEXTLINE(readability-function-size)
std::span<const cSettingKey* const> modSettingKey::All()
{
    // One line each, whatever their number.
    // clang-format off
    static constexpr std::array keys{&Database,
                                     &DatabaseList,
                                     &LastBackupFolder,
                                     &Appearance,
                                     &UpdateWeekly,
                                     &LastUpdateInfo,
                                     &PasswordActive,
                                     &Password,
                                     &LastVersion,
                                     &LastCommandLineVersion,
                                     &FirstInstall,
                                     &Update,
                                     &LanguageName,
                                     &LanguageFormat,
                                     &LanguageCurrency,
                                     &BackupCount,
                                     &BackupFolder,
                                     &BackupLast,
                                     &BackupFailed,
                                     &ReceiptsFailed,
                                     &OwnRules,
                                     &Corrected,
                                     &People,
                                     &ReceiptsInBackup,
                                     &RemindByDesktop,
                                     &RemindedOn,
                                     &SavedViews,
                                     &GameScores,
                                     &ImportRuns,
                                     &RowChoices,
                                     &BankProduct,
                                     &MainPeriod,
                                     &MainPeriodStart,
                                     &MainPeriodEnd,
                                     &MainAccount,
                                     &MainType,
                                     &MainGrouping,
                                     &MainFilter,
                                     &MainPayer,
                                     &ViewSingle, // the five switches in the order in which they are turned on
                                     &ViewFix,
                                     &ViewFuture,
                                     &ViewStart,
                                     &ViewAllBalances,
                                     &HideBooked,
                                     &HideOld,
                                     &HideTitle,
                                     &ImportGrouping,
                                     &StatisticsAccount,
                                     &StatisticsReport,
                                     &StatisticsOrder,
                                     &StatisticsSpending,
                                     &StatisticsPage,
                                     &StatisticsZoom,
                                     &FlickerWidth,
                                     &FlickerSpeed,
                                     &FlickerTurned,
                                     &TanPictureWidth,
                                     &WindowSize,
                                     &WindowState,
                                     &MainPage,
                                     &StartWithOverview,
                                     &MainList,
                                     &ClosedGroups,
                                     &SearchList,
                                     &ImportList,
                                     &CategoryList};
    // clang-format on
    return keys;
}

std::span<const cSettingFamily* const> modSettingKey::Families()
{
    static constexpr std::array families{
        &DialogFolder, &Budget,       &CategoryColor,  &CategoryIcon,  &StatementPapers, &AccountShares,
        &BankNumber,   &BankCode,     &BankBalances,   &EqualLeftOut,  &StartDue,        &Reconciled,
        &Fetched,      &TableMap,     &TableAccounts,  &TableCharset,  &TableSign,       &TableBankCode,
        &OnlineBank,   &PanePeriod,   &PaneFirstMonth, &PaneLastMonth, &PaneYear,        &PaneChart,
        &PaneCompare,  &PaneForecast, &PaneAverage};
    return families;
}

eSettingReset modSettingKey::ResetOf(const QString& name)
{
    const auto keys = All();
    const auto key = std::find_if(keys.begin(), keys.end(), [&](const cSettingKey* each) {
        return name.compare(each->Name(), Qt::CaseInsensitive) == 0;
    });
    if (key != keys.end()) {
        return (*key)->Facts().Reset;
    }
    const auto families = Families();
    const auto family =
        std::find_if(families.begin(), families.end(), [&](const cSettingFamily* each) { return each->Holds(name); });
    return family != families.end() ? (*family)->Facts().Reset : eSettingReset::Cleared;
}
