#include "windows/widget/cProgressBox.h"

#include "base/cText.h"

#include <QEventLoop>
#include <QProgressDialog>
#include <QThread>

#include <limits>

cProgressBox::cProgressBox(QWidget* parent, const QString& text, int patience)
    : m_dialog(std::make_unique<QProgressDialog>(text, cText::Tr("Abbrechen"), 0, 0, parent)),
      m_patience(patience)
{
    m_dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog->setAutoReset(false);
    m_dialog->setAutoClose(false);
    m_dialog->reset(); // a new box counts its time from the first step on
}

cProgressBox::~cProgressBox() = default;

// The dialog's own timer would bring it up over a message or question of the work, which then could not be reached.
void cProgressBox::showProgressBar(int maximum)
{
    m_dialog->setMinimumDuration(std::numeric_limits<int>::max());
    m_since.start();
    m_dialog->setMaximum(maximum);
    m_dialog->setValue(0);
}

// While a step is told, no message is open.
void cProgressBox::addProgressValue(int steps)
{
    if (m_since.elapsed() >= m_patience) {
        m_dialog->setMinimumDuration(0);
    }
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
    if (!thread->wait(static_cast<unsigned long>(m_patience))) {
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
