#include "windows/people/modPayerChoice.h"

#include "model/modPeople.h"
#include "views/main/modViewText.h"

#include <QComboBox>
#include <QLabel>
#include <QSignalBlocker>

void modPayerChoice::Offer(QComboBox& combo, QLabel& label, const QStringList& people)
{
    const QSignalBlocker blocker(combo);
    const QString chosen = combo.currentData().toString();
    combo.clear();
    const QStringList choices = QStringList{QString()} + people + QStringList{modPeople::Nobody};
    for (const QString& choice : choices) {
        combo.addItem(modViewText::PayerText(choice), choice);
    }
    combo.setCurrentIndex(qMax(0, combo.findData(chosen)));
    combo.setHidden(people.isEmpty());
    label.setHidden(people.isEmpty());
}
