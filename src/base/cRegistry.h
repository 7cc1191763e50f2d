#pragma once

#include <QString>

enum class eRegistryScope { User, Machine };

// Key-value store of the signed-in user, for what must be known before a database is open.
// Keys are paths such as "SOFTWARE\Veltrino Kontorelle".
class cRegistry
{
public:
    cRegistry() = default;
    cRegistry(const cRegistry&) = delete;
    cRegistry& operator=(const cRegistry&) = delete;
    virtual ~cRegistry() = default;

    // The stored text as it stands; empty when key or value is missing.
    [[nodiscard]] virtual QString Read(eRegistryScope scope, const QString& key, const QString& name) const = 0;

    // Writes for the current user. False when the store refuses.
    virtual bool Write(const QString& key, const QString& name, const QString& value) = 0;

    // Removes a value of the current user; a missing one is no failure.
    virtual bool Delete(const QString& key, const QString& name) = 0;
};
