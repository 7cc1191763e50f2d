#pragma once

#include "import/stage/cRepeat.h"

#include <QDate>
#include <QList>
#include <QString>

class cSettings;

// Repeats that were left out although nothing told whether the bank has them, kept in the settings "GLEICH:" + number.
// They are not asked about again, and a balance that does not come out may be their doing.
class cLeftOutRows
{
public:
    struct cRow
    {
        QDate Day;
        qint64 Cents = 0;

        bool operator==(const cRow&) const = default;
    };

    explicit cLeftOutRows(cSettings& settings) : m_settings(settings) {}

    [[nodiscard]] QList<cRow> Of(const QString& number) const; // in the order in which they were left out
    [[nodiscard]] bool Has(const cRepeat& repeat) const;
    // False when the database refuses.
    bool Note(const cRepeatList& repeats);
    bool Forget(const cRepeatList& repeats);

private:
    [[nodiscard]] QStringList Texts(const QString& number) const;
    bool Save(const QString& number, const QStringList& texts);

    cSettings& m_settings;
};
