#pragma once

#include <QTreeView>

class cErrorLogView;

// The list of the error log; says why when there is nothing in it.
class cLogTree final : public QTreeView
{
    Q_OBJECT

public:
    explicit cLogTree(cErrorLogView& log, QWidget* parent = nullptr);

    [[nodiscard]] QList<int> SelectedRows() const;

Q_SIGNALS:
    void CurrentRowChanged(int row); // -1 for none
    void CopyRequested();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    cErrorLogView& m_log;
};
