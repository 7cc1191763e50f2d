#pragma once

#include "core/cStartRequest.h"

#include <QLocalServer>
#include <QObject>
#include <QString>

class QLocalSocket;

// Lets a second start on the same database raise the window of the first and hand it what it was asked to do.
class cSingleInstance final : public QObject
{
    Q_OBJECT

public:
    explicit cSingleInstance(QObject* parent = nullptr);

    // Waits for other starts on this database. To be called by the holder of the file's lock only.
    void Listen(const QString& database);

    // The database whose window was used last, of those that a profile opened.
    static void NoteUsed(const QString& profile, const QString& database);
    [[nodiscard]] static QString LastUsed(const QString& profile); // may be closed by now; empty: none

    // Asks the program that has this database open to come to the front and to do what is wanted. False when none
    // answers.
    [[nodiscard]] static bool HandOver(const QString& database, const cStartRequest& request);

Q_SIGNALS:
    void Requested(const cStartRequest& request);

private:
    void Take(QLocalSocket& caller);

    QLocalServer m_server;
};
