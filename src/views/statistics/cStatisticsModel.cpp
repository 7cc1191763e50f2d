#include "views/statistics/cStatisticsModel.h"

#include "base/cClock.h"
#include "base/cShell.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/cTemplateItem.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "views/chart/modChart.h"
#include "views/common/modFileWrite.h"
#include "views/common/modSetting.h"
#include "views/main/cMainModel.h"
#include "views/main/cNavigator.h"
#include "views/report/cReportExport.h"
#include "views/report/modReport.h"
#include "views/report/modReportHtml.h"

#include <QDir>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// Keys of the page's settings begin so.
const QString reportPane; // the charts are "1" and "2"

// What a selection of entries is, in words.
QString TitleOf(const cReportNode& node)
{
    QStringList parts{modReport::ShownKind(node.Kind)};
    if (node.Group) {
        parts.append(node.Group->isEmpty()                 ? cText::Tr("Sonstiges")
                         : *node.Group == modReport::NoTag ? cText::Tr("ohne Schlagwort")
                                                           : *node.Group);
    }
    if (node.Category) {
        parts.append(node.Category->isEmpty() ? cText::Tr("Sonstiges") : *node.Category);
    }
    return parts.join(u" › "_s);
}

std::function<cEntryItemList(const cEntryItemList&)> Picker(const cReportWish& wish, const cReportNode& node,
                                                            const cLimits& limits)
{
    return [wish, node, limits](const cEntryItemList& entries) {
        return modReport::EntriesOf(entries, wish, node, limits);
    };
}

// Income and expense alike, as far as they count in the reports.
std::function<cEntryItemList(const cEntryItemList&)> Picker(const cReportWish& wish)
{
    return [wish](const cEntryItemList& entries) {
        cEntryItemList found;
        std::copy_if(entries.begin(), entries.end(), std::back_inserter(found),
                     [&](const cEntryItem& entry) { return modReport::NodeOf(entry, wish).has_value(); });
        return found;
    };
}

bool HasTags(const cReportFigures& figures)
{
    const auto isTag = [](const cReportGroup& group) { return group.Name != modReport::NoTag; };
    return std::any_of(figures.Income.Groups.begin(), figures.Income.Groups.end(), isTag)
        || std::any_of(figures.Expense.Groups.begin(), figures.Expense.Groups.end(), isTag);
}

template <typename tEnum>
tEnum Stored(const cSettings& settings, const cSettingKey& key, tEnum last)
{
    bool isNumber = false;
    const int value = settings.Get(key).toInt(&isNumber);
    return static_cast<tEnum>(isNumber && value >= 0 && value <= static_cast<int>(last) ? value
                                                                                        : key.Default().toInt());
}

template <typename tEnum>
void Store(cSettings& settings, const cSettingKey& key, tEnum value)
{
    modSetting::Keep(settings, key, QString::number(static_cast<int>(value)));
}

} // namespace

cStatisticsModel::cStatisticsModel(const cBookTools& tools, const cParts& parts, QObject* parent)
    : QObject(parent),
      m_tools(tools),
      m_parts(parts),
      m_source(tools),
      m_tree(tools.Format),
      m_firstChart(tools, u"1"_s, eChartKind::ExpensePie),
      m_secondChart(tools, u"2"_s, eChartKind::Months)
{
    for (const cStatisticsChart* chart : {&m_firstChart, &m_secondChart}) {
        connect(chart, &cStatisticsChart::PeriodChosen, this, [this, chart](const QString& name) {
            if (!chart->HasForecast()) { // which shows what comes in any case
                OfferFuture(name);
            }
        });
    }
}

void cStatisticsModel::Restore()
{
    const cSettings& settings = m_tools.Settings;
    m_type = Stored(settings, modSettingKey::StatisticsReport, eReport::Tag);
    m_period.Restore(settings, reportPane, m_tools.Clock.Today());
    m_order = Stored(settings, modSettingKey::StatisticsOrder, eReportOrder::ByAmount);
    m_spending = Stored(settings, modSettingKey::StatisticsSpending, eReportSpending::Gross);
    m_page = Stored(settings, modSettingKey::StatisticsPage, ePage::Charts);
    const int zoom = settings.Get(modSettingKey::StatisticsZoom).toInt();
    m_zoom = zoom > 0 ? zoom : modSettingKey::StatisticsZoom.Default().toInt();
    for (cStatisticsChart* chart : {&m_firstChart, &m_secondChart}) {
        chart->Restore();
    }
    m_switches = {Wish().ShowsFuture, Wish().ShowsStart};
    BookChanged();
}

void cStatisticsModel::SetShown(bool isShown)
{
    m_isShown = isShown;
    m_firstChart.SetShown(isShown && m_page == ePage::Charts);
    m_secondChart.SetShown(isShown && m_page == ePage::Charts);
    if (IsReportShown() && m_isStale) {
        Refresh();
    }
}

void cStatisticsModel::ChoosePage(ePage page)
{
    m_page = page;
    Store(m_tools.Settings, modSettingKey::StatisticsPage, page);
    SetShown(m_isShown);
}

