#pragma once

#include <QFrame>

class cImportAssistant;
class QButtonGroup;
class QLabel;

// The question that a file leaves open, with its two readings side by side. Hidden while there is none.
class cReadingBox final : public QFrame
{
    Q_OBJECT

public:
    // `assistant` outlives the box.
    explicit cReadingBox(cImportAssistant& assistant, QWidget* parent = nullptr);

    void Refresh();

private:
    cImportAssistant& m_assistant;
    QLabel* m_question;
    QButtonGroup* m_readings;
};
