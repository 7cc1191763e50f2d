#pragma once

#include <QWidget>

class cDayEdit;
class cMainModel;
class QLabel;
class QModelIndex;

// The field in the status bar for a day to which the entry list jumps: Enter goes there, Escape closes it.
class cDayJump final : public QWidget
{
    Q_OBJECT

public:
    explicit cDayJump(cMainModel& model, QWidget* parent = nullptr);

    void Start(); // shows the field, ready to type

Q_SIGNALS:
    void RowFound(const QModelIndex& row);
    void Told(const QString& text); // empty: nothing to be told
    void Closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Jump();
    void Close();

    cMainModel& m_model;
    cDayEdit* m_day;
};
