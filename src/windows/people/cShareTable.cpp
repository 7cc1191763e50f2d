#include "windows/people/cShareTable.h"

#include "base/cText.h"
#include "views/people/cPeople.h"
#include "windows/widget/cRowDelegate.h"
#include "windows/widget/modEmptyText.h"

#include <QHeaderView>
#include <QScopedValueRollback>

cShareTable::cShareTable(cPeople& people, QWidget* parent) : cTypedCells(parent), m_people(people)
{
    setAccessibleName(cText::Tr("Anteile in Prozent"));
    setTabKeyNavigation(false); // Tab leaves the table, the arrow keys go from cell to cell
    setEditTriggers(AnyKeyPressed | DoubleClicked | EditKeyPressed | SelectedClicked);
    setWordWrap(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(cRowDelegate::RowHeight(fontMetrics()));
    connect(this, &QTableWidget::cellChanged, this, &cShareTable::Take);
    Show();
}

void cShareTable::Show()
{
    const QScopedValueRollback guard(m_isFilling, true);
    const QStringList names = m_people.Names();
    m_accounts = QStringList{QString()} + m_people.Accounts();
    clear();
    setColumnCount(static_cast<int>(names.size()) + 1);
    setRowCount(names.isEmpty() ? 0 : static_cast<int>(m_accounts.size()));
    horizontalHeader()->setHidden(names.isEmpty());
    setHorizontalHeaderLabels(names + QStringList{cText::Tr("Gilt")});
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(SumColumn(), QHeaderView::Stretch);
    QStringList titles = m_accounts;
    titles.first() = cText::Tr("Gemeinsames");
    for (int row = 0; row < rowCount(); ++row) {
        ShowRow(row, m_accounts.at(row));
    }
    setVerticalHeaderLabels(titles.first(rowCount()));
}

void cShareTable::SetText(int row, int column, const QString& text)
{
    auto* cell = new QTableWidgetItem(text);
    cell->setTextAlignment(column == SumColumn() ? Qt::AlignLeft | Qt::AlignVCenter
                                                 : Qt::AlignRight | Qt::AlignVCenter);
    if (column == SumColumn()) {
        cell->setFlags(cell->flags() & ~Qt::ItemIsEditable);
    }
    setItem(row, column, cell);
}

void cShareTable::ShowRow(int row, const QString& account)
{
    const QStringList names = m_people.Names();
    const modPeople::cShares stored = m_people.Stored(account);
    for (int column = 0; column < SumColumn(); ++column) {
        QString text;
        for (const modPeople::cShare& share : stored) {
            text = share.Person == names.at(column) ? QString::number(share.Part) : text;
        }
        SetText(row, column, text);
    }
    SetText(row, SumColumn(), cPeople::SharesText(m_people.SharesOf(account)));
}

QStringList cShareTable::Texts(int row) const
{
    QStringList texts;
    for (int column = 0; column < SumColumn(); ++column) {
        texts.append(item(row, column)->text());
    }
    return texts;
}

void cShareTable::Take(int row, int column)
{
    if (m_isFilling) {
        return;
    }
    const QScopedValueRollback guard(m_isFilling, true);
    const QStringList texts = cPeople::WithRest(Texts(row), column);
    const QString wrong = m_people.TakeShares(m_accounts.at(row), texts);
    if (wrong.isEmpty()) {
        // What all share holds for the other rows as well.
        for (int other = 0; other < rowCount(); ++other) {
            if (other == row || item(other, SumColumn())->data(Qt::UserRole).toString().isEmpty()) {
                ShowRow(other, m_accounts.at(other));
            }
        }
        Q_EMIT Stored();
        return;
    }
    for (int each = 0; each < SumColumn(); ++each) {
        item(row, each)->setText(texts.at(each));
    }
    item(row, SumColumn())->setText(wrong);
    item(row, SumColumn())->setData(Qt::UserRole, wrong);
}

QStringList cShareTable::Wrong() const
{
    QStringList wrong;
    for (int row = 0; row < rowCount(); ++row) {
        const QString text = item(row, SumColumn())->data(Qt::UserRole).toString();
        if (!text.isEmpty()) {
            wrong.append(verticalHeaderItem(row)->text() + QStringLiteral(": ") + text);
        }
    }
    return wrong;
}

void cShareTable::paintEvent(QPaintEvent* event)
{
    cTypedCells::paintEvent(event);
    if (rowCount() == 0) {
        modEmptyText::Paint(*viewport(), cText::Tr("Noch keine Personen"),
                            cText::Tr("Tragen Sie oben ein, wer zum Haushalt gehört."));
    }
}
