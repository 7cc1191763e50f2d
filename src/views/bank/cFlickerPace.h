#pragma once

#include <QtGlobal>

// When flickering bars change. A reader loses its place in the code when it misses a state, and begins again only with
// the next round. So a state changes only with a painted frame and stays for two painted frames and for as long as the
// screen takes to show two; where that is slower than the wished speed, or the machine is busy, everything becomes
// slower and nothing is left out. Times are nanoseconds from any moment on.
class cFlickerPace
{
public:
    void SetFrame(qint64 duration) { m_frame = duration; } // of the screen
    void SetSpeed(int statesPerSecond);

    // A frame is about to be painted; true when it is to show the next state.
    [[nodiscard]] bool Paint(qint64 moment);

    // From then until the next frame has to be painted.
    [[nodiscard]] qint64 UntilNext(qint64 moment) const;

private:
    qint64 m_frame = 1;
    qint64 m_period = 1; // of a state, as wished
    qint64 m_since = 0;  // first frame of the present state
    int m_painted = 0;   // frames of the present state
};
