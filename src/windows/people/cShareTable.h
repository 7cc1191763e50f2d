#pragma once

#include "windows/widget/cTypedCells.h"

#include <QTableWidget>

class cPeople;

// The shares of the people in the accounts, a row for each account and one for what all share. What is typed is stored
// as soon as a row comes to 100.
class cShareTable final : public cTypedCells<QTableWidget>
{
    Q_OBJECT

public:
    // `people` outlives the table.
    explicit cShareTable(cPeople& people, QWidget* parent = nullptr);

    void Show();                             // everything anew
    [[nodiscard]] QStringList Wrong() const; // rows that are not stored, with what is wrong with them

Q_SIGNALS:
    void Stored();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void ShowRow(int row, const QString& account);
    void Take(int row, int column);
    [[nodiscard]] QStringList Texts(int row) const;
    void SetText(int row, int column, const QString& text);
    [[nodiscard]] int SumColumn() const { return columnCount() - 1; }

    cPeople& m_people;
    QStringList m_accounts; // of the rows; the first one is empty
    bool m_isFilling = false;
};
