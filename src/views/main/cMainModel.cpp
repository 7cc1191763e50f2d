#include "views/main/cMainModel.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/modCount.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "import/stage/cAccountMap.h"
#include "model/modBalance.h"
#include "model/modPeople.h"
#include "model/modRecurrence.h"
#include "model/modSettingKey.h"
#include "model/modTag.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/common/modUnread.h"
#include "views/entry/cEntryDelete.h"
#include "views/entry/cReconciledDays.h"
#include "views/main/modViewText.h"
#include "views/template/cTemplateFlow.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int pageTime = 100;  // milliseconds that the balances wait for a page in front to read what they need as well
constexpr int saveDelay = 700; // milliseconds of quiet after which a typed filter is stored

constexpr std::array switches{std::pair(&modSettingKey::ViewSingle, &cViewState::ShowsSingle),
                              std::pair(&modSettingKey::ViewFix, &cViewState::ShowsFix),
                              std::pair(&modSettingKey::ViewFuture, &cViewState::ShowsFuture),
                              std::pair(&modSettingKey::ViewStart, &cViewState::ShowsStart),
                              std::pair(&modSettingKey::ViewAllBalances, &cViewState::BalancesToToday)};

// One of the five View... switches; null for another key.
bool* Switch(cViewState& view, const cSettingKey& key)
{
    const auto* const found =
        std::find_if(switches.begin(), switches.end(), [&](const auto& known) { return *known.first == key; });
    return found == switches.end() ? nullptr : &(view.*found->second);
}

} // namespace

cMainModel::cMainModel(const cBookTools& tools, const cParts& parts, QObject* parent)
    : QObject(parent),
      m_tools(tools),
      m_parts(parts),
      m_entries(tools.Format),
      m_accounts(tools.Format),
      m_cells(tools),
      m_memory(tools.Settings, parts.Configuration)
{
    tmrRefreshList.setSingleShot(true);
    tmrRefreshAccounts.setSingleShot(true);
    tmrSaveView.setSingleShot(true);
    tmrSaveView.setInterval(saveDelay);
    connect(&tmrSaveView, &QTimer::timeout, this, &cMainModel::SaveView);
    connect(&tmrRefreshList, &QTimer::timeout, this, &cMainModel::ShowFilter);
    connect(&tmrRefreshAccounts, &QTimer::timeout, this, &cMainModel::RefreshAccounts);
}

cMainModel::~cMainModel() = default;

void cMainModel::RestoreView(bool isNewVersion)
{
    m_accountItems = modTemplate::InOrder(m_tools.Data.GetAccounts());
    (void)m_detour.Leave(m_view);
    m_view.Restore(m_tools.Settings, Accounts(), m_tools.Clock.Today());
    if (isNewVersion) {
        ResetView();
        return;
    }
    RefreshView();
}

void cMainModel::SaveView()
{
    tmrSaveView.stop();
    m_detour.Own(m_view).Save(m_tools.Settings);
}

void cMainModel::ResetView()
{
    for (const cSettingKey* key : modSettingKey::All()) {
        if (key->Facts().Reset == eSettingReset::Layout) {
            m_tools.Settings.Delete(*key);
        }
    }
    (void)m_detour.Leave(m_view);
    m_view.Grouping = modWord::KeineGruppierung;
    m_view.Type = modWord::AlleBuchungsarten;
    m_view.Filter.clear();
    m_view.Payer.clear();
    m_view.Period = modWord::AlleBuchungen;
    m_view.Free = {}; // chosen again, the free period starts with the days in sight
    m_view.Account = modWord::AlleKonten;
    SetSwitch(modSettingKey::ViewFix, eSwitch::On);
    SetSwitch(modSettingKey::ViewSingle, eSwitch::On);
    SetSwitch(modSettingKey::ViewFuture, eSwitch::On);
    // Off on purpose, unlike the defaults of a new book: a reset shows the balances of what is in sight.
    SetSwitch(modSettingKey::ViewAllBalances, eSwitch::Off);
    Q_EMIT LayoutReset();
    RefreshView();
}

void cMainModel::RefreshView()
{
    SaveView();
    LoadEntries();
    tmrRefreshAccounts.start(m_isPutOff ? pageTime : 0);
    Q_EMIT ViewChanged();
}

void cMainModel::ShowToday(bool isShown)
{
    if (std::exchange(m_showsToday, isShown) == isShown || m_view.BalancesToToday) {
        return;
    }
    tmrRefreshAccounts.start(m_isPutOff ? pageTime : 0);
    Q_EMIT ViewChanged();
}

void cMainModel::PageRead()
{
    if (tmrRefreshAccounts.isActive()) {
        tmrRefreshAccounts.start(0);
    }
}

