#pragma once

#include "model/cImportEntry.h"
#include "model/cOwnRule.h"

#include <QList>
#include <QString>

class cImportHiveCache;
struct cBookTools;

// What the category that the user gives one bank transaction means for others: the open ones of the same payee, and by
// an own rule all that are still to come ("immer so").
class cLesson
{
public:
    cLesson(const cBookTools& tools, cImportHiveCache& hive) : m_tools(tools), m_hive(hive) {}

    // The other open rows of the same payee with money going the same way, the newest first. None for a row that names
    // nobody, and for cash, which is alike by itself.
    [[nodiscard]] QList<int> AlikeRows(const cImportEntry& row);

    // A rule by which all rows of this payee get the category. It matches the row itself, whatever card number, place
    // or date stands in it.
    [[nodiscard]] static cOwnRule RuleFor(const cImportEntry& row, const QString& category);

    // Stores this rule before the one that the row has now; a rule with the same conditions gets the category instead.
    // False when the database refuses, which the user has then been told.
    [[nodiscard]] bool Teach(const cImportEntry& row, const QString& category);

private:
    const cBookTools& m_tools;
    cImportHiveCache& m_hive;
};
