#pragma once

#include <QDate>
#include <QList>
#include <QString>

class cSettings;

// The best runs of the game on this book, kept in the setting "SpielBestwerte".
class cHighScores
{
public:
    static constexpr int Kept = 5;

    struct cRun
    {
        int Points = 0;
        int Months = 0;
        QDate Day;
    };

    explicit cHighScores(cSettings& settings) : m_settings(settings) {}

    [[nodiscard]] QList<cRun> Best() const; // best first; what cannot be read is passed over

    // Adds a run. Its place counted from 1; 0 when it is none of the best, or the book cannot be written.
    int Add(const cRun& run);

private:
    cSettings& m_settings;
};
