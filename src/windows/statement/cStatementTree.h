#pragma once

#include <QTreeView>

class cStatementListModel;

// The rows of an account statement.
class cStatementTree final : public QTreeView
{
public:
    // `statement` outlives the list.
    cStatementTree(cStatementListModel& statement, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    cStatementListModel& m_statement;
};
