#pragma once

#include <QHash>
#include <QString>

#include <utility>

struct cImportEntry;

// Which transactions have the same payee. It remembers what it has found out about a name, because the same names come
// again and again.
class cPayeeKeys
{
public:
    struct cPayee
    {
        QString Key;              // the same for all cash; empty when the row names nobody
        QString Name;             // as a person reads it
        bool IsCollector = false; // the name is that of somebody who collects for others
        bool IsCash = false;

    private:
        friend class cPayeeKeys;
        bool m_isFixed = false; // the same for all rows with this name, whatever their purpose
        bool m_isDrawn = false; // the name alone says that it is cash, going out or coming in
        bool m_isPaidIn = false;
    };

    [[nodiscard]] cPayee Of(const cImportEntry& row);

private:
    [[nodiscard]] static cPayee ByName(const cImportEntry& row);

    QHash<std::pair<QString, QString>, cPayee> m_known; // by booking text and name
};
