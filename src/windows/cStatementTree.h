#pragma once

#include <QTreeView>

class cAccountStatement;

// The rows of an account statement.
class cStatementTree final : public QTreeView
{
public:
    // `statement` outlives the list.
    cStatementTree(cAccountStatement& statement, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    cAccountStatement& m_statement;
};