bool cMainModel::ReadList()
{
    if (!m_isPutOff) {
        return false;
    }
    m_isPutOff = false;
    LoadEntries();
    return true;
}

cEntryListModel& cMainModel::Entries()
{
    ReadList();
    return m_entries;
}

void cMainModel::LoadEntries()
{
    if (m_isPutOff) {
        return;
    }
    const QDate today = m_tools.Clock.Today();
    const cEntryQuery query = m_view.Query(today);
    cEntryListModel::cContent content;
    if (!m_view.ShowsNothing()) {
        content.Entries = m_detour.Picked(m_tools.Data.GetEntries(query));
        content.StartBalance = StartBalance(query);
        content.Entries.removeIf([this](const cEntryItem& entry) { return !modPeople::IsPaidBy(entry, m_view.Payer); });
    }
    content.Account = query.Account;
    content.Today = today;
    content.HiddenCategory = m_view.ShowsStart ? QString() : modWord::Startguthaben;
    content.Looks = cCategoryLooks::Read(m_tools.Data);
    m_entries.SetContent(std::move(content), m_view.Filter, m_view.Grouping);
    Q_EMIT EntriesChanged();
}

std::optional<qint64> cMainModel::StartBalance(const cEntryQuery& query) const
{
    const bool isNarrowed = m_detour.IsPicked() || query.Kind != eBookingKind::All
        || m_view.Type != modWord::AlleBuchungsarten || !m_view.Payer.isEmpty();
    if (query.Account.isEmpty() || isNarrowed) {
        return std::nullopt;
    }
    if (!query.Start.isValid()) {
        return 0;
    }
    cEntryQuery before;
    before.Account = query.Account;
    before.End = query.Start.addDays(-1);
    return modBalance::ByAccount(m_tools.Data.GetSums(before, true)).value(query.Account);
}

cViewState cMainModel::BalanceView() const
{
    cViewState view = m_view;
    view.BalancesToToday = view.BalancesToToday || m_showsToday;
    return view;
}

void cMainModel::RefreshAccounts()
{
    const QDate today = m_tools.Clock.Today();
    const cViewState view = BalanceView();
    const bool isFresh = view.BalancesToToday && m_balancesOf == today;
    if (isFresh) {
        m_accounts.SetChosen(m_view.FilterAccount());
        return;
    }
    QHash<QString, qint64> balances;
    if (view.BalancesToToday || !view.ShowsNothing()) {
        const bool withStart = view.BalancesToToday || view.ShowsStart;
        balances = modBalance::ByAccount(m_tools.Data.GetSums(view.BalanceQuery(today), withStart));
    }
    const QHash<QString, int> open = cAccountMap(m_tools.Data, m_tools.Settings).OpenByAccount();
    const bool isUnread = modUnread::IsMissing(m_tools.Data, balances.size());
    m_accounts.SetReconciled(cReconciledDays(m_tools).ByAccount());
    m_accounts.SetShowsChange(view.ShowsChange(today));
    m_accounts.SetAccounts(m_accountItems, isUnread ? std::nullopt : std::optional(balances), open);
    m_accounts.SetChosen(m_view.FilterAccount());
    m_balancesOf = view.BalancesToToday && !isUnread ? today : QDate();
}

void cMainModel::AccessChanged()
{
    Q_EMIT EntriesChanged();
    Q_EMIT ViewChanged();
}

void cMainModel::BookChanged()
{
    m_balancesOf = QDate();
    m_accountItems = modTemplate::InOrder(m_tools.Data.GetAccounts());
    TakeAccount();
    cViewState& own = m_detour.Own(m_view);
    own.TakeKnownPayer(m_tools.Settings);
    if (&own != &m_view) {
        m_view.DropUnknownPayer(m_tools.Settings);
    }
    RefreshView();
    Q_EMIT BookRefreshed();
}

// Undo of a renaming leaves the view at a name that no account has any more; the settings came back with the account.
void cMainModel::TakeAccount()
{
    cViewState& own = m_detour.Own(m_view);
    const QStringList accounts = Accounts();
    if (!m_accountItems.isEmpty() && !accounts.contains(own.Account)) {
        const QString stored = m_tools.Settings.Get(modSettingKey::MainAccount);
        own.Account = accounts.contains(stored) ? stored : QString(modWord::AlleKonten);
    }
}

void cMainModel::StagedRowsChanged()
{
    m_balancesOf = QDate();
    m_accountItems =
        modTemplate::InOrder(m_tools.Data.GetAccounts()); // a new bank account may have brought a new account
    tmrRefreshAccounts.start(0);
    Q_EMIT ViewChanged();
}

