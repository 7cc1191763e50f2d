#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

class cDataAccess;
class cSettings;

// How a category is shown besides its name. An empty text stands for none.
struct cCategoryLook
{
    QString Color{}; // "#rrggbb"; see modCategoryColor
    QString Icon{};  // stored name; see modCategoryIcon

    bool operator==(const cCategoryLook&) const = default;
};

// Colours and pictures of the main categories, read from the book at once, so that a list asks memory for each line. A
// copy costs nothing.
class cCategoryLooks
{
public:
    // The role under which item models give the look of a line, as Shown.
    static constexpr int Role = Qt::UserRole + 64;

    [[nodiscard]] static cCategoryLooks Read(cDataAccess& data);

    // The look of the main category of a path.
    [[nodiscard]] cCategoryLook Of(const QString& path) const;
    [[nodiscard]] bool IsEmpty() const { return m_looks.isEmpty(); }
    // The same for an item model. Nothing in a book without looks; else also an empty look, for which the line leaves
    // room, so that names stay below each other.
    [[nodiscard]] QVariant Shown(const QString& path) const;

    // Stores the look of a main category that had another one; what is empty is removed, and what stays as it was is
    // not written. False when the database refuses.
    [[nodiscard]] static bool Store(cSettings& settings, const QString& main, const cCategoryLook& look,
                                    const cCategoryLook& old = {});

    // To be called when a category has got another path or is gone: its main category's look goes along to that of
    // `newPath` once no other category has it, unless that has one of its own. An empty `newPath` drops it.
    [[nodiscard]] static bool Follow(cDataAccess& data, cSettings& settings, const QString& oldPath,
                                     const QString& newPath);

private:
    QHash<QString, cCategoryLook> m_looks; // by main category in lower case, as settings are found
};
