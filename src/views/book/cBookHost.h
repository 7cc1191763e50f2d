#pragma once

#include <QString>

#include <optional>

enum class eBookOrigin { Existing, Fresh };

// The running program as the flows around whole books see it.
class cBookHost
{
public:
    cBookHost() = default;
    cBookHost(const cBookHost&) = delete;
    cBookHost& operator=(const cBookHost&) = delete;
    virtual ~cBookHost() = default;

    // Whether another program works on this file. The user is told by whom.
    [[nodiscard]] virtual bool IsInUse(const QString& path) = 0;

    // Opens another book in place of the present one, asks for its password, and shows it. False when that did not
    // work or the user gave up: the user knows why, and the present book is still there.
    [[nodiscard]] virtual bool Switch(const QString& path, eBookOrigin origin) = 0;

    // Puts a backup, for whose password it asks, in the place of the present book, and shows it. Gives the name under
    // which the replaced file is kept; empty optional as for Switch.
    [[nodiscard]] virtual std::optional<QString> Restore(const QString& backup) = 0;
};