void cMainModel::ChoosePeriod(const QString& name)
{
    if (!modWord::Periods().Contains(name)) {
        return;
    }
    const modPeriod::cRange shown = ShownRange();
    m_view.Period = name;
    if (IsFreePeriod() && m_view.Free == modPeriod::cRange{}) {
        const QDate today = m_tools.Clock.Today();
        m_view.Free = shown.Start.isValid() && shown.End.isValid() ? shown : modPeriod::Year(today, 0);
    }
    OfferFuture(name);
    RefreshView();
}

void cMainModel::OfferFuture(const QString& period)
{
    if (modPeriod::IsNext(period) && !m_view.ShowsFuture
        && m_tools.User.Ask({.Text = cText::Tr("Zukünftige Buchungen werden momentan nicht angezeigt. Soll die Anzeige "
                                               "aktiviert werden?"),
                             .Title = {}})
            == eAnswer::Yes) {
        SetSwitch(modSettingKey::ViewFuture, eSwitch::On);
    }
}

void cMainModel::ChooseFreeRange(const modPeriod::cRange& range)
{
    if (!IsFreePeriod() || range == m_view.Free) {
        return;
    }
    m_view.Free = modPeriod::Typed(range, m_view.Free);
    RefreshView();
}

void cMainModel::ChooseAccount(const QString& account)
{
    const QString chosen = account.isEmpty() ? modWord::AlleKonten : account;
    if (chosen != m_view.Account) {
        m_view.Account = chosen;
        RefreshView();
    }
}

void cMainModel::ChooseType(const QString& type)
{
    if (modWord::ViewTypes().Contains(type)) {
        m_view.Type = type;
        RefreshView();
    }
}

void cMainModel::ChoosePayer(const QString& payer)
{
    if (payer != m_view.Payer && modPeople::IsChoice(payer, People())) {
        m_view.Payer = payer;
        RefreshView();
    }
}

QStringList cMainModel::People() const
{
    return modPeople::NamesOf(m_tools.Settings.Get(modSettingKey::People));
}

void cMainModel::ChooseGrouping(const QString& grouping)
{
    if (modWord::Groupings().Contains(grouping)) {
        m_view.Grouping = grouping;
        SaveView();
        m_entries.SetGrouping(grouping);
        Q_EMIT EntriesChanged();
        Q_EMIT ViewChanged();
    }
}

void cMainModel::TypeFilter(const QString& text)
{
    if (text != m_view.Filter) {
        m_view.Filter = text;
        tmrRefreshList.start(0);
    }
}

void cMainModel::FilterByTag(const QString& tag)
{
    const bool isOn = modTag::Key(m_view.Filter.trimmed()) == modTag::Key(tag);
    TypeFilter(isOn ? QString() : tag);
    Q_EMIT ViewChanged();
}

QStringList cMainModel::Tags() const
{
    return m_entries.KnownTags();
}

void cMainModel::ShowFilter()
{
    tmrSaveView.start(); // each letter would be a write to the disk
    m_entries.SetFilter(m_view.Filter);
    Q_EMIT EntriesChanged();
}

void cMainModel::SetSwitch(const cSettingKey& key, eSwitch state)
{
    *Switch(m_view, key) = state == eSwitch::On;
    *Switch(m_detour.Own(m_view), key) = state == eSwitch::On;
    m_tools.Settings.SetBool(key, state == eSwitch::On);
    m_balancesOf = QDate();
}

void cMainModel::ToggleView(const cSettingKey& key)
{
    const bool* state = Switch(m_view, key);
    if (state != nullptr) {
        SetSwitch(key, *state ? eSwitch::Off : eSwitch::On);
        RefreshView();
    }
}

bool cMainModel::IsChecked(const cSettingKey& key) const
{
    if (m_detour.IsOn()) { // its switches are not stored
        cViewState view = m_view;
        const bool* state = Switch(view, key);
        return state != nullptr ? *state : m_tools.Settings.GetBool(key);
    }
    return m_tools.Settings.GetBool(key);
}

void cMainModel::ShowEntries(const cEntrySelection& selection)
{
    m_detour.Enter(m_view, selection);
    RefreshView();
}

void cMainModel::GoBack()
{
    if (m_detour.Leave(m_view)) {
        RefreshView();
    }
}

QStringList cMainModel::ViewLines() const
{
    QStringList lines = modViewText::Lines(m_view, ShownRange());
    if (m_detour.IsOn()) {
        lines.append(cText::Tr("Auswahl: {0}", {SelectionText()}));
    }
    return lines;
}

void cMainModel::SetSelection(const QList<cEntryListModel::cKey>& selection)
{
    m_selection = selection;
    m_isSeriesSelected = false;
    if (m_selection.size() == 1) {
        const std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(First().ID);
        m_isSeriesSelected = entry && modRecurrence::IsRecurring(entry->EntryInterval);
    }
    Q_EMIT SelectionChanged();
}

