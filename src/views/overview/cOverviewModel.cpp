#include "views/overview/cOverviewModel.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/modBalance.h"
#include "model/modBudget.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "views/chart/cForecast.h"
#include "views/entry/cContracts.h"
#include "views/main/cMainModel.h"
#include "views/main/cNavigator.h"
#include "views/main/modAccountLines.h"
#include "views/overview/cDueItems.h"
#include "views/report/modReport.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostDue = 12;
constexpr qsizetype mostLimits = 6;

// A share of a limit in whole percent. Where nothing may be spent, all that is spent is too much.
int Percent(const cReportAmount& amount)
{
    constexpr qint64 most = 999;
    return static_cast<int>(std::min(modReport::LimitPercent(amount).value_or(most), most));
}

eOverviewTone ToneOf(qint64 cents)
{
    return cents < 0 ? eOverviewTone::Expense : eOverviewTone::Plain;
}

} // namespace

cOverviewModel::cOverviewModel(const cBookTools& tools, const cParts& parts, QObject* parent)
    : QObject(parent),
      m_tools(tools),
      m_parts(parts)
{
    tmrLoad.setSingleShot(true);
    tmrLoad.setInterval(0); // what changes several times in one go is read once, and painted once
    connect(&tmrLoad, &QTimer::timeout, this, &cOverviewModel::Read);
    connect(&m_parts.Outlook, &cOutlook::LookedAtSeries, this, &cOverviewModel::TakeSeries);
}

void cOverviewModel::Show()
{
    m_isShown = true;
    if (m_isOld || (m_book && m_book->Today != m_parts.Main.Today())) {
        tmrLoad.start();
    }
}

void cOverviewModel::BookChanged()
{
    m_isOld = true;
    if (m_isShown) {
        tmrLoad.start();
    }
}

void cOverviewModel::TasksChanged()
{
    if (m_book) {
        m_tasks = cOverviewTasks(m_tools).Quick();
        Build();
    }
}

void cOverviewModel::BookSwitched()
{
    tmrLoad.stop(); // there may be no book for a while
    m_isOld = true;
}

void cOverviewModel::Read()
{
    m_isOld = false;
    m_book = cOverviewBook::Read(m_tools, m_parts.Outlook);
    m_tasks = cOverviewTasks(m_tools).Quick();
    Build();
    m_parts.Main.PageRead();
    m_parts.Outlook.WantSeries();
}

void cOverviewModel::TakeSeries()
{
    if (m_book && m_series != m_parts.Outlook.Series()) {
        Build();
    }
}

QString cOverviewModel::Heading() const
{
    const QDate today = m_parts.Main.Today();
    return QLocale().toString(today, cText::Tr("dddd, d. MMMM yyyy"));
}

bool cOverviewModel::IsStartPage() const
{
    return m_tools.Settings.GetBool(modSettingKey::StartWithOverview);
}

void cOverviewModel::SetStartPage(bool isStartPage)
{
    m_tools.Settings.SetBool(modSettingKey::StartWithOverview, isStartPage);
}

void cOverviewModel::Build()
{
    m_series = m_parts.Outlook.Series();
    if (!m_book->HasEntries) {
        m_cards = {Balances(), Tasks()};
        Q_EMIT CardsChanged();
        return;
    }
    m_cards = {Balances(), Month(), Due(), Tasks()};
    if (cOverviewCard limits = Limits(); !limits.Lines.isEmpty()) {
        m_cards.append(std::move(limits));
    }
    if (cOverviewCard changes = Changes(); !changes.Lines.isEmpty()) {
        m_cards.append(std::move(changes));
    }
    Q_EMIT CardsChanged();
}

QString cOverviewModel::Signed(qint64 cents) const
{
    return m_tools.Format.Cents(cents);
}

std::function<void()> cOverviewModel::Command(int command)
{
    return [this, command] { m_parts.Main.Execute(command); };
}

void cOverviewModel::AccountsSaved()
{
    m_parts.Main.BookChanged();
}

void cOverviewModel::Do(int command)
{
    m_parts.Main.Execute(command);
}

void cOverviewModel::Change(const std::function<bool()>& write)
{
    if (write()) {
        m_parts.Main.BookChanged();
    }
}