QStringList cStatisticsModel::Accounts() const
{
    return m_parts.Main.Accounts();
}

cReportWish cStatisticsModel::Wish() const
{
    cReportWish wish = m_source.Wish(m_type, m_account, m_period.Name, m_period.Free());
    wish.Order = m_order;
    wish.Spending = m_spending;
    return wish;
}

modPeriod::cRange cStatisticsModel::Range() const
{
    return m_period.Range(m_tools.Clock.Today());
}

void cStatisticsModel::Changed()
{
    cSettings& settings = m_tools.Settings;
    Store(settings, modSettingKey::StatisticsReport, m_type);
    Store(settings, modSettingKey::StatisticsOrder, m_order);
    Store(settings, modSettingKey::StatisticsSpending, m_spending);
    m_period.Save(settings, reportPane);
    Q_EMIT SelectorsChanged();
    m_isStale = true;
    SetShown(m_isShown);
}

void cStatisticsModel::Refresh()
{
    const cReportWish wish = Wish();
    const cReportFigures& figures = m_source.Figures(wish);
    const QString html = modReportHtml::Html(figures, wish, m_tools.Format);
    m_isStale = false;
    if (html != m_html || figures != m_tree.Figures()) {
        m_html = html;
        m_tree.SetFigures(figures);
        Q_EMIT ReportChanged();
    }
}

QString cStatisticsModel::Hint() const
{
    if (m_type == eReport::Tag && !m_tree.Figures().IsUnread && !HasTags(m_tree.Figures())) {
        return cText::Tr("Kein Eintrag dieses Zeitraums hat ein Schlagwort. Schreiben Sie eines mit # in die "
                         "Beschreibung, etwa #urlaub.");
    }
    return IsLimit() && !m_tree.Figures().IsUnread && m_tree.Figures().Expense.Groups.isEmpty()
        ? cText::Tr("Noch hat keine Kategorie ein Monatslimit. Sie legen eines unter „Extras“, „Kategorie/Konto "
                    "bearbeiten“ fest.")
        : QString();
}

QString cStatisticsModel::PrintHtml()
{
    cReportWish wish = Wish();
    wish.Links = eReportLinks::Off;
    return m_source.Html(wish);
}

void cStatisticsModel::ChooseReport(eReport type)
{
    m_type = type;
    Changed();
}

void cStatisticsModel::ChooseAccount(const QString& account)
{
    m_account = Accounts().contains(account) ? account : modWord::AlleKonten;
    modSetting::Keep(m_tools.Settings, modSettingKey::StatisticsAccount, m_account);
    m_firstChart.SetAccount(Wish().Account);
    m_secondChart.SetAccount(Wish().Account);
    Changed();
}

void cStatisticsModel::ChoosePeriod(const QString& name)
{
    m_period.Choose(name, m_tools.Clock.Today());
    OfferFuture(name);
    Changed();
}

void cStatisticsModel::OfferFuture(const QString& period)
{
    if (!Wish().ShowsFuture) {
        m_parts.Main.OfferFuture(period);
        if (Wish().ShowsFuture) {
            m_parts.Main.RefreshView();
        }
    }
}

void cStatisticsModel::ChooseFirstMonth(int month)
{
    m_period.ChooseFirst(month);
    Changed();
}

void cStatisticsModel::ChooseLastMonth(int month)
{
    m_period.ChooseLast(month);
    Changed();
}

void cStatisticsModel::ChooseYear(int year)
{
    m_period.Year = year;
    Changed();
}

void cStatisticsModel::SetOrder(eReportOrder order)
{
    m_order = order;
    Changed();
}

void cStatisticsModel::SetSpending(eReportSpending spending)
{
    m_spending = spending;
    Changed();
}

void cStatisticsModel::SetZoom(int percent)
{
    if (percent == m_zoom) {
        return;
    }
    m_zoom = percent;
    m_tools.Settings.Set(modSettingKey::StatisticsZoom, QString::number(percent));
}

void cStatisticsModel::BookChanged()
{
    const QString account = m_tools.Settings.Get(modSettingKey::StatisticsAccount);
    m_account = Accounts().contains(account) ? account : modWord::AlleKonten; // which may come back
    m_source.Forget();
    m_isStale = true;
    for (cStatisticsChart* chart : {&m_firstChart, &m_secondChart}) {
        chart->Invalidate();
        chart->SetAccount(Wish().Account);
    }
    Q_EMIT SelectorsChanged();
    SetShown(m_isShown);
}

void cStatisticsModel::ViewChanged()
{
    const cReportWish wish = Wish();
    const std::pair switches(wish.ShowsFuture, wish.ShowsStart);
    if (switches != m_switches) {
        m_switches = switches;
        m_isStale = true;
        m_firstChart.Invalidate();
        m_secondChart.Invalidate();
        SetShown(m_isShown);
    }
}

