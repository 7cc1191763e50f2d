#include "windows/widget/cProgressBox.h"

#include "base/cText.h"

#include <QEventLoop>
#include <QProgressDialog>
#include <QThread>

cProgressBox::cProgressBox(QWidget* parent, const QString& text)
    : m_dialog(std::make_unique<QProgressDialog>(text, cText::Tr("Abbrechen"), 0, 0, parent))
{
    m_dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog->setMinimumDuration(400);
    m_dialog->setAutoReset(false);
    m_dialog->setAutoClose(false);
    m_dialog->reset(); // a new box counts its time from the first step on
}

cProgressBox::~cProgressBox() = default;

void cProgressBox::showProgressBar(int maximum)
{
    m_dialog->setMaximum(maximum);
    m_dialog->setValue(0);
}

void cProgressBox::addProgressValue(int steps)
{
    m_dialog->setValue(qMin(m_dialog->value() + steps, m_dialog->maximum()));
}

void cProgressBox::Run(const std::function<void()>& work)
{
    const std::unique_ptr<QThread> thread(QThread::create(work));
    QEventLoop loop;
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    // The work itself cannot be stopped; the box stays until it has ended, and nothing of it is used then. Queued,
    // because a box that is being closed hides itself after it has said so.
    QObject::connect(
        m_dialog.get(), &QProgressDialog::canceled, &loop, [this] { m_dialog->show(); }, Qt::QueuedConnection);
    thread->start();
    // Until the box keeps the user's hands off the program, nothing may reach it.
    if (!thread->wait(static_cast<unsigned long>(m_dialog->minimumDuration()))) {
        m_dialog->setRange(0, 0);
        m_dialog->show();
        loop.exec();
        thread->wait();
    }
}

void cProgressBox::hideProgressBar()
{
    m_dialog->hide();
    m_dialog->reset();
}

bool cProgressBox::IsCancelled() const
{
    return m_dialog->wasCanceled();
}
