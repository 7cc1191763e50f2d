#pragma once

#include <QObject>

// Tells when the program is wanted to end from outside: by SIGTERM, SIGINT or SIGHUP, or because the desktop's session
// ends. A signal that the caller has the program ignore (nohup) stays ignored.
class cSessionWatch final : public QObject
{
    Q_OBJECT

public:
    explicit cSessionWatch(QObject* parent = nullptr);

Q_SIGNALS:
    void SaveRequested(); // the session is about to end, which the user may still call off
    void EndRequested();

protected:
    // The session's end closes the windows one by one, with their questions; instead the program ends as a whole.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void WatchSignals();

    bool m_isSessionEnding = false;
};