QString cStatisticsModel::TypeOf(const cReportWish& wish, const cReportNode& node) const
{
    if (modReport::HasLimits(wish.Type) && wish.Spending == eReportSpending::Net) {
        return modWord::AlleBuchungsarten; // what came back has been taken off, so it has to be seen
    }
    return node.Kind == eReportKind::Income ? modWord::Einnahme : modWord::Ausgabe;
}

bool cStatisticsModel::IsLimit() const
{
    return modReport::HasLimits(m_type);
}

void cStatisticsModel::ShowSelected(const cReportWish& wish, const cReportNode& node)
{
    m_parts.Main.ShowEntries(
        {TitleOf(node), TypeOf(wish, node), wish.Account, wish.Range, Picker(wish, node, m_source.Limits(wish))});
    Q_EMIT EntriesShown();
}

void cStatisticsModel::ShowNode(const cReportNode& node)
{
    ShowSelected(Wish(), node);
}

void cStatisticsModel::ShowTarget(const cStatisticsChart& chart, const cChartTarget& target)
{
    cChartWish asked = chart.Wish();
    asked.Account = target.Account;
    const cReportWish wish = modChart::ReportWish(asked, target.Range, m_tools.Clock.Today());
    if (target.Node) {
        ShowSelected(wish, *target.Node);
        return;
    }
    const bool isBalance = cChartMaker::HasForecast(chart.Kind()); // every entry moves a balance, transfers too
    m_parts.Main.ShowEntries({cText::Tr("Alle Einträge"), modWord::AlleBuchungsarten, target.Account, target.Range,
                              isBalance ? nullptr : Picker(wish), isBalance});
    Q_EMIT EntriesShown();
}

void cStatisticsModel::EditCategory(const cReportNode& node)
{
    if (m_type == eReport::Tag) {
        if (node.Category) { // which stands whole below its tag
            m_parts.Navigator.OpenTemplates(*node.Category);
        }
    } else if (node.Group) {
        m_parts.Navigator.OpenTemplates(modTemplate::Join(*node.Group, node.Category.value_or(QString())));
    }
}

void cStatisticsModel::FollowLink(const QString& link, const QString& name)
{
    const modReportLink::cLink parsed = modReportLink::Parse(link);
    if (const auto* edit = std::get_if<modReportLink::cEditCategory>(&parsed)) {
        m_parts.Navigator.OpenTemplates(edit->Path);
    } else if (const auto* entries = std::get_if<modReportLink::cShowEntries>(&parsed)) {
        FollowEntries(*entries, name);
    } else if (const auto* page = std::get_if<modReportLink::cOpenPage>(&parsed)) {
        (void)m_parts.Shell.OpenPage(page->Url);
    }
}

QModelIndex cStatisticsModel::LineOf(const modReportLink::cShowEntries& link, const QString& name) const
{
    const cReportNode& node = link.Node;
    const QList<cReportGroup>& groups = m_tree.Figures().Section(node.Kind).Groups;
    for (const cReportGroup& group : groups) {
        for (const cReportCategory& category : group.Categories) {
            const bool isOwn = !node.Category && group.Name == node.Group && category.Name.isEmpty();
            if (isOwn && category.Label.simplified() == name) {
                return m_tree.FindNode({node.Kind, node.Group, u""_s});
            }
        }
    }
    const QModelIndex index = m_tree.FindNode(node);
    return index.isValid() ? index : m_tree.FindNode(link.Cut);
}

void cStatisticsModel::FollowEntries(const modReportLink::cShowEntries& link, const QString& name)
{
    const QModelIndex index = LineOf(link, name);
    cReportWish wish = Wish();
    wish.Range = link.Range;
    wish.Account = link.Account;
    if (index.isValid()) {
        Q_EMIT NodeChosen(index);
        ShowSelected(wish, m_tree.NodeAt(index));
    } else {
        ShowSelected(wish, link.Node);
    }
}

void cStatisticsModel::SavePdf(const fnPaintPdf& paint)
{
    const cReportWish wish = Wish();
    const QString title = cText::Tr("Als PDF speichern");
    const QString proposal = u"Kontorelle-%1-%2.pdf"_s.arg(modReport::ShownName(wish.Type), modDate::ToIso(wish.Today));
    const QString path = m_tools.User.ChooseSavePath(title, cText::Tr("PDF-Datei|*.pdf|Alle Dateien|*.*"), proposal);
    if (path.isEmpty()) {
        return;
    }
    const QString problem = modFileWrite::Export(m_tools.Data, path, paint(PrintHtml(), m_tools.Clock.Today()));
    const eTone tone = problem.isEmpty() ? eTone::Information : eTone::Critical;
    const QString done = cText::Tr("Der Bericht wurde nach '{0}' gespeichert.", {QDir::toNativeSeparators(path)});
    m_tools.User.Show(tone, problem.isEmpty() ? done : problem, title);
}

void cStatisticsModel::SaveFile()
{
    (void)cReportExport(m_tools, m_source).Run(Wish());
}

void cStatisticsModel::SaveChart(const cChartData& chart, const cChartSave::cPictures& pictures)
{
    (void)cChartSave(m_tools, pictures).Run(chart, m_tools.Clock.Today());
}
