#pragma once

#include "base/cSecret.h"
#include "views/bank/cTanEntry.h"

#include <QDialog>

#include <utility>

class cApprovalWait;
class QBoxLayout;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;
class QTimer;

// What a bank wants before it goes on: a TAN, made with bars, a picture or by words alone, or an approval in its app.
class frmTan final : public QDialog
{
    Q_OBJECT

public:
    // Asks for a TAN. `entry` outlives the window.
    explicit frmTan(cTanEntry& entry, QWidget* parent = nullptr);
    // Shows what is to be approved and says when the bank is to be asked. `wait` outlives the window.
    explicit frmTan(cApprovalWait& wait, QWidget* parent = nullptr);
    ~frmTan() override;

    // What was typed, once the window was accepted; can be taken once.
    [[nodiscard]] cSecret TakeTan() { return std::move(m_tan); }

    // A further wait for the same approval has begun.
    void StartWait();

    void done(int result) override;

Q_SIGNALS:
    void BankToBeAsked();

private:
    void BuildEntry(cTanEntry& entry);
    void BuildFlicker(cTanEntry& entry, QBoxLayout& layout);
    void BuildPicture(cTanEntry& entry, QBoxLayout& layout);
    void BuildField(const cTanEntry& entry, QBoxLayout& layout);
    void BuildWait(const cApprovalWait& wait);
    [[nodiscard]] QLabel* Words(const QString& words);
    [[nodiscard]] QDialogButtonBox* Buttons(const QString& doCaption, bool closes);
    void ShowWait();   // as it stands this second
    void AskWhenDue(); // the bank
    void Fit();        // to what bars or picture need by now

    cApprovalWait* m_wait = nullptr; // null when a TAN is asked for
    QLineEdit* m_field = nullptr;
    QSlider* m_width = nullptr; // of bars or picture
    QPushButton* m_do = nullptr;
    QLabel* m_timeLeft = nullptr;
    QLabel* m_step = nullptr;
    QTimer* tmrWait = nullptr;
    cSecret m_tan;
};
