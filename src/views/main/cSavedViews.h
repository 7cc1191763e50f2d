#pragma once

#include "views/main/modSavedView.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

struct cBookTools;

// The views that the user has given a name, with the questions around keeping, renaming and deleting them. Each change
// is a step that can be undone. The first nine have a key.
class cSavedViews
{
public:
    explicit cSavedViews(const cBookTools& tools) : m_tools(tools) {}

    [[nodiscard]] QList<cSavedView> All() const;
    [[nodiscard]] QStringList Names() const;

    // Asks for a name and keeps the view under it; one of this name is replaced. False when the user gives up.
    bool Keep(cSavedView view);

    // Lets the user choose a view and show, rename, delete it or give it the first key. The one that is to be shown.
    [[nodiscard]] std::optional<cSavedView> Manage();

private:
    bool Store(const QList<cSavedView>& views, const QString& name);
    [[nodiscard]] std::optional<QString> AskName(const QString& proposal) const;
    void Rename(qsizetype number);

    const cBookTools& m_tools;
};
