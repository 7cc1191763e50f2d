#pragma once

#include "base/cProgress.h"

#include <QElapsedTimer>
#include <QString>

#include <memory>

class QProgressDialog;
class QWidget;

// Progress in a box over the window. It appears only when the step takes a while, and keeps the user's hands off the
// rest of the program until then.
class cProgressBox final : public cProgress
{
public:
    // `patience`: milliseconds before it appears.
    cProgressBox(QWidget* parent, const QString& text, int patience = 400);
    ~cProgressBox() override;

    void showProgressBar(int maximum) override;
    void addProgressValue(int steps) override;
    void Run(const std::function<void()>& work) override;
    void hideProgressBar() override;
    [[nodiscard]] bool IsCancelled() const override;

private:
    std::unique_ptr<QProgressDialog> m_dialog;
    QElapsedTimer m_since;
    int m_patience;
};
