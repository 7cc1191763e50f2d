#pragma once

#include <QtGlobal>

#include <cstddef>

class cDatabase;

// Reads every row of the tables that the program works with, a little at a time. Lists ask for a part of the book, so
// damage elsewhere would show months later, when the copies from before it are gone.
class cTableWalk
{
public:
    explicit cTableWalk(cDatabase& database) : m_database(database) {}

    // Reads on for about so many milliseconds. False once there is nothing left to read, or no use in it: see
    // cDatabase::IsDamaged. No statement stays open in between, so anything may be done with the file.
    [[nodiscard]] bool Step(int milliseconds);

private:
    void ReadSome();

    cDatabase& m_database;
    std::size_t m_table = 0;
    qint64 m_lastRow = 0;
    bool m_isAtStart = true; // of the table
};
