#include "windows/statistics/frmStatistik.h"

#include "base/cText.h"
#include "model/modWord.h"
#include "views/report/modReport.h"
#include "views/statistics/cStatisticsModel.h"
#include "windows/chart/cChartBox.h"
#include "windows/chart/modChartPainter.h"
#include "windows/print/modPages.h"
#include "windows/report/cReportPane.h"
#include "windows/report/cReportPrinter.h"
#include "windows/report/cReportView.h"
#include "windows/statistics/cChartPane.h"
#include "windows/statistics/cReportTree.h"
#include "windows/widget/cFieldGrid.h"
#include "windows/widget/cFlowLayout.h"
#include "windows/widget/cPeriodPicker.h"
#include "windows/widget/cTurningSplitter.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QTabWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int besideLetters = 110; // two charts, or tree and report, stand side by side from this width on

void Choose(QComboBox& combo, const QVariant& data)
{
    combo.setCurrentIndex(combo.findData(data));
}

} // namespace

frmStatistik::frmStatistik(cStatisticsModel& model, QWidget* parent)
    : QWidget(parent),
      m_model(model),
      m_pages(new QTabWidget(this)),
      m_account(new QComboBox(this)),
      m_type(new QComboBox(this)),
      m_period(new cPeriodPicker(this)),
      m_byAmount(new QCheckBox(cText::Tr("&Nach Betrag geordnet"), this)),
      m_gross(new QCheckBox(cText::Tr("Ohne Abzug &von Erstattungen"), this)),
      m_save(new QPushButton(cText::Tr("S&peichern"), this)),
      m_print(new QPushButton(cText::Tr("Dr&ucken…"), this)),
      m_hint(new QLabel(this)),
      m_tree(new cReportTree(model.Tree(), this)),
      m_report(new cReportPane(this))
{
    auto* corner = new QWidget(this);
    auto* account = new QHBoxLayout(corner);
    account->setContentsMargins(0, 0, 8, 2);
    auto* label = new QLabel(cText::Tr("&Konto:"), corner);
    label->setBuddy(m_account);
    account->addWidget(label);
    account->addWidget(m_account);
    m_account->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_pages->setDocumentMode(true);
    m_pages->setCornerWidget(corner);
    m_pages->addTab(BuildReportPage(), cText::Tr("Be&richt"));
    m_pages->addTab(BuildChartPage(), cText::Tr("Dia&gramme"));
    m_pages->setCurrentIndex(static_cast<int>(m_model.Page()));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 4, 0, 0);
    layout->addWidget(m_pages);
    Connect();
    ShowSelectors();
    ShowReport();
    m_report->View().SetZoom(m_model.Zoom());
}

QWidget* frmStatistik::BuildSelectors()
{
    for (const eReport type : {eReport::Average, eReport::Sum, eReport::Limit, eReport::Budget, eReport::Tag}) {
        m_type->addItem(modReport::ShownName(type), static_cast<int>(type));
    }
    auto* page = new QWidget(this);
    constexpr int mostColumns = 2;
    auto* first = new cFieldGrid(mostColumns);
    first->AddField(cText::Tr("Berich&t:"), m_type);
    first->AddField(cText::Tr("&Zeitraum:"), m_period);
    auto* second = new cFlowLayout;
    second->addWidget(m_byAmount);
    second->addWidget(m_gross);
    second->AddStretch();
    second->addWidget(m_save);
    second->addWidget(m_print);
    auto* rows = new QVBoxLayout(page);
    rows->setContentsMargins(8, 8, 8, 2);
    rows->addLayout(first);
    rows->addLayout(second);
    m_byAmount->setToolTip(cText::Tr("Die größten Beträge zuerst statt der Reihe nach dem Namen"));
    m_gross->setToolTip(cText::Tr("Zählt alle Ausgaben, auch wenn ein Teil auf derselben Kategorie zurückkam"));
    BuildSaveMenu();
    return page;
}

void frmStatistik::BuildSaveMenu()
{
    auto* menu = new QMenu(m_save);
    menu->addAction(cText::Tr("Als &PDF speichern…"), this, [this] {
        m_model.SavePdf([this](const QString& html, QDate today) {
            cReportPrinter pages(html, font().family(), today);
            return modPages::Pdf(pages);
        });
    });
    menu->addAction(cText::Tr("Als &HTML-Seite oder Tabelle speichern…"), this, [this] { m_model.SaveFile(); });
    m_save->setMenu(menu);
}

QWidget* frmStatistik::BuildReportPage()
{
    auto* split = new cTurningSplitter(besideLetters, this);
    split->addWidget(m_tree);
    split->addWidget(m_report);
    split->setStretchFactor(0, 1); // the report needs more of a narrow page than the tree of its figures
    split->setStretchFactor(1, 2);
    const int character = fontMetrics().averageCharWidth();
    split->setSizes({character * 36, character * 84});
    m_hint->setWordWrap(true);
    m_hint->setContentsMargins(8, 4, 8, 6);
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(BuildSelectors());
    layout->addWidget(m_hint);
    layout->addWidget(split, 1);
    return page;
}

