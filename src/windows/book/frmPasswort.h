#pragma once

#include "views/book/cPasswordFlow.h"

#include <QDialog>

#include <functional>
#include <initializer_list>

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;
class QVBoxLayout;

// The password of a book: asks for it before the data is shown, or lets the user set, change and remove it. After a
// wrong password the buttons that try again wait.
class frmPasswort final : public QDialog
{
    Q_OBJECT

public:
    using cCheck = std::function<bool(const QString&)>;

    // Asks; accepted once the right password was typed. `tries` is kept by the caller from one window to the next.
    frmPasswort(cPasswordTries& tries, cCheck isRight, QWidget* parent = nullptr);
    // Lets the user manage the password of the open book.
    explicit frmPasswort(cPasswordFlow& flow, QWidget* parent = nullptr);
    ~frmPasswort() override;

private:
    void BuildPrompt();
    void BuildFlow();
    void AddText(const QString& text);
    [[nodiscard]] QLineEdit* AddField(const QString& label, const char* name);
    void AddShowLetters(const QString& text);
    void Finish(const QString& doCaption, const QString& leaveCaption);
    void ShowLetters(bool isShown);
    void Try();
    void SetPassword();
    void RemovePassword();
    void Take(cPasswordFlow::eResult result);
    void Refuse();
    void Wait(); // shows how long it takes and lets go when it is over

    cPasswordTries& m_tries;
    cCheck m_isRight;
    cPasswordFlow* m_flow = nullptr; // null when asking
    QVBoxLayout* m_layout;
    QTimer* tmrWait;
    QLineEdit* m_old = nullptr;
    QLineEdit* m_new = nullptr;
    QLineEdit* m_repeated = nullptr;
    QLabel* m_message;
    QDialogButtonBox* m_buttons;
    QPushButton* m_do = nullptr;
    QPushButton* m_remove = nullptr;
};
