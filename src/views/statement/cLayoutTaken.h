#pragma once

#include <QString>

class cTableMemory;

// What came of reading in the layout of tables that somebody has shared.
struct cLayoutTaken
{
    QString Name;  // of the layout
    QString Key;   // of the header for which it counts
    QString Fault; // German; why nothing was taken. Empty when it was

    // Takes the layout of a file into the memory, in the place of what that had for the same header.
    [[nodiscard]] static cLayoutTaken File(const QString& path, cTableMemory& memory);
};
