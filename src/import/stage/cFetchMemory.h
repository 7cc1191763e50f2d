#pragma once

#include "model/cImportEntry.h"

#include <QDate>
#include <QHash>
#include <QString>

class cSettings;

// What the fetches of a bank account brought lately, kept in the setting "ABRUF:" + bank code and number: a digest of
// each row of the last days. The next fetch brings these days once more, and a row that is not staged any more was
// deleted by the user.
class cFetchMemory
{
public:
    static constexpr int KeptDays = 20;

    cFetchMemory(cSettings& settings, const QString& account);

    // One of the kept rows is equal, or equal but for blanks; so many of them with a number above 1. The record has to
    // be normalised.
    [[nodiscard]] bool HasBrought(const cImportEntry& row, int number = 1) const;

    // A fetch up to this day brought these rows. False when the database refuses.
    [[nodiscard]] bool Note(const cImportEntryList& rows, QDate day);

private:
    cSettings& m_settings;
    QString m_account;
    QHash<quint64, QDate> m_rows; // by digest
    QDate m_oldest;               // day of these; invalid without any
};
