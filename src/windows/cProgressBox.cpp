#include "windows/cProgressBox.h"

#include "base/cText.h"

#include <QProgressDialog>

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

void cProgressBox::hideProgressBar()
{
    m_dialog->hide();
    m_dialog->reset();
}

bool cProgressBox::IsCancelled() const
{
    return m_dialog->wasCanceled();
}
