#include "windows/main/cSumBar.h"

#include "base/cText.h"
#include "views/list/modEntrySums.h"
#include "windows/look/modTone.h"
#include "windows/widget/cFlowLayout.h"

#include <QLabel>

cSumBar::cSumBar(QWidget* parent) : QWidget(parent), m_count(new QLabel(this))
{
    m_layout = new cFlowLayout(this);
    m_layout->setContentsMargins(2, 2, 2, 2);
    m_layout->setSpacing(6);
    m_layout->addWidget(m_count);
    m_layout->AddStretch();
    m_start = AddSum(cText::Tr("Startguthaben:"));
    m_income = AddSum(cText::Tr("Einnahmen:"));
    m_expense = AddSum(cText::Tr("Ausgaben:"));
    m_total = AddSum(cText::Tr("Summe:"));
    modTone::Use(*m_income.Value, modTone::Income);
    modTone::Use(*m_expense.Value, modTone::Expense);
}

cSumBar::cSum cSumBar::AddSum(const QString& title)
{
    auto* name = new QLabel(title, this);
    auto* value = new QLabel(this);
    QFont font = value->font();
    font.setBold(true);
    value->setFont(font);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_layout->AddField(name, value);
    m_layout->AddGap(12);
    return {name, value};
}

// A name of its own would take the place of the figure for who hears it, so it has both.
void cSumBar::Show(const cSum& sum, const QString& text)
{
    sum.Value->setText(text);
    sum.Value->setAccessibleName(sum.Name->text() + u' ' + text);
}

void cSumBar::ShowSums(const cSumTexts& texts)
{
    m_count->setText(texts.Count);
    m_start.Name->setVisible(!texts.Start.isEmpty());
    m_start.Value->setVisible(!texts.Start.isEmpty());
    Show(m_start, texts.Start);
    Show(m_income, texts.Income);
    Show(m_expense, texts.Expense);
    Show(m_total, texts.Total);
}