void cOverviewModel::ShowAccount(const QString& account)
{
    m_parts.Main.ChooseAccount(account);
    Q_EMIT EntriesShown();
}

void cOverviewModel::ShowMonth(const cMonthPart& part)
{
    modPeriod::cRange range = modPeriod::Month(m_book->Today, 0);
    if (part.Until == eUntil::Today) {
        range.End = m_book->Today;
    }
    cEntrySelection selection{part.Title, part.Type, {}, range, {}, true};
    selection.Pick = [path = part.Path](const cEntryItemList& entries) {
        cEntryItemList picked;
        std::copy_if(entries.begin(), entries.end(), std::back_inserter(picked), [&](const cEntryItem& entry) {
            return modBudget::Counts(entry) && (path.isEmpty() || modTemplate::IsWithin(entry.EntryCategory, path));
        });
        return picked;
    };
    m_parts.Main.ShowEntries(selection);
    Q_EMIT EntriesShown();
}

// Where the sum of all accounts is lowest within the days ahead, when that is not today.
QString cOverviewModel::Lowest() const
{
    const cBalanceDays& days = m_book->Balances;
    const int lowest = cBalanceDays::Lowest(days.Sum, 0);
    if (lowest < 0) {
        return {};
    }
    const QString sum = Signed(days.Sum.Cents.at(lowest));
    return lowest == 0
        ? cText::Tr("In den nächsten 60 Tagen nicht unter dem Stand von heute")
        : cText::Tr("Tiefster Stand der nächsten 60 Tage: {0} am {1}", {sum, modDate::ToText(days.Day(lowest))});
}

cOverviewCard cOverviewModel::Balances()
{
    cOverviewCard card{eOverviewCard::Balances, cText::Tr("Kontostände heute")};
    card.Follow = [this] { ShowAccount({}); };
    card.FollowText = cText::Tr("Zeigt die Einträge aller Konten.");
    card.Empty = cText::Tr("Es gibt noch kein Konto.");
    const cBalanceDays& days = m_book->Balances;
    if (days.Count() == 0) {
        return card;
    }
    card.Figure = Signed(days.Sum.Cents.first());
    card.Tone = ToneOf(days.Sum.Cents.first());
    card.Curve = {days.Sum.Cents, cBalanceDays::Lowest(days.Sum, 0), Lowest()};
    QHash<QString, const cTemplateItem*> items;
    for (const cTemplateItem& item : std::as_const(m_book->Templates)) {
        if (modTemplate::IsAccount(item)) {
            items.insert(item.TemplateName, &item);
        }
    }
    for (const cBalanceLine& line : days.Accounts) {
        const cTemplateItem* item = items.value(line.Account);
        const qint64 cents = line.Cents.first();
        if (item != nullptr && !modTemplate::IsVisible(*item) && cents == 0) {
            continue;
        }
        card.Lines.append({modAccountLines::ShownName(line.Account), Signed(cents), ToneOf(cents),
                           [this, account = line.Account] { ShowAccount(account); }});
    }
    for (const cLimitWarning& warning : std::as_const(m_book->Ahead.Warnings)) {
        card.Lines.append(
            {cForecast::Text(warning, m_tools.Format), {}, eOverviewTone::Warning, [this, account = warning.Account] {
                 ShowAccount(account);
             }});
    }
    return card;
}

cOverviewCard cOverviewModel::Month()
{
    const modOverview::cMonth& month = m_book->Month;
    cOverviewCard card{eOverviewCard::Month, cText::Tr("Dieser Monat bis heute")};
    card.Follow = [this] { ShowMonth({cText::Tr("Dieser Monat bis heute"), modWord::AlleBuchungsarten, {}}); };
    card.FollowText = cText::Tr("Zeigt die Einträge dieses Monats bis heute.");
    card.Figure = Signed(month.Now.Income - month.Now.Expense);
    card.Tone = ToneOf(month.Now.Income - month.Now.Expense);
    card.Lines.append({cText::Tr("Einnahmen"), Signed(month.Now.Income), eOverviewTone::Income, [this] {
                           ShowMonth({cText::Tr("Einnahmen dieses Monats bis heute"), modWord::Einnahme, {}});
                       }});
    card.Lines.append({cText::Tr("Ausgaben"), Signed(-month.Now.Expense), eOverviewTone::Expense, [this] {
                           ShowMonth({cText::Tr("Ausgaben dieses Monats bis heute"), modWord::Ausgabe, {}});
                       }});
    // Of a first month, or one that began after this day, there is nothing to compare with.
    const auto both = [this](const modOverview::cSums& sums) -> QString {
        return Signed(sums.Income) + u" / "_s + Signed(-sums.Expense);
    };
    if (month.Before != modOverview::cSums{}) {
        card.Lines.append({cText::Tr("Letzten Monat am gleichen Tag"), both(month.Before), eOverviewTone::Quiet});
    }
    if (month.Usual != modOverview::cSums{}) {
        card.Lines.append({month.Months == 1 ? cText::Tr("Im Schnitt eines Monats")
                                             : cText::Tr("Im Schnitt von {0} Monaten", {QString::number(month.Months)}),
                           both(month.Usual), eOverviewTone::Quiet});
    }
    return card;
}

