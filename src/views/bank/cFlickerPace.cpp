#include "views/bank/cFlickerPace.h"

#include <algorithm>

namespace {

constexpr qint64 second = 1'000'000'000;
constexpr qint64 early = 500'000; // timers strike a little before or after their time
constexpr int leastFrames = 2;

} // namespace

void cFlickerPace::SetSpeed(int statesPerSecond)
{
    m_period = second / std::max(statesPerSecond, 1);
}

bool cFlickerPace::Paint(qint64 moment)
{
    const bool isLongEnough = moment - m_since + early >= std::max(m_period, leastFrames * m_frame);
    const bool isNext = m_painted >= leastFrames && isLongEnough;
    if (isNext || m_painted == 0) {
        m_since = moment;
        m_painted = 0;
    }
    ++m_painted;
    return isNext;
}

qint64 cFlickerPace::UntilNext(qint64 moment) const
{
    return m_frame - (moment - m_since) % m_frame;
}
