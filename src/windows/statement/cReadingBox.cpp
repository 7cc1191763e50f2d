#include "windows/statement/cReadingBox.h"

#include "views/statement/cImportAssistant.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QLabel>
#include <QRadioButton>

cReadingBox::cReadingBox(cImportAssistant& assistant, QWidget* parent)
    : QFrame(parent),
      m_assistant(assistant),
      m_question(new QLabel(cImportAssistant::DoubtText(), this)),
      m_readings(new QButtonGroup(this))
{
    constexpr int readings = 2;
    setFrameShape(QFrame::StyledPanel);
    m_question->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_question);
    for (int reading = 0; reading < readings; ++reading) {
        auto* button = new QRadioButton(this);
        button->setAccessibleDescription(cImportAssistant::DoubtText());
        m_readings->addButton(button, reading);
        layout->addWidget(button);
    }
    connect(m_readings, &QButtonGroup::idClicked, &m_assistant, &cImportAssistant::ChooseReading);
    Refresh();
}

void cReadingBox::Refresh()
{
    const QStringList readings = m_assistant.Readings();
    setVisible(!readings.isEmpty());
    m_readings->setExclusive(false); // else none of them could be unchecked again
    for (QAbstractButton* button : m_readings->buttons()) {
        const int reading = m_readings->id(button);
        QString text = readings.value(reading);
        button->setText(text.replace(u'&', QStringLiteral("&&")));
        button->setChecked(reading == m_assistant.Reading());
    }
    m_readings->setExclusive(true);
}
