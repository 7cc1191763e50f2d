#pragma once

#include "model/cOwnRule.h"

#include <QList>
#include <QString>

class cSettings;

// The user's own rules in their order, kept in one setting, so that a change is one write.
class cOwnRules
{
public:
    explicit cOwnRules(cSettings& settings) : m_settings(settings) {}

    // Also those that cannot be read; they stay where they are.
    [[nodiscard]] QList<cOwnRule> Load() const;

    // False when the database refuses; the user has then been told.
    [[nodiscard]] bool Save(const QList<cOwnRule>& rules);

    // Bring the rules in step when entries go over to another category, to another main category with all that lies
    // below it, or to another account. True also when no rule is concerned.
    [[nodiscard]] bool RenameCategory(const QString& oldPath, const QString& newPath);
    [[nodiscard]] bool RenameMain(const QString& oldMain, const QString& newMain);
    [[nodiscard]] bool RenameAccount(const QString& oldName, const QString& newName);

private:
    template <typename tChange>
    [[nodiscard]] bool ChangeAll(tChange change);

    cSettings& m_settings;
};
