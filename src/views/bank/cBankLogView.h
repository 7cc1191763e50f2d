#pragma once

#include <QString>

class cClock;
class cShell;
class cUser;

// The log of a run with a bank, as it is shown, saved and sent. What leaves the program is the version for others,
// without anything that tells who the user is.
class cBankLogView
{
public:
    struct cParts
    {
        cUser& User;
        cShell& Shell;
        const cClock& Clock;
    };

    // Both texts of the log, the one for the user and the one for others.
    cBankLogView(const QString& text, const QString& forOthers, const cParts& parts);

    [[nodiscard]] QString Text() const;
    [[nodiscard]] QString Note() const; // what is hidden in which version
    [[nodiscard]] bool IsEmpty() const { return m_text.isEmpty(); }

    // Asks where to. What fails is said.
    void Save() const;
    // Opens a mail of the user's mail program with the file.
    void Send() const;

private:
    [[nodiscard]] bool Write(const QString& path) const;

    QString m_text;
    QString m_forOthers;
    cParts m_parts;
};
