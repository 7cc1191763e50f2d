#pragma once

#include "model/cReceiptSource.h"

#include <QList>
#include <QWidget>

class QAction;
class QLabel;
class QPushButton;

// How many receipts an entry has, and a button for more; files can be dropped on it.
class cReceiptField final : public QWidget
{
    Q_OBJECT

public:
    explicit cReceiptField(QWidget* parent = nullptr);

    void ShowText(const QString& text);
    void SetNewCount(qsizetype count); // of those that can still be dropped again

Q_SIGNALS:
    void ChooseRequested();
    void Added(const QList<cReceiptSource>& sources);
    void ClearRequested(); // all that are not saved yet

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void Add(const QList<cReceiptSource>& sources);

    QLabel* m_text;
    QPushButton* m_button;
    QAction* m_clear = nullptr;
};