cOverviewLine cOverviewModel::DueLine(const cEntryItem& item)
{
    const bool isSeries = cDueItems::IsSeries(item);
    const qint64 effect = modBalance::Effect(item, {});
    const qint64 cents = item.IsTransfer() ? item.EntryValue : effect;
    cOverviewLine line{modDate::ToShortText(item.EntryDate) + u"  "_s + item.Name(), Signed(cents),
                       effect > 0 ? eOverviewTone::Income : eOverviewTone::Plain};
    line.Follow = [this, item] { m_parts.Navigator.OpenEntry(item.ID, item.Planned()); };
    if (m_parts.Main.IsReadOnly()) {
        return line;
    }
    if (cDueItems::CanBookToday(item) && item.EntryDate != m_book->Today) {
        line.Actions.append({cText::Tr("Heute &gebucht"),
                             [this, item] { Change([&] { return cDueItems(m_tools).BookToday(item); }); }});
    }
    if (isSeries) {
        line.Actions.append({cText::Tr("&Verschieben…"), [this, item] {
                                 m_parts.Navigator.OpenCorrection(item.ID, item.Planned(), cNavigator::eCorrected::Day);
                             }});
        line.Actions.append({cText::Tr("Dieses Mal &auslassen"),
                             [this, item] { Change([&] { return cDueItems(m_tools).LeaveOut(item); }); }});
    } else {
        line.Actions.append(
            {cText::Tr("&Verschieben…"), [this, item] { m_parts.Navigator.OpenEntry(item.ID, item.EntryDate); }});
    }
    return line;
}

cOverviewCard cOverviewModel::Due()
{
    cOverviewCard card{eOverviewCard::Due, cText::Tr("In den nächsten 14 Tagen")};
    card.Empty = cText::Tr("Es ist nichts geplant.");
    card.FollowText = cText::Tr("Zeigt alles, was in den nächsten 14 Tagen geplant ist.");
    card.Follow = [this] {
        const QDate today = m_book->Today;
        m_parts.Main.ShowEntries(
            {cText::Tr("In den nächsten 14 Tagen"),
             modWord::AlleBuchungsarten,
             {},
             {today, today.addDays(modOverview::DueDays - 1)},
             [today](const cEntryItemList& entries) { return modOverview::Due(entries, today, modOverview::DueDays); },
             true});
        Q_EMIT EntriesShown();
    };
    qint64 sum = 0;
    for (const cEntryItem& item : std::as_const(m_book->Ahead.Due)) {
        sum += modBalance::Effect(item, {});
    }
    card.Figure = m_book->Ahead.Due.isEmpty() ? QString() : Signed(sum);
    for (const cEntryItem& contract : std::as_const(m_book->Ahead.Contracts)) {
        card.Lines.append({cContracts::Text(contract), {}, eOverviewTone::Warning, [this, contract] {
                               m_parts.Navigator.OpenEntry(contract.ID, contract.Planned());
                           }});
    }
    for (qsizetype i = 0; i < std::min(mostDue, m_book->Ahead.Due.size()); ++i) {
        card.Lines.append(DueLine(m_book->Ahead.Due.at(i)));
    }
    if (m_book->Ahead.Due.size() > mostDue) {
        card.Lines.append({cText::Tr("und {0} weitere", {QString::number(m_book->Ahead.Due.size() - mostDue)}),
                           {},
                           eOverviewTone::Quiet,
                           card.Follow});
    }
    card.Tone = ToneOf(sum);
    return card;
}

