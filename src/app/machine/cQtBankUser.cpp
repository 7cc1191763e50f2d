#include "app/machine/cQtBankUser.h"

#include "views/bank/cTanEntry.h"
#include "windows/bank/frmPin.h"
#include "windows/bank/frmTan.h"

#include <QApplication>
#include <QEventLoop>

#include <utility>

cQtBankUser::cQtBankUser(cParts parts) : m_parts(std::move(parts)), m_wait(m_parts.Clock)
{
}

cQtBankUser::~cQtBankUser() = default;

void cQtBankUser::Cancel()
{
    m_isCancelled = true;
    if (m_approval != nullptr) {
        m_approval->reject();
    }
}

std::optional<cSecret> cQtBankUser::AskPin(const cPinQuestion& question)
{
    frmPin window(question, QApplication::activeWindow());
    return window.exec() == QDialog::Accepted ? std::optional(window.TakePin()) : std::nullopt;
}

std::optional<cSecret> cQtBankUser::AskTan(const cTanQuestion& question)
{
    cTanEntry entry(question, m_parts.Settings);
    frmTan window(entry, QApplication::activeWindow());
    return window.exec() == QDialog::Accepted ? std::optional(window.TakeTan()) : std::nullopt;
}

// Between two waits the window stays and can be closed as well; the answer of the bank that is on its way then still
// counts.
eApproval cQtBankUser::WaitForApproval(const cApproval& approval)
{
    m_wait.Start(approval);
    if (m_approval == nullptr) {
        OpenApproval();
    } else if (!m_isRefused) {
        m_approval->StartWait();
    }
    if (!m_isRefused && !m_isCancelled) {
        QEventLoop loop;
        m_loop = &loop;
        loop.exec();
        m_loop = nullptr;
    }
    return m_isRefused || m_isCancelled ? eApproval::Cancel : eApproval::AskBank;
}

void cQtBankUser::OpenApproval()
{
    const auto leave = [this] {
        if (m_loop != nullptr) {
            m_loop->quit();
        }
    };
    m_approval = std::make_unique<frmTan>(m_wait, QApplication::activeWindow());
    m_approval->setWindowModality(Qt::ApplicationModal);
    QObject::connect(m_approval.get(), &frmTan::BankToBeAsked, m_approval.get(), leave);
    QObject::connect(m_approval.get(), &QDialog::rejected, m_approval.get(), [this, leave] {
        m_isRefused = true;
        leave();
    });
    m_approval->show();
}

void cQtBankUser::EndApproval()
{
    m_approval.reset();
    m_isRefused = false;
}

void cQtBankUser::ShowStep(const QString& text)
{
    if (m_parts.ShowStep) {
        m_parts.ShowStep(text);
    }
}
