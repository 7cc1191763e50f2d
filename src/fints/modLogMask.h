#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

// Hiding in the log what is nobody's business. Texts are bytes in ISO-8859-1, as in the messages.
namespace modLogMask {

// What stands for something hidden. Always the same, so that not even a length is told.
constexpr const char* hidden = "***";

// `shown`, of the same length as the text, with every occurrence of the needles in the text replaced by as many
// characters; where two overlap, both are.
[[nodiscard]] QByteArray Covered(QByteArrayView text, const QList<QByteArray>& needles, char cover, QByteArray shown);

// Words of a bank: long numbers, IBANs and the needles hidden.
[[nodiscard]] QByteArray Words(QByteArrayView text, const QList<QByteArray>& needles);

// A message by what its segments are: only what the table of segments calls open is shown, binary data by its length.
// What tells who the customer is goes to `people`. Bytes that are no message are taken as words.
[[nodiscard]] QByteArray Message(const QByteArray& message, const QList<QByteArray>& needles, QSet<QString>& people);

// A finished text without these people; their names are found word by word.
[[nodiscard]] QString Without(QString text, const QStringList& people);

} // namespace modLogMask