QWidget* frmStatistik::BuildChartPage()
{
    auto* split = new cTurningSplitter(besideLetters, this);
    AddChart(m_model.FirstChart(), cText::Tr("Erstes Diagramm"), *split);
    AddChart(m_model.SecondChart(), cText::Tr("Zweites Diagramm"), *split);
    auto* page = new QScrollArea(this); // two charts must not make the window higher than a small screen
    page->setFrameShape(QFrame::NoFrame);
    page->setWidgetResizable(true);
    page->setFocusPolicy(Qt::NoFocus);
    page->setWidget(split);
    return page;
}

void frmStatistik::AddChart(cStatisticsChart& chart, const QString& name, QSplitter& split)
{
    auto* pane = new cChartPane(chart, name, this);
    split.addWidget(pane);
    m_charts.append(pane);
    connect(pane, &cChartPane::PartClicked, this, [this, &chart](int series, int index) {
        if (const std::optional<cChartTarget> target = chart.Click(series, index)) {
            m_model.ShowTarget(chart, *target);
        }
    });
    connect(pane, &cChartPane::SaveRequested, this, [this, pane] { SaveChart(*pane); });
}

QList<cChartData> frmStatistik::ShownCharts() const
{
    QList<cChartData> charts;
    for (cChartPane* pane : m_charts) {
        charts.append(pane->Box().ShownData());
    }
    return charts;
}

void frmStatistik::Connect()
{
    connect(m_pages, &QTabWidget::currentChanged, &m_model,
            [this](int page) { m_model.ChoosePage(static_cast<cStatisticsModel::ePage>(page)); });
    connect(m_account, &QComboBox::activated, &m_model,
            [this] { m_model.ChooseAccount(m_account->currentData().toString()); });
    connect(m_type, &QComboBox::activated, &m_model,
            [this] { m_model.ChooseReport(static_cast<eReport>(m_type->currentData().toInt())); });
    connect(m_period, &cPeriodPicker::PeriodChosen, &m_model, &cStatisticsModel::ChoosePeriod);
    connect(m_period, &cPeriodPicker::FirstMonthChosen, &m_model, &cStatisticsModel::ChooseFirstMonth);
    connect(m_period, &cPeriodPicker::LastMonthChosen, &m_model, &cStatisticsModel::ChooseLastMonth);
    connect(m_period, &cPeriodPicker::YearChosen, &m_model, &cStatisticsModel::ChooseYear);
    connect(m_byAmount, &QCheckBox::clicked, &m_model,
            [this](bool isOn) { m_model.SetOrder(isOn ? eReportOrder::ByAmount : eReportOrder::ByName); });
    connect(m_gross, &QCheckBox::clicked, &m_model,
            [this](bool isOn) { m_model.SetSpending(isOn ? eReportSpending::Gross : eReportSpending::Net); });
    connect(m_print, &QPushButton::clicked, this, &frmStatistik::PrintRequested);
    connect(&m_report->View(), &cReportView::LinkClicked, &m_model, &cStatisticsModel::FollowLink);
    connect(&m_report->View(), &cReportView::ZoomChanged, &m_model, &cStatisticsModel::SetZoom);
    connect(&m_model, &cStatisticsModel::SelectorsChanged, this, &frmStatistik::ShowSelectors);
    connect(&m_model, &cStatisticsModel::ReportChanged, this, &frmStatistik::ShowReport);
    connect(&m_model, &cStatisticsModel::NodeChosen, m_tree, &QTreeView::setCurrentIndex);
    connect(m_tree, &cReportTree::EntriesRequested, &m_model, &cStatisticsModel::ShowNode);
    connect(m_tree, &cReportTree::EditRequested, &m_model, &cStatisticsModel::EditCategory);
}

void frmStatistik::ShowSelectors()
{
    const cReportWish wish = m_model.Wish();
    const QStringList accounts = m_model.Accounts();
    m_account->clear();
    for (const QString& account : accounts) {
        m_account->addItem(account == modWord::AlleKonten ? cText::Tr("Alle Konten") : account, account);
    }
    Choose(*m_account, m_model.Account());
    Choose(*m_type, static_cast<int>(wish.Type));
    m_period->ShowPeriod(m_model.Period(), m_model.Range());
    m_byAmount->setChecked(wish.Order == eReportOrder::ByAmount);
    m_gross->setChecked(wish.Spending == eReportSpending::Gross);
    m_gross->setVisible(m_model.IsLimit());
}

void frmStatistik::ShowReport()
{
    m_report->View().SetReport(m_model.Html());
    m_hint->setText(m_model.Hint());
    m_hint->setHidden(m_hint->text().isEmpty());
}

void frmStatistik::SaveChart(cChartPane& pane)
{
    const QSize size = pane.Box().size();
    m_model.SaveChart(pane.Box().ShownData(),
                      {[size](const cChartData& chart) { return modChartPainter::Png(chart, size); },
                       [size](const cChartData& chart) { return modChartPainter::Svg(chart, size); }});
}

void frmStatistik::showEvent(QShowEvent* event)
{
    ShowSelectors(); // an import may have brought an account
    m_model.SetShown(true);
    QWidget::showEvent(event);
    if (m_pages->currentIndex() == 0) {
        m_report->View().setFocus(); // to be read with the keys at once
    }
}

void frmStatistik::hideEvent(QHideEvent* event)
{
    m_model.SetShown(false);
    QWidget::hideEvent(event);
}
