#include "windows/budget/frmBudget.h"

#include "base/cText.h"
#include "views/budget/cBudgetModel.h"
#include "windows/budget/cBudgetGrid.h"
#include "windows/budget/cBudgetTable.h"
#include "windows/look/modTone.h"
#include "windows/widget/cFlowLayout.h"
#include "windows/widget/modPlace.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QSpinBox>

#include <functional>

frmBudget::frmBudget(cBudgetModel& budget, QWidget* parent)
    : QDialog(parent),
      m_budget(budget),
      m_year(new QSpinBox(this)),
      m_month(new QComboBox(this)),
      m_grid(new cBudgetGrid(budget, this))
{
    setWindowTitle(cText::Tr("Budget"));
    auto* hint = new QLabel(m_budget.Hint(), this);
    hint->setTextFormat(Qt::PlainText);
    hint->setWordWrap(true);
    hint->setHidden(hint->text().isEmpty());
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(BuildSelectors());
    layout->addWidget(hint);
    layout->addWidget(m_grid, 1);
    layout->addWidget(BuildNote());
    layout->addLayout(BuildActions());
    layout->addLayout(BuildButtons());
    const QSize wanted(fontMetrics().averageCharWidth() * 180, fontMetrics().height() * 36);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
    m_grid->setFocus();
    m_grid->Lines().Begin();
}

QLayout* frmBudget::BuildSelectors()
{
    constexpr int firstYear = 1990;
    constexpr int lastYear = 2199;
    m_year->setRange(firstYear, lastYear);
    m_year->setValue(m_budget.ShownYear());
    ShowMonths();
    auto* year = new QLabel(cText::Tr("&Jahr:"), this);
    year->setBuddy(m_year);
    auto* month = new QLabel(cText::Tr("&Ist und Übrig im Monat:"), this);
    month->setBuddy(m_month);
    connect(m_year, &QSpinBox::valueChanged, this, &frmBudget::ShowYear);
    connect(m_month, &QComboBox::activated, this, [this](int place) { m_budget.ShowMonth(place + 1); });
    auto* row = new QHBoxLayout;
    for (QWidget* widget : QWidgetList{year, m_year, month, m_month}) {
        row->addWidget(widget);
    }
    row->insertSpacing(2, fontMetrics().averageCharWidth() * 2);
    row->addStretch();
    return row;
}

// Below the grid, where the sum of all stands.
QLabel* frmBudget::BuildNote()
{
    auto* note = new QLabel(m_budget.SumNote(), this);
    note->setWordWrap(true);
    note->setHidden(note->text().isEmpty());
    modTone::Use(*note, modTone::Quiet);
    return note;
}

void frmBudget::ShowMonths()
{
    for (int month = 1; month <= modBudget::MonthsOfYear; ++month) {
        m_month->addItem(locale().standaloneMonthName(month));
    }
    m_month->setCurrentIndex(m_budget.ShownMonth() - 1);
}

void frmBudget::ShowYear(int year)
{
    if (m_budget.ShowYear(year)) {
        m_grid->FitColumns();
        if (!m_grid->Lines().Current().isValid()) { // the year has other lines
            m_grid->Lines().Begin();
        }
        return;
    }
    const QSignalBlocker quiet(m_year);
    m_year->setValue(m_budget.ShownYear());
}

QLayout* frmBudget::BuildActions()
{
    auto* row = new cFlowLayout;
    const auto add = [&](const QString& text, const QString& hint, const std::function<void()>& action) {
        auto* button = new QPushButton(text, this);
        button->setToolTip(hint);
        button->setAutoDefault(false); // Enter belongs to the grid
        button->setEnabled(!m_budget.IsReadOnly() && m_budget.Hint().isEmpty());
        connect(button, &QPushButton::clicked, this, [this, action] {
            action();
            m_grid->FitColumns();
            m_grid->setFocus();
        });
        row->addWidget(button);
    };
    add(cText::Tr("Jahr gleichmäßig &verteilen"),
        cText::Tr("Verteilt, was die Zeile im Jahr erlaubt, auf zwölf gleiche Monate"),
        [this] { m_budget.Spread(m_grid->Lines().Current()); });
    add(cText::Tr("Jahr in &einem Monat"),
        cText::Tr("Erlaubt alles im Monat der gewählten Zelle und in den anderen nichts"),
        [this] { m_budget.KeepInMonth(m_grid->Lines().Current()); });
    add(cText::Tr("Ausgaben des V&orjahrs übernehmen"),
        cText::Tr("Schlägt für jeden Monat vor, was ein Jahr davor ausgegeben wurde; gespeichert wird noch nichts"),
        [this] { m_budget.TakeLastYear(); });
    return row;
}

QLayout* frmBudget::BuildButtons()
{
    auto* save = new QPushButton(cText::Tr("&Speichern"), this);
    auto* close = new QPushButton(cText::Tr("S&chließen"), this);
    save->setEnabled(!m_budget.IsReadOnly());
    connect(save, &QPushButton::clicked, this, &frmBudget::accept);
    connect(close, &QPushButton::clicked, this, &frmBudget::reject);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(save);
    row->addWidget(close);
    close->setAutoDefault(false);
    save->setDefault(true);
    return row;
}

void frmBudget::accept()
{
    if (m_budget.Save()) {
        QDialog::accept();
    }
}

void frmBudget::reject()
{
    if (m_budget.MayClose()) {
        QDialog::reject();
    }
}
