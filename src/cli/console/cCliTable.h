#pragma once

#include <QList>
#include <QString>
#include <QStringList>

enum class eAlign { Left, Right };

// Rows of texts in aligned columns.
class cCliTable
{
public:
    struct cColumn
    {
        QString Title;
        eAlign Align = eAlign::Left;
        int Longest = 0; // longer texts are cut and end in an ellipsis; 0: never, so that names can be given back
    };

    explicit cCliTable(QList<cColumn> columns) : m_columns(std::move(columns)) {}

    // A row with one text for each column.
    void Add(const QStringList& row);

    // The titles, then the rows, each with a line end.
    [[nodiscard]] QString ToString() const;

private:
    [[nodiscard]] QString Cut(qsizetype column, const QString& text) const;

    QList<cColumn> m_columns;
    QList<QStringList> m_rows;
};
