#pragma once

#include <QDialog>

class cBankLogView;

// The log of a run with a bank.
class frmProtokoll final : public QDialog
{
    Q_OBJECT

public:
    // `log` outlives the window.
    explicit frmProtokoll(const cBankLogView& log, QWidget* parent = nullptr);
};
