#include "windows/main/cDayJump.h"

#include "base/cText.h"
#include "views/main/cMainModel.h"
#include "views/sheet/modDayJump.h"
#include "windows/widget/cDayEdit.h"
#include "windows/widget/modBadField.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>

cDayJump::cDayJump(cMainModel& model, QWidget* parent)
    : QWidget(parent),
      m_model(model),
      m_day(new cDayEdit(model.Today(), this))
{
    auto* label = new QLabel(cText::Tr("Gehe zum Tag:"), this);
    label->setBuddy(m_day);
    m_day->setAccessibleName(cText::Tr("Gehe zum Tag"));
    m_day->setToolTip(cText::Tr("Etwa 15.3., +7 oder heute; die Eingabetaste springt hin, Esc schließt das Feld"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_day);
    connect(m_day, &QLineEdit::returnPressed, this, &cDayJump::Jump);
    hide();
}

void cDayJump::Start()
{
    show();
    m_day->setFocus();
    m_day->selectAll();
}

void cDayJump::Jump()
{
    const modDayJump::cFound found =
        modDayJump::Find(m_model.Entries(), m_day->text(), m_model.Today(), m_model.ShownRange());
    if (!found.IsDay) {
        modBadField::Mark(*m_day, found.Text);
        m_day->selectAll();
        return;
    }
    if (found.Row.isValid()) {
        Q_EMIT RowFound(found.Row);
        Close();
    }
    Q_EMIT Told(found.Text);
}

void cDayJump::Close()
{
    hide();
    Q_EMIT Closed();
}

void cDayJump::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        Close();
        return;
    }
    QWidget::keyPressEvent(event);
}
