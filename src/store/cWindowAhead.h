#pragma once

#include "model/modPeriod.h"
#include "store/cDatabase.h"
#include "store/cWindowRows.h"

#include <QString>

#include <future>
#include <optional>

// Some days of a book that are read on a connection and a thread of their own, while the program does something else.
class cWindowAhead
{
public:
    // Begins to read. `mark` is that of the book before; nothing is read where the system has no thread left.
    cWindowAhead(const QString& path, const modPeriod::cRange& days, const cDatabase::cChangeMark& mark);

    // Waits for the rows. None when others were read, the book has changed since, or it could not be read: then whoever
    // reads it again says why.
    [[nodiscard]] std::optional<cWindowRows> Take(const modPeriod::cRange& days, const cDatabase::cChangeMark& mark);

private:
    modPeriod::cRange m_days;
    cDatabase::cChangeMark m_mark;
    std::future<std::optional<cWindowRows>> m_rows; // its end waits for the thread
};
