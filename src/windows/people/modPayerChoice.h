#pragma once

#include <QStringList>

class QComboBox;
class QLabel;

// The field with which a list is narrowed to what somebody paid.
namespace modPayerChoice {

// Offers everybody, the people, and nobody in particular, each with its choice of modPeople as data; what was chosen
// stays so if it is still there. In a book without people field and label are hidden.
void Offer(QComboBox& combo, QLabel& label, const QStringList& people);

} // namespace modPayerChoice