cOverviewCard cOverviewModel::Limits()
{
    cOverviewCard card{eOverviewCard::Limits, cText::Tr("Limits dieses Monats")};
    card.FollowText = cText::Tr("Zeigt das Budget.");
    card.Follow = Command(modCommand::Budget);
    for (const cReportGroup& group : std::as_const(m_book->Limits.Expense.Groups)) {
        for (const cReportCategory& category : group.Categories) {
            const cReportAmount& amount = category.Amount;
            const qint64 left = modReport::Left(amount);
            if (amount.Limit <= 0 && left >= 0) {
                continue; // nothing is planned for this month, and nothing was spent
            }
            const QString path = modTemplate::Join(group.Name, category.Name);
            const QString figure = left < 0
                ? cText::Tr("{0} zu viel", {Signed(-left)})
                : cText::Tr("noch {0}, {1} je Tag",
                            {Signed(left), Signed(modOverview::LeftPerDay(left, m_book->Today))});
            card.Lines.append({path,
                               figure,
                               left < 0 ? eOverviewTone::Warning : eOverviewTone::Plain,
                               [this, path] {
                                   ShowMonth({path, modWord::AlleBuchungsarten, path, eUntil::MonthEnd});
                               },
                               Percent(amount),
                               {},
                               m_book->Looks.Shown(path)});
        }
    }
    std::stable_sort(card.Lines.begin(), card.Lines.end(),
                     [](const cOverviewLine& a, const cOverviewLine& b) { return a.Percent > b.Percent; });
    if (card.Lines.size() > mostLimits) {
        const QString more = cText::Tr("und {0} weitere", {QString::number(card.Lines.size() - mostLimits)});
        card.Lines.resize(mostLimits);
        card.Lines.append({more, {}, eOverviewTone::Quiet, card.Follow});
    }
    return card;
}

std::function<void()> cOverviewModel::TaskOf(cOverviewTask::eKind kind)
{
    using eKind = cOverviewTask::eKind;
    switch (kind) {
    case eKind::OpenRows: return [this] { Q_EMIT StatementsWanted(); };
    case eKind::Difference: return Command(modCommand::AccountStatement);
    case eKind::OldStatement: return Command(modCommand::ImportStatement);
    case eKind::OldFetch: return Command(modCommand::FetchTransactions);
    case eKind::NoBackup: return Command(modCommand::BackupSettings);
    case eKind::OldBackup: return Command(modCommand::MakeBackup);
    case eKind::LateSeries:
    case eKind::EndedSeries: return Command(modCommand::CheckSeries);
    }
    return {};
}

cOverviewCard cOverviewModel::Tasks()
{
    cOverviewCard card{eOverviewCard::Tasks, cText::Tr("Zu erledigen")};
    card.Empty = cText::Tr("Alles erledigt.");
    for (const QList<cOverviewTask>& tasks : {m_tasks, cOverviewTasks::Of(m_series)}) {
        for (const cOverviewTask& task : tasks) {
            const bool isWrong =
                task.Kind == cOverviewTask::eKind::Difference || task.Kind == cOverviewTask::eKind::NoBackup;
            card.Lines.append(
                {task.Text, {}, isWrong ? eOverviewTone::Warning : eOverviewTone::Plain, TaskOf(task.Kind)});
        }
    }
    return card;
}

cOverviewCard cOverviewModel::Changes()
{
    cOverviewCard card{eOverviewCard::Changes, cText::Tr("Anders als sonst")};
    for (const modOverview::cChange& change : std::as_const(m_book->Changes)) {
        const QStringList values{change.Group, Signed(std::abs(change.More())), Signed(change.Now),
                                 Signed(change.Usual)};
        card.Lines.append({change.More() > 0
                               ? cText::Tr("{0}: {1} mehr als sonst bis zu diesem Tag ({2} statt {3})", values)
                               : cText::Tr("{0}: {1} weniger als sonst bis zu diesem Tag ({2} statt {3})", values),
                           {},
                           eOverviewTone::Plain,
                           [this, group = change.Group] {
                               ShowMonth({group, modWord::AlleBuchungsarten, group});
                           }});
    }
    return card;
}