void cMainModel::Delete(const QList<cEntryListModel::cKey>& keys)
{
    cEntryDelete flow(m_tools);
    if (flow.Delete(keys)) {
        SetSelection({});
        BookChanged();
        Q_EMIT StagedRowsReleased();
    }
}

QString cMainModel::DropCategory(const QModelIndex& line)
{
    return IsReadOnly() ? QString() : Entries().GroupCategory(line);
}

void cMainModel::AccountRenamed(const QString& oldName, const QString& newName)
{
    for (QString* account : {&m_view.Account, &m_detour.Own(m_view).Account}) {
        *account = *account == oldName ? newName : *account;
    }
    BookChanged();
}

void cMainModel::BookSwitched(const QString& path, bool isNewVersion)
{
    m_parts.DatabasePath = path;
    m_balancesOf = QDate();
    SetSelection({});
    RestoreView(isNewVersion);
    Q_EMIT StagedRowsReleased();
}

void cMainModel::RenameAccount(const QString& oldName)
{
    cTemplateFlow flow(m_tools);
    const QString name = flow.AskRenameAccount(oldName);
    if (name != oldName) {
        AccountRenamed(oldName, name);
    }
}

modPeriod::cRange cMainModel::ShownRange() const
{
    return m_view.Range(m_tools.Clock.Today());
}

QDate cMainModel::Today() const
{
    return m_tools.Clock.Today();
}

bool cMainModel::IsFreePeriod() const
{
    return m_view.Period == modWord::FreierZeitraum;
}

QStringList cMainModel::Accounts() const
{
    return QStringList{modWord::AlleKonten} + modTemplate::AccountNames(m_accountItems);
}

cSumTexts cMainModel::SumTexts() const
{
    const cEntrySums& sums = m_entries.Sums();
    return modEntrySums::Texts(sums, modCount::Entries(sums.Count), m_tools.Format, IsUnread());
}

bool cMainModel::IsUnread() const
{
    return modUnread::IsMissing(m_tools.Data, m_entries.Sums().Count);
}

QString cMainModel::Hint() const
{
    const bool isEndless = m_view.ShowsFuture && m_view.ShowsFix && !ShownRange().End.isValid();
    return isEndless && m_tools.Data.CountEntries() > 0 ? cText::Tr("Mit wiederkehrenden Einträgen bis 2050.")
                                                        : QString();
}

QString cMainModel::EmptyTitle() const
{
    return IsUnread() ? modUnread::Title() : cText::Tr("Keine Daten");
}

QString cMainModel::EmptyHint() const
{
    if (IsUnread()) {
        return modUnread::Hint();
    }
    if (m_view.ShowsNothing()) {
        return cText::Tr("Einmalige und fixe Buchungen sind ausgeblendet. Das Menü Ansicht blendet sie wieder ein.");
    }
    if (!m_view.Filter.isEmpty()) {
        return cText::Tr("Kein Eintrag dieser Ansicht enthält '{0}'. Löschen Sie den Filter, um alles zu sehen.",
                         {m_view.Filter});
    }
    if (!m_view.Payer.isEmpty()) {
        return cText::Tr("Für diese Auswahl gibt es keine Einträge. „Beliebig“ bei „Bezahlt von“ zeigt alle.");
    }
    if (m_tools.Data.CountEntries() == 0) {
        return cText::Tr(
            "Erfassen Sie mit Strg+N den ersten Eintrag, oder lesen Sie mit Strg+I einen Kontoauszug Ihrer Bank "
            "ein.");
    }
    return cText::Tr(
        "Für diese Auswahl gibt es keine Einträge. Wählen Sie einen anderen Zeitraum oder ein anderes Konto.");
}

QString cMainModel::DatabaseText() const
{
    const QString path = QDir::toNativeSeparators(m_parts.DatabasePath);
    return IsReadOnly() ? cText::Tr("{0} (nur lesen)", {path}) : path;
}

QString cMainModel::WindowTitle() const
{
    const QString name = QFileInfo(m_parts.DatabasePath).completeBaseName();
    const bool isUnnamed = name.compare(u"data"_s, Qt::CaseInsensitive) == 0; // "data.db", which nobody has chosen
    return u"%1 — Kontorelle"_s.arg(isUnnamed ? cText::Tr("Haushaltsbuch") : name);
}

QString cMainModel::BalancesTitle() const
{
    return modViewText::Balances(BalanceView(), m_tools.Clock.Today());
}

bool cMainModel::IsReadOnly() const
{
    return m_tools.Data.IsReadOnly();
}
