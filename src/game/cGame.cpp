#include "game/cGame.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int coinPoints = 10;
constexpr int monthPoints = 100;
constexpr int fewestGap = 2 * cGame::PurseHalf + 1200; // between bills that are alike in height: the purse fits through

int ValueOf(cGame::eThing kind)
{
    switch (kind) {
    case cGame::eThing::Coin: return 1;
    case cGame::eThing::TwoCoin: return 2;
    case cGame::eThing::Note: return 5;
    default: return 0;
    }
}

} // namespace

cGame::cGame(quint32 seed) : m_random(seed * 2654435769U + 1U)
{
}

// xorshift, G. Marsaglia, "Xorshift RNGs", 2003
int cGame::Dice(int from, int to)
{
    m_random ^= m_random << 13U;
    m_random ^= m_random >> 17U;
    m_random ^= m_random << 5U;
    return from + static_cast<int>(m_random % static_cast<quint32>(to - from + 1));
}

int cGame::Half(eThing kind)
{
    return kind == eThing::Bill ? 600 : kind == eThing::Note ? 500 : 400;
}

int cGame::Order() const
{
    return 6 + 2 * m_month;
}

int cGame::BillCost() const
{
    return 2 + (m_month + 1) / 2;
}

void cGame::Step(const cInput& input)
{
    m_events.clear();
    if (IsOver()) {
        return;
    }
    ++m_tick;
    m_safe = std::max(0, m_safe - 1);
    Move(input);
    Fall();
    if (--m_nextThing <= 0) {
        Spawn();
    }
    if (m_tick >= MonthTicks) {
        PayOrder();
    }
    if (IsOver()) {
        m_events.push_back(eEvent::Over);
    }
}

void cGame::Move(const cInput& input)
{
    int step = std::clamp(input.Direction, -1, 1) * PurseSpeed;
    if (input.Direction == 0 && input.Target >= 0) {
        step = std::clamp(input.Target - m_purse, -PurseSpeed, PurseSpeed);
    }
    m_purse = std::clamp(m_purse + step, PurseHalf, Width - PurseHalf);
}

void cGame::Spawn()
{
    m_nextThing = std::max(14, 38 - m_month) + Dice(-6, 6);
    cThing thing;
    thing.X = Dice(800, Width - 800);
    thing.Y = -700;
    thing.Speed = 40 + 4 * std::min(m_month, 20) + Dice(-10, 10);
    const int bills = std::min(70, 20 + 3 * m_month); // of a hundred things
    const int dice = Dice(1, 100);
    if (dice <= bills) {
        thing.Kind = eThing::Bill;
        if (WouldTrap(thing.X, thing.Speed)) {
            return;
        }
    } else if (dice > 98) {
        thing.Kind = eThing::Piggy;
    } else {
        const int value = Dice(1, 10);
        thing.Kind = value > 9 ? eThing::Note : value > 6 ? eThing::TwoCoin : eThing::Coin;
    }
    m_things.push_back(thing);
}

// True when this bill and those that arrive with it would leave no gap to go through, or one out of reach.
bool cGame::WouldTrap(int x, int speed) const
{
    const int arrival = (PurseY + 700) / speed;
    std::vector<int> bills{x};
    for (const cThing& thing : m_things) {
        const int other = (PurseY - thing.Y) / thing.Speed;
        if (thing.Kind == eThing::Bill && std::abs(other - arrival) < TicksPerSecond / 2) {
            bills.push_back(thing.X);
        }
    }
    std::sort(bills.begin(), bills.end());
    int left = 0;
    int gaps = 0;
    for (const int bill : bills) {
        gaps += bill - Half(eThing::Bill) - left >= fewestGap ? 1 : 0;
        left = bill + Half(eThing::Bill);
    }
    gaps += Width - left >= fewestGap ? 1 : 0;
    return gaps < 2 || bills.size() > 4;
}

void cGame::Fall()
{
    std::vector<cThing> left;
    left.reserve(m_things.size());
    const std::vector<cThing> things = std::move(m_things);
    m_things.clear();
    for (cThing thing : things) {
        thing.Y += thing.Speed;
        const int half = Half(thing.Kind);
        const bool isMet =
            std::abs(thing.Y - PurseY) < half + 400 && std::abs(thing.X - m_purse) < half + PurseHalf - 200;
        if (isMet) {
            Meet(thing);
        } else if (thing.Y < Height + 800) {
            left.push_back(thing);
        }
    }
    m_things = std::move(left);
}

void cGame::Meet(const cThing& thing)
{
    if (thing.Kind == eThing::Piggy) {
        m_hasPiggy = true;
        m_events.push_back(eEvent::Saved);
    } else if (thing.Kind != eThing::Bill) {
        m_euros += ValueOf(thing.Kind);
        m_points += coinPoints * ValueOf(thing.Kind);
        m_events.push_back(eEvent::Caught);
    } else if (IsSafe()) {
        return;
    } else if (m_hasPiggy) {
        m_hasPiggy = false;
        m_events.push_back(eEvent::Paid);
    } else if (m_euros >= BillCost()) {
        m_euros -= BillCost();
        m_events.push_back(eEvent::BillHit);
    } else {
        LoseLife();
    }
}

// It always comes, and always takes what it is due.
void cGame::PayOrder()
{
    m_tick = 0;
    if (m_euros >= Order()) {
        m_euros -= Order();
        m_points += monthPoints * m_month;
        m_events.push_back(eEvent::OrderPaid);
    } else {
        LoseLife();
    }
    ++m_month;
    m_events.push_back(eEvent::MonthBegins);
}

void cGame::LoseLife()
{
    --m_lives;
    m_euros = 5;
    m_safe = SafeTicks;
    m_events.push_back(eEvent::LifeLost);
}
