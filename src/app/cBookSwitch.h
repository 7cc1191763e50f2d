#pragma once

#include "core/cStartUp.h"
#include "views/book/cBookHost.h"

#include <QString>

#include <functional>

class cBook;
class cConfiguration;
class cFileLock;
class cRegistry;
class cUser;

// Puts another file in the place of the open book, with lock, password and the way back when something fails. The new
// file is first opened beside the present one, so that the present one is closed only for a file that works.
class cBookSwitch final : public cBookHost
{
public:
    struct cParts
    {
        cStartUp::cPorts Ports;
        cRegistry& Registry;
        cConfiguration& Configuration;
        cBook& Book;
        cFileLock& Lock;
        QString Version;
    };

    // `Replace`: a backup takes the file's place. It may be one of the automatic copies, of which a further one could
    // push it out.
    enum class eLeave { Keep, Replace };

    // What the program does around a change of the book.
    struct cHooks
    {
        std::function<void(eLeave leave)> Leave;       // the book is about to be closed: store view and layouts
        std::function<void(bool isNewVersion)> Arrive; // a book was opened: build anew what shows it
        std::function<void()> End;                     // no book is left, the user knows
    };

    cBookSwitch(const cParts& parts, cHooks hooks);

    [[nodiscard]] bool IsInUse(const QString& path) override;
    [[nodiscard]] bool Switch(const QString& path, eBookOrigin origin) override;
    [[nodiscard]] std::optional<QString> Restore(const QString& backup) override;

    // Asks whether to open a book whose lock is abandoned; true when the lock is held then. Nobody is asked about a
    // lock whose holder lives.
    [[nodiscard]] static bool TakeOver(cFileLock& lock, const QString& path, cUser& user);

private:
    enum class eMode { Writing, Reading };
    struct cProbe
    {
        QString Path;
        eMode Mode = eMode::Writing;
        bool IsNewVersion = false;
    };

    [[nodiscard]] static eMode ModeOf(const cBook& book);
    [[nodiscard]] std::optional<cProbe> Probe(const QString& path, eBookOrigin origin) const;
    [[nodiscard]] bool AskPasswordOf(const QString& backup) const;
    [[nodiscard]] bool Open(const QString& path, eMode mode);
    void Return(const QString& path, eMode mode);
    void ShowHolder(const QString& path) const;

    cParts m_parts;
    cHooks m_hooks;
};
