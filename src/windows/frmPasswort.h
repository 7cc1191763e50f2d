#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;

// Asks for the password of the database. Accepted once the right one was typed; there is no limit of tries.
class frmPasswort final : public QDialog
{
    Q_OBJECT

public:
    using cCheck = std::function<bool(const QString&)>;

    explicit frmPasswort(cCheck isRight, QWidget* parent = nullptr);
    ~frmPasswort() override;

private:
    void Try();

    cCheck m_isRight;
    QLineEdit* m_password;
    QLabel* m_message;
};
