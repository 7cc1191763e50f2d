#pragma once

#include <QList>
#include <QWidget>

class cImportAssistant;
class QComboBox;
class QLabel;
class QTableWidget;

// The first rows of a statement file: the cells of a table with a list of meanings above each column, and below what
// would become of every row.
class cImportPreview final : public QWidget
{
    Q_OBJECT

public:
    // `assistant` outlives the widget.
    explicit cImportPreview(cImportAssistant& assistant, QWidget* parent = nullptr);

    void Refresh();

protected:
    void changeEvent(QEvent* event) override;

private:
    void Build();
    void ShowCells();
    void ShowMeanings();
    void AddMeaning(int column, const QString& name);
    void ShowRead();
    void FitColumns(QTableWidget& table) const;

    cImportAssistant& m_assistant;
    QLabel* m_cellsLabel;
    QTableWidget* m_cells;
    QTableWidget* m_read;
    QList<QComboBox*> m_meanings; // one for each column
};
