#pragma once

#include "views/budget/cBudgetEdit.h"
#include "views/look/cCategoryLooks.h"

#include <QAbstractTableModel>
#include <QMap>

#include <utility>

// The grid of the budget: a line for every main category and for every category, the sum in the last one; columns for
// the plain limit, what is carried over, one month's spending with what is left of it, the twelve months and the year.
// What cannot be read as an amount stays in its cell until it is mended.
class cBudgetModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum eColumn { Plain, Carry, Spent, Left, FirstMonth, LastMonth = FirstMonth + 11, Year, ColumnCount };
    enum eRole { ToneRole = Qt::UserRole, IsHeadRole }; // eCellTone; whether it is a line of sums
    enum eCellTone { Normal, Quiet, Bad };

    explicit cBudgetModel(const cBookTools& tools, QObject* parent = nullptr);

    [[nodiscard]] int ShownYear() const { return m_edit.Year(); }
    [[nodiscard]] int ShownMonth() const { return m_month; } // whose spending is shown, from 1
    // False with a message while an amount of the year cannot be read.
    bool ShowYear(int year);
    void ShowMonth(int month);
    [[nodiscard]] const cBudgetEdit& Edit() const { return m_edit; }
    [[nodiscard]] bool IsReadOnly() const;
    // What can be done about an empty grid; empty where it is not.
    [[nodiscard]] QString Hint() const;
    [[nodiscard]] QString SumNote() const; // what the sums count; empty where there are none
    // The categories' cells of these.
    [[nodiscard]] QModelIndexList Editable(const QModelIndexList& cells) const;

    // The year's limit of the line, in twelve equal parts or in the cell's month alone; the latter takes the month that
    // is shown where the cell is of none. Both say so where there is no limit.
    void Spread(const QModelIndex& cell);
    void KeepInMonth(const QModelIndex& cell);
    void TakeLastYear(); // after which nothing is saved yet
    void Clear(const QModelIndexList& cells);
    [[nodiscard]] QString Copy(const QModelIndexList& cells) const; // lines of texts between tabs
    void Paste(const QModelIndex& first, const QString& text);

    // False with a message where something cannot be stored.
    bool Save();
    // Asks about what was not saved; false when the window is to stay.
    [[nodiscard]] bool MayClose();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

Q_SIGNALS:
    void Saved(); // the book has changed

private:
    struct cLine
    {
        QString Label;
        int Row = -1;      // of the edited budget; -1 for sums
        QList<int> Rows{}; // what a sum is made of

        bool operator==(const cLine&) const = default;
    };
    using cCell = std::pair<int, int>; // row of the edited budget, column

    [[nodiscard]] QList<cLine> MakeLines() const;
    [[nodiscard]] static int MonthOf(int column); // 0: the column is of none
    [[nodiscard]] QString Text(const cLine& line, int column) const;
    [[nodiscard]] QString EditText(int row, int column) const;
    [[nodiscard]] std::optional<qint64> Value(int row, int column) const;
    [[nodiscard]] std::optional<qint64> Sum(const cLine& line, int column) const;
    [[nodiscard]] eCellTone Tone(const cLine& line, int column) const;
    [[nodiscard]] QString Explanation(const cLine& line, int column) const;
    [[nodiscard]] QString Available(int row, int month) const;
    [[nodiscard]] bool CanType(const cLine& line, int column) const;
    [[nodiscard]] QString Fault(const QString& text) const;
    [[nodiscard]] bool IsFaultless();                    // else it says what is wrong
    [[nodiscard]] bool HasYear(const QModelIndex& cell); // else it says what to choose
    void Type(int row, int column, const QString& text);
    void Store(int row, int column, std::optional<qint64> cents);
    void Changed();

    const cBookTools& m_tools;
    cBudgetEdit m_edit;
    cCategoryLooks m_looks;
    int m_month;
    QList<cLine> m_lines;
    QMap<cCell, QString> m_faulty; // as typed
};
