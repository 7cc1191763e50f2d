#include "windows/people/frmAusgleich.h"

#include "base/cText.h"
#include "views/people/cSettlementModel.h"
#include "windows/print/modPages.h"
#include "windows/report/cReportPane.h"
#include "windows/report/cReportPrinter.h"
#include "windows/report/cReportView.h"
#include "windows/widget/cPeriodPicker.h"
#include "windows/widget/modPlace.h"

#include <QBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScreen>

using namespace Qt::Literals::StringLiterals;

frmAusgleich::frmAusgleich(cSettlementModel& model, QWidget* parent)
    : QDialog(parent),
      m_model(model),
      m_period(new cPeriodPicker(this)),
      m_hint(new QLabel(this)),
      m_report(new cReportPane(this))
{
    setWindowTitle(cText::Tr("Ausgleich: wer schuldet wem"));
    m_hint->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(BuildPeriod());
    layout->addWidget(m_hint);
    layout->addWidget(m_report, 1);
    layout->addLayout(BuildButtons());
    const QSize wanted(fontMetrics().averageCharWidth() * 130, fontMetrics().height() * 36);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
    ShowReport();
    m_report->View().setFocus(); // to be read with the keys at once
}

QLayout* frmAusgleich::BuildPeriod()
{
    auto* label = new QLabel(cText::Tr("&Zeitraum:"), this);
    label->setBuddy(m_period->focusProxy() != nullptr ? m_period->focusProxy() : m_period);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_period, 1);
    connect(m_period, &cPeriodPicker::PeriodChosen, this, [this](const QString& name) {
        m_model.ChoosePeriod(name);
        ShowReport();
    });
    connect(m_period, &cPeriodPicker::FirstMonthChosen, this, [this](int month) {
        m_model.ChooseFirstMonth(month);
        ShowReport();
    });
    connect(m_period, &cPeriodPicker::LastMonthChosen, this, [this](int month) {
        m_model.ChooseLastMonth(month);
        ShowReport();
    });
    connect(m_period, &cPeriodPicker::YearChosen, this, [this](int year) {
        m_model.ChooseYear(year);
        ShowReport();
    });
    return row;
}

QLayout* frmAusgleich::BuildButtons()
{
    auto* people = new QPushButton(cText::Tr("P&ersonen…"), this);
    auto* save = new QPushButton(cText::Tr("&Speichern"), this);
    auto* print = new QPushButton(cText::Tr("Dr&ucken…"), this);
    auto* close = new QPushButton(cText::Tr("S&chließen"), this);
    people->setEnabled(m_model.CanChangePeople());
    auto* menu = new QMenu(save);
    menu->addAction(cText::Tr("Als &PDF speichern…"), this, [this] {
        m_model.SavePdf([this](const QString& html, QDate today) {
            cReportPrinter pages(html, font().family(), today);
            return modPages::Pdf(pages);
        });
    });
    menu->addAction(cText::Tr("Als &HTML-Seite oder Tabelle speichern…"), this, [this] { m_model.SaveFile(); });
    save->setMenu(menu);
    connect(people, &QPushButton::clicked, this, &frmAusgleich::PeopleRequested);
    connect(print, &QPushButton::clicked, this, &frmAusgleich::PrintRequested);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    auto* row = new QHBoxLayout;
    row->addWidget(people);
    row->addWidget(save);
    row->addWidget(print);
    row->addStretch();
    row->addWidget(close);
    for (QPushButton* button : {people, save, print}) {
        button->setAutoDefault(false);
    }
    close->setDefault(true);
    return row;
}

void frmAusgleich::Refresh()
{
    m_model.Refresh();
    ShowReport();
}

void frmAusgleich::ShowReport()
{
    m_period->ShowPeriod(m_model.Period(), m_model.Range());
    m_report->View().SetReport(m_model.Html());
    m_hint->setText(m_model.Hint());
    m_hint->setHidden(m_hint->text().isEmpty());
}
