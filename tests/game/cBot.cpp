#include "game/cBot.h"

#include <algorithm>
#include <cstdlib>

cGame::cInput cBot::Play(const cGame& game)
{
    if (--m_wait <= 0) {
        m_wait = m_skill.Pause;
        std::vector<cGame::cThing> seen = game.Things();
        for (cGame::cThing& thing : seen) {
            thing.X += m_skill.Error > 0 ? m_random.bounded(-m_skill.Error, m_skill.Error + 1) : 0;
        }
        int best = -1'000'000;
        for (int place = cGame::PurseHalf; place <= cGame::Width - cGame::PurseHalf; place += 750) {
            if (const int worth = Worth(game, seen, place); worth > best) {
                best = worth;
                m_target = place;
            }
        }
    }
    return {0, m_target};
}

// What happens on the way to a place and there, as far as the player looks ahead.
int cBot::Worth(const cGame& game, const std::vector<cGame::cThing>& seen, int place) const
{
    constexpr int stride = 3; // ticks between two looks at the way
    int worth = -std::abs(place - game.PurseX()) / 300;
    std::vector<bool> isMet(seen.size());
    for (int ticks = stride; ticks <= m_skill.Sight; ticks += stride) {
        const int way = std::min(ticks * cGame::PurseSpeed, std::abs(place - game.PurseX()));
        const int purse = game.PurseX() + (place > game.PurseX() ? way : -way);
        for (std::size_t i = 0; i < seen.size(); ++i) {
            const cGame::cThing& thing = seen[i];
            const int half = cGame::Half(thing.Kind);
            const bool isBill = thing.Kind == cGame::eThing::Bill;
            const int reach = half + cGame::PurseHalf - 200 + (isBill ? 200 : -50);
            if (isMet[i] || std::abs(thing.Y + ticks * thing.Speed - cGame::PurseY) >= half + 400 + (isBill ? 150 : 0)
                || std::abs(thing.X - purse) >= reach) {
                continue;
            }
            isMet[i] = true;
            const int near = 200 - ticks; // what comes later may still be met or dodged later
            switch (thing.Kind) {
            case cGame::eThing::Coin: worth += near / 2; break;
            case cGame::eThing::TwoCoin:
            case cGame::eThing::Piggy: worth += near; break;
            case cGame::eThing::Note: worth += 5 * near / 2; break;
            case cGame::eThing::Bill: worth -= game.IsSafe() ? 0 : near * (game.BillCost() + 6); break;
            }
        }
    }
    return worth;
}
