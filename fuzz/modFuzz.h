#pragma once

#include "import/stage/modStatementFormat.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>

// Statement readers against files that nobody has thought of, and what reads a bank's answers.
namespace modFuzz {

// A reader and how its files are called.
struct cTarget
{
    const char* Name = nullptr;     // of the target and of its folder in corpus/
    const char* FileName = nullptr; // what a file of the format is called
    eStatementFormat Format = eStatementFormat::Mt940;
    QString (*Fault)(const QByteArray& bytes) = nullptr; // of what is no statement: looks at the bytes itself
};

// Null when there is none of this name.
[[nodiscard]] const cTarget* Find(const QString& name);

// Different choices of a user, by their number.
constexpr int optionSets = 4;
[[nodiscard]] cReadOptions Options(int set);

// Reads the bytes as the target's format and looks at what came out. What is wrong with it; empty when nothing is.
[[nodiscard]] QString Fault(const cTarget& target, const QByteArray& bytes, int optionSet);

// A listing ("=== name", a line break, the content, and so on) as an archive, so that the files in it can be changed
// without spoiling the check sums. All other bytes come back as they are.
[[nodiscard]] QByteArray Packed(const QByteArray& bytes);

} // namespace modFuzz
