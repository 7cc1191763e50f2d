#pragma once

#include <QWidget>

class cElidedText;

// Above a list that shows selected entries for a while: what they are, and the ways back.
class cBackBar final : public QWidget
{
    Q_OBJECT

public:
    explicit cBackBar(QWidget* parent = nullptr);

    void ShowText(const QString& text); // an empty text hides the bar

Q_SIGNALS:
    void BackRequested();  // to where the selection was made
    void CloseRequested(); // to the list as it was before

private:
    cElidedText* m_text;
};
