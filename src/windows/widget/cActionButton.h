#pragma once

#include <QPushButton>

class QAction;

// A button for an action. It keeps the mnemonic of the text, which a tool button would leave out.
class cActionButton final : public QPushButton
{
    Q_OBJECT

public:
    explicit cActionButton(QAction* action, QWidget* parent = nullptr);

private:
    void Follow();

    QAction* m_action;
};
