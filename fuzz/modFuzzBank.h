#pragma once

#include <QByteArray>
#include <QString>

// Answers of a bank that nobody has thought of. Each says what is wrong with what came out; empty when nothing is.
namespace modFuzzBank {

// Every byte of a message is in a token or a separator.
[[nodiscard]] QString FaultOfSplit(const QByteArray& bytes);

// All that is read from an answer, and the log of it. Bytes without a message head are put into a container.
[[nodiscard]] QString FaultOfAnswer(const QByteArray& bytes);

// TAN procedures and other parameters, a segment a line.
[[nodiscard]] QString FaultOfMethods(const QByteArray& bytes);

} // namespace modFuzzBank
