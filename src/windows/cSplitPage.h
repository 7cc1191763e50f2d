#pragma once

#include <QWidget>

class cEntrySuggestions;
class cSplitTable;
class QLabel;
class QPushButton;

// The split table with what is left of the whole amount, and the buttons that go with it.
class cSplitPage final : public QWidget
{
    Q_OBJECT

public:
    explicit cSplitPage(cEntrySuggestions& suggestions, QWidget* parent = nullptr);

    [[nodiscard]] cSplitTable& Table() { return *m_table; }
    [[nodiscard]] const cSplitTable& Table() const { return *m_table; }

    void ShowRest(const QString& text);

Q_SIGNALS:
    // The rest is to go into this line.
    void RestRequested(int line);

private:
    void RequestRest();

    cSplitTable* m_table;
    QLabel* m_rest;
    QPushButton* m_fill;
    QPushButton* m_remove;
};
