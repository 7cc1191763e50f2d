#pragma once

#include "model/cReceiptSource.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

struct cBookTools;

// The folder "Belege" beside the open book. What is kept there is copied once and never written again, and the name
// tells what is in the file: no name ever comes to mean another one, whatever was removed or restored meanwhile.
class cReceiptFolder
{
public:
    struct cFile
    {
        QString Name;
        QString Path;
        qint64 Size = -1; // bytes; -1 when the file is not there

        [[nodiscard]] bool IsThere() const { return Size >= 0; }
    };

    explicit cReceiptFolder(const cBookTools& tools) : m_tools(tools) {}

    static constexpr qint64 MostBytes = 200'000'000; // of one file

    [[nodiscard]] QString Path() const;
    [[nodiscard]] cFile File(const QString& name) const;
    [[nodiscard]] bool Holds(const QString& path) const; // a file that may be named in a mark

    // Each of these tells the user why not.
    [[nodiscard]] bool MayWrite() const; // makes the folder when it is missing
    [[nodiscard]] std::optional<QByteArray> Read(const cReceiptSource& source) const;
    // The name under which the folder holds the bytes now, "<stem> <digits of them><ending>"; empty on failure.
    [[nodiscard]] QString Keep(const QString& stem, const QString& ending, const QByteArray& bytes);
    // The same for a source with its own ending. What lies in the folder already keeps its name.
    [[nodiscard]] QString Take(const QString& stem, const cReceiptSource& source);

    // Says why an action that wanted something kept changes nothing: it hangs there, or only its file was missing.
    void TellUnchanged() const;

    // Removes what was copied since this object was made: the action that wanted it failed.
    void TakeBack();

    [[nodiscard]] bool Refuse(const QString& text) const; // shows it; false

    [[nodiscard]] static QString NameOf(const cReceiptSource& source); // as the user knows it
    [[nodiscard]] static QList<cReceiptSource> Sources(const QStringList& paths);

private:
    const cBookTools& m_tools;
    QStringList m_copied;
};
