#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>

// Lets a second start on the same database raise the window of the first.
class cSingleInstance final : public QObject
{
    Q_OBJECT

public:
    explicit cSingleInstance(QObject* parent = nullptr);

    // Waits for other starts on this database. To be called by the holder of the file's lock only.
    void Listen(const QString& database);

    // Asks the program that has this database open to come to the front. False when none answers.
    [[nodiscard]] static bool RaiseOther(const QString& database);

Q_SIGNALS:
    void RaiseRequested();

private:
    QLocalServer m_server;
};
