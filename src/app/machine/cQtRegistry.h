#pragma once

#include "base/cRegistry.h"

#include <memory>

class QSettings;

// The registry of Windows; elsewhere, and in a profile folder, files that hold the same keys as groups.
class cQtRegistry final : public cRegistry
{
public:
    // With a profile folder the values of the user lie in it, and those of the machine are not seen.
    explicit cQtRegistry(const QString& profile) : m_profile(profile) {}

    [[nodiscard]] QString Read(eRegistryScope scope, const QString& key, const QString& name) const override;
    bool Write(const QString& key, const QString& name, const QString& value) override;
    bool Delete(const QString& key, const QString& name) override;

private:
    [[nodiscard]] std::unique_ptr<QSettings> Open(eRegistryScope scope, const QString& key) const;

    QString m_profile;
};
