#pragma once

#include <QtGlobal>

#include <vector>

// A household's months as a game: a purse catches coins and keeps out of the way of bills, and at the end of each month
// comes the standing order, which cannot be dodged. All lengths are in hundredths of a point of a field of 160 by 100
// points, all times in ticks of a sixtieth of a second, so that a seed and the same inputs always give the same game.
class cGame
{
public:
    static constexpr int Width = 16000;
    static constexpr int Height = 10000;
    static constexpr int TicksPerSecond = 60;
    static constexpr int MonthTicks = 18 * TicksPerSecond;
    static constexpr int OrderTicks = 3 * TicksPerSecond; // that the standing order is in sight before it is due
    static constexpr int PurseY = 9200;
    static constexpr int PurseHalf = 750;
    static constexpr int PurseSpeed = 130; // in a tick
    static constexpr int FirstLives = 3;
    static constexpr int SafeTicks = 2 * TicksPerSecond; // after a lost life nothing can be lost

    enum class eThing { Coin, TwoCoin, Note, Bill, Piggy };

    struct cThing
    {
        eThing Kind = eThing::Coin;
        int X = 0; // of its middle
        int Y = 0;
        int Speed = 0; // downwards in a tick
    };

    // Where the purse wants to go.
    struct cInput
    {
        int Direction = 0; // -1, 0, 1: keys
        int Target = -1;   // a place to go to, for the mouse; below 0: none
    };

    enum class eEvent { Caught, Paid, Saved, BillHit, OrderPaid, LifeLost, MonthBegins, Over };

    explicit cGame(quint32 seed);

    // One tick. Nothing happens any more once the game is over.
    void Step(const cInput& input);

    [[nodiscard]] int PurseX() const { return m_purse; }
    [[nodiscard]] const std::vector<cThing>& Things() const { return m_things; }
    [[nodiscard]] int Euros() const { return m_euros; } // in the purse
    [[nodiscard]] int Points() const { return m_points; }
    [[nodiscard]] int Lives() const { return m_lives; }
    [[nodiscard]] int Month() const { return m_month; } // from 1 on; each is harder
    [[nodiscard]] int Order() const;                    // euros that the standing order takes at the end of this month
    [[nodiscard]] int TicksToOrder() const { return MonthTicks - m_tick; }
    [[nodiscard]] int BillCost() const;                        // euros
    [[nodiscard]] bool HasPiggy() const { return m_hasPiggy; } // pays the next bill
    [[nodiscard]] bool IsSafe() const { return m_safe > 0; }
    [[nodiscard]] bool IsOver() const { return m_lives <= 0; }
    [[nodiscard]] const std::vector<eEvent>& Events() const { return m_events; } // of the last tick

    [[nodiscard]] static int Half(eThing kind); // half of a thing's width and height

private:
    [[nodiscard]] int Dice(int from, int to); // both included
    void Move(const cInput& input);
    void Spawn();
    [[nodiscard]] bool WouldTrap(int x, int speed) const;
    void Fall();
    void Meet(const cThing& thing);
    void PayOrder();
    void LoseLife();

    quint32 m_random;
    int m_purse = Width / 2;
    std::vector<cThing> m_things;
    int m_euros = 5;
    int m_points = 0;
    int m_lives = FirstLives;
    int m_month = 1;
    int m_tick = 0;
    int m_nextThing = 0;
    bool m_hasPiggy = false;
    int m_safe = 0;
    std::vector<eEvent> m_events;
};
