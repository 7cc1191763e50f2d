#pragma once

#include "views/chart/cChartSave.h"
#include "views/list/cEntrySelection.h"
#include "views/report/cReportSource.h"
#include "views/report/cReportTreeModel.h"
#include "views/report/cReportWish.h"
#include "views/report/cStatisticsPeriod.h"
#include "views/report/modReportLink.h"
#include "views/statistics/cStatisticsChart.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <utility>

class cMainModel;
class cNavigator;
class cShell;
struct cBookTools;

// The statistics page without its widgets: a report with the tree of its figures, two charts beside it, and the ways
// from there to the entries. Works only while somebody looks.
class cStatisticsModel final : public QObject
{
    Q_OBJECT

public:
    // What the model works with; all of it outlives the model.
    struct cParts
    {
        cShell& Shell;
        cNavigator& Navigator;
        cMainModel& Main;
    };

    enum class ePage { Report, Charts };

    cStatisticsModel(const cBookTools& tools, const cParts& parts, QObject* parent = nullptr);

    // Reads the selectors from the settings; also after another book was opened.
    void Restore();
    void SetShown(bool isShown); // the page came to the front or went
    void ChoosePage(ePage page);

    // The selectors. Each stores and refreshes.
    void ChooseReport(eReport type);
    void ChooseAccount(const QString& account); // "Alle Konten" or a name
    void ChoosePeriod(const QString& name);
    void ChooseFirstMonth(int month);
    void ChooseLastMonth(int month);
    void ChooseYear(int year);
    void SetOrder(eReportOrder order);
    void SetSpending(eReportSpending spending);
    void SetZoom(int percent);

    [[nodiscard]] cReportWish Wish() const;
    [[nodiscard]] const cStatisticsPeriod& Period() const { return m_period; }
    [[nodiscard]] modPeriod::cRange Range() const;
    [[nodiscard]] const QString& Account() const { return m_account; }
    [[nodiscard]] QStringList Accounts() const; // "Alle Konten" first
    [[nodiscard]] ePage Page() const { return m_page; }
    [[nodiscard]] int Zoom() const { return m_zoom; }
    [[nodiscard]] bool IsLimit() const; // a report about limits

    [[nodiscard]] const QString& Html() const { return m_html; }
    [[nodiscard]] QString Hint() const; // what can be done about an empty report; none: nothing
    [[nodiscard]] QString PrintHtml();  // the same report without links
    [[nodiscard]] cReportTreeModel& Tree() { return m_tree; }
    [[nodiscard]] cStatisticsChart& FirstChart() { return m_firstChart; }
    [[nodiscard]] cStatisticsChart& SecondChart() { return m_secondChart; }

    // What a click means. A link of no known kind does nothing. `name`: the words that it stands on; a main category
    // and what is booked on it directly have the same link.
    void FollowLink(const QString& link, const QString& name = {});
    void ShowNode(const cReportNode& node);
    void ShowTarget(const cStatisticsChart& chart, const cChartTarget& target);
    void EditCategory(const cReportNode& node); // in the category management

    // Asks for a file and writes the report into it. `paint` makes a PDF of a report without links, no bytes on
    // failure.
    using fnPaintPdf = std::function<QByteArray(const QString& html, QDate today)>;
    void SavePdf(const fnPaintPdf& paint);
    void SaveFile(); // as HTML page, or the figures as table
    void SaveChart(const cChartData& chart, const cChartSave::cPictures& pictures);

    // After the book or the view's switches have changed.
    void BookChanged();
    void ViewChanged();

Q_SIGNALS:
    void SelectorsChanged();
    void ReportChanged();                      // the report reads otherwise than before
    void NodeChosen(const QModelIndex& index); // a link leads to this line of the tree
    void EntriesShown();                       // the entry list shows a selection now

private:
    void OfferFuture(const QString& period);
    void Changed(); // a selector: stores and refreshes
    void Refresh();
    void ShowSelected(const cReportWish& wish, const cReportNode& node);
    void FollowEntries(const modReportLink::cShowEntries& link, const QString& name);
    [[nodiscard]] QModelIndex LineOf(const modReportLink::cShowEntries& link, const QString& name) const;
    [[nodiscard]] QString TypeOf(const cReportWish& wish, const cReportNode& node) const;
    [[nodiscard]] bool IsReportShown() const { return m_isShown && m_page == ePage::Report; }

    const cBookTools& m_tools;
    cParts m_parts;
    cReportSource m_source;
    cReportTreeModel m_tree;
    cStatisticsChart m_firstChart;
    cStatisticsChart m_secondChart;
    ePage m_page = ePage::Report;
    eReport m_type = eReport::Average;
    QString m_account;
    cStatisticsPeriod m_period;
    eReportOrder m_order = eReportOrder::ByName;
    eReportSpending m_spending = eReportSpending::Net;
    int m_zoom = 100;
    std::pair<bool, bool> m_switches{true, true}; // future entries and start balances, as they were last
    QString m_html;
    bool m_isShown = false;
    bool m_isStale = true;
};
