#include "windows/widget/cPeriodPicker.h"

#include "base/cText.h"
#include "model/modWord.h"
#include "views/report/cStatisticsPeriod.h"
#include "windows/widget/cFlowLayout.h"
#include "windows/widget/modChoice.h"

#include <QComboBox>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QSpinBox>

cPeriodPicker::cPeriodPicker(QWidget* parent)
    : QWidget(parent),
      m_name(new QComboBox(this)),
      m_first(MakeMonths(cText::Tr("Erster Monat"))),
      m_last(MakeMonths(cText::tr("Letzter Monat", "Zeitraum"))),
      m_year(new QSpinBox(this))
{
    m_layout = new cFlowLayout(this);
    modChoice::AddWords(*m_name, modWord::Periods());
    m_name->setMaxVisibleItems(m_name->count());
    m_name->setAccessibleName(cText::Tr("Zeitraum"));
    m_year->setRange(cStatisticsPeriod::FirstYear, cStatisticsPeriod::LastYear);
    m_year->setSpecialValueText(QStringLiteral("–")); // an open end
    m_year->setKeyboardTracking(false);
    m_year->setAccessibleName(cText::Tr("Jahr"));
    setFocusProxy(m_name);
    m_layout->addWidget(m_name);
    Add(cText::tr("von", "Zeitraum"), m_first); // and not "2 von 3"
    Add(cText::Tr("bis"), m_last);
    m_layout->addWidget(m_year);
    connect(m_name, &QComboBox::activated, this, [this] { Q_EMIT PeriodChosen(m_name->currentData().toString()); });
    connect(m_first, &QComboBox::activated, this, [this](int index) { Q_EMIT FirstMonthChosen(index + 1); });
    connect(m_last, &QComboBox::activated, this, [this](int index) { Q_EMIT LastMonthChosen(index + 1); });
    connect(m_year, &QSpinBox::valueChanged, this, &cPeriodPicker::YearChosen);
}

QComboBox* cPeriodPicker::MakeMonths(const QString& name)
{
    auto* months = new QComboBox(this);
    const QLocale locale;
    for (int month = 1; month <= 12; ++month) {
        months->addItem(locale.standaloneMonthName(month, QLocale::ShortFormat));
    }
    months->setMaxVisibleItems(months->count());
    months->setAccessibleName(name);
    return months;
}

void cPeriodPicker::Add(const QString& text, QWidget* field)
{
    m_layout->AddField(new QLabel(text, this), field);
}

void cPeriodPicker::ShowPeriod(const cStatisticsPeriod& period, const modPeriod::cRange& range)
{
    const QSignalBlocker yearBlocker(m_year);
    modChoice::Choose(*m_name, period.Name);
    const auto show = [&](QComboBox& months, QDate day, int chosen) {
        months.setCurrentIndex(period.IsFree() ? chosen - 1 : day.isValid() ? day.month() - 1 : -1);
        months.setEnabled(period.IsFree());
    };
    const bool isOneYear = range.Start.year() == range.End.year(); // else the year does not belong to the first month
    show(*m_first, isOneYear ? range.Start : QDate(), period.FirstMonth);
    show(*m_last, range.End, period.LastMonth);
    m_year->setValue(period.IsFree()           ? period.Year
                         : range.End.isValid() ? range.End.year()
                                               : cStatisticsPeriod::FirstYear);
    m_year->setEnabled(period.IsFree());
}
