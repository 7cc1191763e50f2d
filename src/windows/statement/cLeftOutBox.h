#pragma once

#include <QWidget>

class cLeftOutList;
class QListWidget;
class QPushButton;

// The bank transactions of the last files that were left out and can be taken all the same; hidden without any.
class cLeftOutBox final : public QWidget
{
    Q_OBJECT

public:
    explicit cLeftOutBox(cLeftOutList& rows, QWidget* parent = nullptr);

private:
    void Build();
    void Fill();
    void ShowButtons();
    void Stage();

    cLeftOutList& m_rows;
    QListWidget* m_list;
    QPushButton* m_stage;
    QPushButton* m_drop;
};
