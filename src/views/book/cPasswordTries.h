#pragma once

#include <algorithm>

// Makes guessing tedious: after every wrong password the next try has to wait longer, for 1, 2, 4 and so on up to 60
// seconds. Outlives the windows that ask, so that closing one does not shorten the wait.
class cPasswordTries
{
public:
    static constexpr int LongestWait = 60; // seconds

    void NoteWrong()
    {
        m_nextWait = std::min(LongestWait, m_nextWait == 0 ? 1 : m_nextWait * 2);
        m_left = m_nextWait;
    }
    void NoteRight() { *this = {}; }

    // To be called every second while a window waits.
    void SecondPassed() { m_left = std::max(0, m_left - 1); }
    // Seconds until the next try; 0 when it may come now.
    [[nodiscard]] int Left() const { return m_left; }

private:
    int m_nextWait = 0;
    int m_left = 0;
};
