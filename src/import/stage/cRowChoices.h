#pragma once

#include "model/cImportEntry.h"

#include <QList>
#include <QMap>
#include <QString>

class cDataAccess;
class cImportHiveCache;
class cSettings;

// What the user chose for staged rows that are not booked yet. The book keeps it until they are.
class cRowChoices
{
public:
    struct cChoice
    {
        cImportEntry Row; // that it was made for
        QString Category; // empty: as proposed
        QString Interval;
        QString Description;
    };

    // What it works with; all of it outlives this object.
    struct cParts
    {
        cDataAccess& Data;
        cImportHiveCache& Hive;
        cSettings& Settings;
    };

    explicit cRowChoices(const cParts& parts) : m_parts(parts) {}

    // The rows or the book are others now. Choices for rows that are gone, booked or others leave the book, as do
    // categories that it does not have any more.
    void Read();
    [[nodiscard]] cChoice Of(int rowId);
    void Take(const QList<int>& rowIds, QString cChoice::*field, const QString& value);

    // Follows a category that has another path now; false when the database refuses.
    [[nodiscard]] static bool RenameCategory(cSettings& settings, const QString& oldPath, const QString& newPath);

private:
    [[nodiscard]] QMap<int, cChoice>& Choices();
    void Store();

    cParts m_parts;
    bool m_isRead = false;
    QMap<int, cChoice> m_choices; // by row ID, so that the stored text has one order
};
