#include "windows/overview/cFirstStepsView.h"

#include "base/cText.h"
#include "windows/look/modCard.h"
#include "windows/look/modTone.h"
#include "windows/widget/cAmountEdit.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace {

constexpr int nameLetters = 26;
constexpr int amountLetters = 14;

QLabel* Heading(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setWordWrap(true);
    return label;
}

} // namespace

cFirstStepsView::cFirstStepsView(const cFirstSteps& steps, const QList<cWay>& ways, QWidget* parent)
    : QFrame(parent),
      m_steps(steps),
      m_problem(new QLabel(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(modCard::Margin, modCard::Margin, modCard::Margin, modCard::Margin);
    layout->addWidget(Heading(cText::Tr("1. Was haben Sie heute auf Ihren Konten?"), this));
    auto* table = new QGridLayout;
    table->setVerticalSpacing(4);
    auto* name = new QLabel(cText::Tr("Konto"), this);
    auto* amount = new QLabel(cText::Tr("Kontostand heute"), this);
    table->addWidget(name, 0, 0);
    table->addWidget(amount, 0, 1);
    table->setColumnStretch(2, 1);
    for (int row = 0; row < m_steps.Start().size(); ++row) {
        AddRow(*table, row);
    }
    layout->addLayout(table);
    m_problem->setWordWrap(true);
    modTone::Use(*m_problem, modTone::Expense);
    m_problem->hide();
    layout->addWidget(m_problem);
    auto* save = new QPushButton(cText::Tr("Konten über&nehmen"), this);
    save->setToolTip(cText::Tr("Legt neue Konten an und trägt die Kontostände als Startguthaben von heute ein. Stehen "
                               "schon Umsätze der Bank da, wird auf den Tag davor zurückgerechnet."));
    connect(save, &QPushButton::clicked, this, &cFirstStepsView::Save);
    layout->addWidget(save, 0, Qt::AlignLeft);
    layout->addSpacing(12);
    layout->addWidget(Heading(cText::Tr("2. Was ist seither geschehen?"), this));
    QList<QPushButton*> buttons;
    for (const cWay& way : ways) {
        auto* button = new QPushButton(way.Text, this);
        auto* hint = new QLabel(way.Hint, this);
        hint->setWordWrap(true);
        hint->setContentsMargins(0, 0, 0, 6);
        connect(button, &QPushButton::clicked, this, way.Go);
        layout->addWidget(button, 0, Qt::AlignLeft);
        layout->addWidget(hint);
        buttons.append(button);
    }
    const auto isNarrower = [](const auto* a, const auto* b) { return a->sizeHint().width() < b->sizeHint().width(); };
    const auto widest = std::max_element(buttons.begin(), buttons.end(), isNarrower);
    for (QPushButton* button : std::as_const(buttons)) {
        button->setMinimumWidth((*widest)->sizeHint().width());
    }
    Refresh();
}

void cFirstStepsView::AddRow(QGridLayout& table, int row)
{
    const int letter = fontMetrics().averageCharWidth();
    auto* name = new QLineEdit(this);
    name->setMinimumWidth(letter * nameLetters);
    name->setAccessibleName(cText::Tr("Konto {0}", {QString::number(row + 1)}));
    auto* amount = new cAmountEdit([this] { return m_steps.Decimal(); }, this);
    amount->setMaximumWidth(letter * amountLetters);
    amount->setAlignment(Qt::AlignRight);
    amount->setAccessibleName(cText::Tr("Kontostand von Konto {0}", {QString::number(row + 1)}));
    connect(name, &QLineEdit::returnPressed, this, &cFirstStepsView::Save);
    connect(amount, &QLineEdit::returnPressed, this, &cFirstStepsView::Save);
    table.addWidget(name, row + 1, 0);
    table.addWidget(amount, row + 1, 1);
    m_fields.append({name, amount, {}});
}

void cFirstStepsView::Refresh()
{
    const bool isTyping = std::any_of(m_fields.begin(), m_fields.end(), [](const cFields& fields) {
        return fields.Name->isModified() || fields.Amount->isModified();
    });
    const QList<cFirstSteps::cRow> rows = m_steps.Start();
    for (qsizetype i = 0; i < m_fields.size() && !isTyping; ++i) {
        const cFirstSteps::cRow row = rows.value(i);
        m_fields[i].Former = row.Former;
        m_fields.at(i).Name->setText(row.Name);
        m_fields.at(i).Amount->setText(row.Amount);
    }
}

void cFirstStepsView::FocusFirst()
{
    m_fields.constFirst().Amount->setFocus(); // the account has its name already
}

void cFirstStepsView::Save()
{
    QList<cFirstSteps::cRow> rows;
    for (const cFields& fields : std::as_const(m_fields)) {
        rows.append({fields.Name->text(), fields.Amount->text(), fields.Former});
    }
    const QString problem = m_steps.Save(rows);
    m_problem->setText(problem);
    m_problem->setVisible(!problem.isEmpty());
    if (problem.isEmpty()) {
        for (const cFields& fields : std::as_const(m_fields)) {
            fields.Name->setModified(false);
            fields.Amount->setModified(false);
        }
        Refresh(); // the names as they were taken
        Q_EMIT Saved();
    }
}

void cFirstStepsView::paintEvent(QPaintEvent* /*event*/)
{
    modCard::Paint(*this);
}
