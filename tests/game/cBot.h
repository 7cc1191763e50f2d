#pragma once

#include "game/cGame.h"

#include <QRandomGenerator>

#include <vector>

// A simulated player. It looks at the things every few ticks, misjudges where they are, and goes for the best of them.
class cBot
{
public:
    struct cSkill
    {
        int Pause = 0; // ticks between two looks
        int Error = 0; // of a seen place, at most
        int Sight = 0; // ticks that it looks ahead
    };

    static constexpr cSkill Beginner{24, 1500, 50};
    static constexpr cSkill Usual{12, 500, 70};
    static constexpr cSkill Expert{3, 0, 90};

    cBot(const cSkill& skill, quint32 seed) : m_skill(skill), m_random(seed) {}

    [[nodiscard]] cGame::cInput Play(const cGame& game);

private:
    [[nodiscard]] int Worth(const cGame& game, const std::vector<cGame::cThing>& seen, int place) const;

    cSkill m_skill;
    QRandomGenerator m_random;
    int m_wait = 0;
    int m_target = cGame::Width / 2;
};
