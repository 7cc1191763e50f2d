#include "windows/main/cSumBar.h"

#include "base/cText.h"
#include "views/main/cMainModel.h"
#include "windows/widget/cFlowLayout.h"
#include "windows/widget/modTone.h"

#include <QLabel>

namespace {

void Show(QLabel& label, const QString& text, const QColor& color)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, color);
    label.setPalette(palette);
    label.setText(text);
}

} // namespace

cSumBar::cSumBar(QWidget* parent) : QWidget(parent), m_count(new QLabel(this))
{
    m_layout = new cFlowLayout(this);
    m_layout->setContentsMargins(2, 2, 2, 2);
    m_layout->setSpacing(6);
    m_layout->addWidget(m_count);
    m_layout->AddStretch();
    m_income = AddSum(cText::Tr("Einnahmen:"));
    m_expense = AddSum(cText::Tr("Ausgaben:"));
    m_total = AddSum(cText::Tr("Summe:"));
}

QLabel* cSumBar::AddSum(const QString& title)
{
    auto* name = new QLabel(title, this);
    auto* value = new QLabel(this);
    QFont font = value->font();
    font.setBold(true);
    value->setFont(font);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setAccessibleName(title);
    m_layout->AddField(name, value);
    m_layout->AddGap(12);
    return value;
}

void cSumBar::ShowSums(const cTexts& texts)
{
    const QColor text = palette().color(QPalette::WindowText);
    m_count->setText(texts.Count);
    Show(*m_income, texts.Income, modTone::Income(palette()));
    Show(*m_expense, texts.Expense, modTone::Expense(palette()));
    Show(*m_total, texts.Total, text);
}

void cSumBar::ShowSums(const cMainModel& model)
{
    ShowSums({model.CountText(), model.IncomeText(), model.ExpenseText(), model.TotalText()});
}
