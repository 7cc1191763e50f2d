#include "windows/statistics/cChartPane.h"

#include "base/cText.h"
#include "model/modWord.h"
#include "views/statistics/cStatisticsChart.h"
#include "windows/chart/cChartBox.h"
#include "windows/widget/cFlowLayout.h"
#include "windows/widget/cPeriodPicker.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QSignalBlocker>

#include <array>
#include <initializer_list>

namespace {

constexpr int nothing = 0; // rows of the comparison before the period names
constexpr int yearBefore = 1;

constexpr std::array<int, 5> forecasts{0, 1, 3, 6, 12}; // months

} // namespace

cChartPane::cChartPane(cStatisticsChart& model, const QString& name, QWidget* parent)
    : QWidget(parent),
      m_model(model),
      m_kind(new QComboBox(this)),
      m_compare(new QComboBox(this)),
      m_period(new cPeriodPicker(this)),
      m_forecast(new QComboBox(this)),
      m_average(new QCheckBox(cText::Tr("mit Einzelausgaben"), this)),
      m_box(new cChartBox(this))
{
    setAccessibleName(name);
    Build();
    Connect();
    ShowChart();
}

void cChartPane::Build()
{
    m_kind->addItems(cStatisticsChart::Kinds());
    m_kind->setAccessibleName(cText::Tr("Diagramm"));
    m_compare->addItem(cText::Tr("kein Vergleich"));
    m_compare->addItem(cText::Tr("Jahr davor"));
    const QStringList periods = modWord::Periods().Stored();
    for (const QString& period : periods) {
        if (period != modWord::FreierZeitraum && period != modWord::AlleBuchungen) {
            m_compare->addItem(modWord::Periods().ToShown(period), period);
        }
    }
    m_compare->setMaxVisibleItems(m_compare->count());
    m_compare->setAccessibleName(cText::Tr("Vergleich"));
    m_compare->setToolTip(cText::Tr("Legt einen zweiten Zeitraum daneben"));
    for (const int months : forecasts) {
        m_forecast->addItem(months == 0       ? cText::Tr("keine Vorschau")
                                : months == 1 ? cText::Tr("1 Monat voraus")
                                              : cText::Tr("{0} Monate voraus", {QString::number(months)}),
                            months);
    }
    m_forecast->setAccessibleName(cText::Tr("Vorschau"));
    m_average->setToolTip(cText::Tr("Die Vorschau zieht auch ab, was im Schnitt einmalig ausgegeben wird"));
    const auto row = [](std::initializer_list<QWidget*> widgets) {
        auto* line = new cFlowLayout;
        for (QWidget* widget : widgets) {
            line->addWidget(widget);
        }
        return line;
    };
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 0);
    layout->addLayout(row({m_kind, m_compare}));
    layout->addWidget(m_period);
    layout->addLayout(row({m_forecast, m_average}));
    layout->addWidget(m_box, 1);
}

void cChartPane::Connect()
{
    connect(m_kind, &QComboBox::activated, &m_model,
            [this](int index) { m_model.ChooseKind(static_cast<eChartKind>(index)); });
    connect(m_compare, &QComboBox::activated, this, &cChartPane::Compare);
    connect(m_forecast, &QComboBox::activated, &m_model,
            [this] { m_model.ChooseForecast(m_forecast->currentData().toInt()); });
    connect(m_average, &QCheckBox::clicked, &m_model, &cStatisticsChart::ShowAverage);
    connect(m_period, &cPeriodPicker::PeriodChosen, &m_model, &cStatisticsChart::ChoosePeriod);
    connect(m_period, &cPeriodPicker::FirstMonthChosen, &m_model, &cStatisticsChart::ChooseFirstMonth);
    connect(m_period, &cPeriodPicker::LastMonthChosen, &m_model, &cStatisticsChart::ChooseLastMonth);
    connect(m_period, &cPeriodPicker::YearChosen, &m_model, &cStatisticsChart::ChooseYear);
    connect(m_box, &cChartBox::PartClicked, this, &cChartPane::PartClicked);
    connect(m_box, &cChartBox::BackRequested, &m_model, &cStatisticsChart::GoUp);
    connect(m_box, &cChartBox::SaveRequested, this, &cChartPane::SaveRequested);
    connect(&m_model, &cStatisticsChart::Changed, this, &cChartPane::ShowChart);
}

void cChartPane::Compare(int index)
{
    using enum cStatisticsChart::eCompare;
    m_model.ChooseCompare(index == nothing          ? Nothing
                              : index == yearBefore ? YearBefore
                                                    : Period,
                          m_compare->itemData(index).toString());
}

void cChartPane::ShowChart()
{
    using enum cStatisticsChart::eCompare;
    const QSignalBlocker blocker(m_average);
    m_kind->setCurrentIndex(static_cast<int>(m_model.Kind()));
    const int second = m_compare->findData(m_model.SecondPeriod());
    m_compare->setCurrentIndex(m_model.Compare() == YearBefore                  ? yearBefore
                                   : m_model.Compare() == Period && second >= 0 ? second
                                                                                : nothing);
    m_forecast->setCurrentIndex(m_forecast->findData(m_model.ForecastMonths()));
    m_average->setChecked(m_model.ShowsAverage());
    m_compare->setVisible(m_model.CanCompare());
    m_forecast->setVisible(m_model.HasForecast());
    m_average->setVisible(m_model.HasForecast());
    m_period->ShowPeriod(m_model.Period(), m_model.Range());
    m_box->SetData(m_model.Data());
}
