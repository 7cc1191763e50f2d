#pragma once

#include "base/cHttps.h"
#include "views/help/cUpdateSchedule.h"
#include "views/help/modUpdate.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

// The update check: asks the maker for newer versions, says what is new, and downloads one when the user wants it.
// Nothing is sent but the number of the running version. The functions that ask wait for the answer; the window stays
// alive meanwhile.
class cUpdateCheck final : public QObject
{
    Q_OBJECT

public:
    enum class eState {
        Fresh,   // nothing was asked yet
        Looking, // waits for the answer
        Failed,
        Current, // there is nothing newer
        Found,
        Loading, // waits for the file
        Loaded   // it was checked and lies where the user wanted it
    };

    // What this edition asks, and for which version.
    struct cEdition
    {
        QString Address; // https
        QString Version;
    };

    cUpdateCheck(const cBookTools& tools, cConfiguration& configuration, cHttps& https, const cEdition& edition);

    // Why this edition cannot look for new versions, as the user is told; empty when it can. `hasCheck` is false where
    // others keep it up to date.
    [[nodiscard]] static QString Obstacle(bool hasCheck, const QString& address);

    void Look();     // ends in Failed, Current or Found
    void Download(); // asks where to; ends in Loaded, or in Found again
    void Skip();     // the weekly look no longer tells of the versions found
    void Cancel();   // ends what is under way

    [[nodiscard]] eState State() const { return m_state; }
    [[nodiscard]] bool IsBusy() const { return m_state == eState::Looking || m_state == eState::Loading; }
    // True when something was found that the user has not skipped.
    [[nodiscard]] bool HasNews() const;
    [[nodiscard]] bool CanDownload() const; // the newest version has a file

    [[nodiscard]] QString Headline() const; // the state in words
    [[nodiscard]] QString Notes() const;    // of all versions found; empty without any
    [[nodiscard]] QString Privacy() const;
    [[nodiscard]] cUpdateSchedule& Schedule() { return m_schedule; }

Q_SIGNALS:
    void StateChanged();
    void Arrived(int percent); // of the file

private:
    void Enter(eState state);
    [[nodiscard]] eState Take(const cHttpsAnswer& answer);
    [[nodiscard]] QString Reason(const cHttpsAnswer& answer) const;
    void Store(const QString& path, const QByteArray& bytes);
    void TellFailed(const QString& text);
    [[nodiscard]] const cUpdateRelease& Newest() const { return m_found.constFirst(); }

    const cBookTools& m_tools;
    cConfiguration& m_configuration;
    cHttps& m_https;
    const QUrl m_address;
    const QString m_version;
    cUpdateSchedule m_schedule;
    eState m_state = eState::Fresh;
    QString m_failure;
    QString m_path;
    QList<cUpdateRelease> m_found; // newest first
};
