#pragma once

#include "views/main/modSavedView.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

struct cBookTools;

// The views that the user has given a name, with the questions around keeping, renaming and deleting them. The first
// nine have a key.
class cSavedViews
{
public:
    explicit cSavedViews(const cBookTools& tools) : m_tools(tools) {}

    [[nodiscard]] QList<cSavedView> All() const;
    [[nodiscard]] QStringList Names() const;

    // Asks for a name and keeps the view under it; one of this name is replaced. False when the user gives up.
    bool Keep(const cViewState& view, const QString& columns);

    // Lets the user choose a view and show, rename, delete it or give it the first key. The one that is to be shown.
    [[nodiscard]] std::optional<cSavedView> Manage();

    // The name as it counts from now on; a view goes on showing its account.
    void AccountRenamed(const QString& oldName, const QString& newName);
    void PersonRenamed(const QString& oldName, const QString& newName);

private:
    void Follow(QString cViewState::*field, const QString& oldName, const QString& newName);
    bool Store(const QList<cSavedView>& views);
    [[nodiscard]] std::optional<QString> AskName(const QString& proposal) const;
    void Rename(qsizetype number);

    const cBookTools& m_tools;
};
