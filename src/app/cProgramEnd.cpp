#include "app/cProgramEnd.h"

#include "windows/bank/frmAbruf.h"
#include "windows/bank/frmBankAssistent.h"
#include "windows/help/frmUpdate.h"

#include <QApplication>
#include <QDialog>
#include <QProgressDialog>
#include <QThread>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto unwindTime = 20ms; // for what was closed to unwind
constexpr const char* isAsked = "isAskedToClose";

void Dismiss(QDialog& dialog)
{
    const bool isAgain = dialog.property(isAsked).toBool();
    dialog.setProperty(isAsked, true);
    if (isAgain) {
        dialog.QDialog::done(QDialog::Rejected); // without what it would rather have settled first
    } else if (qobject_cast<frmAbruf*>(&dialog) != nullptr || qobject_cast<frmBankAssistent*>(&dialog) != nullptr
               || qobject_cast<frmUpdate*>(&dialog) != nullptr) {
        dialog.reject(); // breaks off what they are about
    } else {
        dialog.done(QDialog::Rejected);
    }
}

void Dismiss(QWidget& window)
{
    if (auto* progress = qobject_cast<QProgressDialog*>(&window); progress != nullptr) {
        progress->cancel();
    } else if (auto* dialog = qobject_cast<QDialog*>(&window); dialog != nullptr) {
        Dismiss(*dialog);
    } else {
        window.close();
    }
}

} // namespace

cProgramEnd::cProgramEnd(cHooks hooks) : m_hooks(std::move(hooks))
{
    tmrStep.setSingleShot(true);
    QObject::connect(&tmrStep, &QTimer::timeout, &tmrStep, [this] { Step(); });
}

void cProgramEnd::Begin()
{
    m_hasBegun = true;
    if (!tmrStep.isActive()) {
        tmrStep.start(unwindTime);
    }
}

void cProgramEnd::Step()
{
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* modal = QApplication::activeModalWidget();
    if (popup != nullptr || modal != nullptr || QThread::currentThread()->loopLevel() > 1 || m_hooks.IsBusy()) {
        tmrStep.start(unwindTime); // before the window goes: what that shows next is for another step
        if (popup != nullptr) {
            popup->close();
        } else if (modal != nullptr) {
            Dismiss(*modal);
        }
        return;
    }
    m_hooks.Finish();
}
