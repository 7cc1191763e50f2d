#pragma once

#include <QDate>
#include <QString>

#include <algorithm>

// Sum of entries that share kind, category and tags.
struct cCategorySum
{
    QString EntryType;
    QString EntryCategory;
    QString EntryDescription; // with their tags; may be empty where there are none
    qint64 Cents = 0;
    int Entries = 0;
    QDate First{}; // days that nobody can read aside
    QDate Last{};

    void Add(QDate day, qint64 cents)
    {
        Cents += cents;
        ++Entries;
        First = First.isValid() && day.isValid() ? std::min(First, day) : std::max(First, day);
        Last = std::max(Last, day);
    }
};
