#include "game/cBot.h"
#include "game/cGame.h"
#include "support/cTestClass.h"

#include <QTest>

#include <algorithm>
#include <vector>

namespace {

constexpr int longest = 20 * 60 * cGame::TicksPerSecond;

// Ticks that a game lasts.
int Play(quint32 seed, const cBot::cSkill& skill)
{
    cGame game(seed);
    cBot bot(skill, seed);
    int ticks = 0;
    for (; ticks < longest && !game.IsOver(); ++ticks) {
        game.Step(bot.Play(game));
    }
    return ticks;
}

int MedianSeconds(const cBot::cSkill& skill)
{
    std::vector<int> ticks;
    for (quint32 seed = 1; seed <= 7; ++seed) {
        ticks.push_back(Play(seed, skill));
    }
    std::nth_element(ticks.begin(), ticks.begin() + 3, ticks.end());
    return ticks[3] / cGame::TicksPerSecond;
}

} // namespace

class testGame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SameSeedSameGame()
    {
        cGame one(7);
        cGame other(7);
        for (int tick = 0; tick < 5000; ++tick) {
            const cGame::cInput input{tick / 90 % 3 - 1, -1};
            one.Step(input);
            other.Step(input);
        }
        QCOMPARE(one.Points(), other.Points());
        QCOMPARE(one.PurseX(), other.PurseX());
        QCOMPARE(one.Things().size(), other.Things().size());
    }

    // Who does nothing pays the standing order until the lives are gone, and then nothing moves any more.
    void TheOrderAlwaysComes()
    {
        cGame game(3);
        int tick = 0;
        for (; !game.IsOver(); ++tick) {
            game.Step({});
            QVERIFY(tick < longest);
        }
        const int month = game.Month();
        game.Step({1, -1});
        QCOMPARE(game.Month(), month);
        QVERIFY(game.Events().empty());
    }

    // Fun for some minutes, whoever plays, and better players last longer.
    void LastsBySkill()
    {
        const int beginner = MedianSeconds(cBot::Beginner);
        const int usual = MedianSeconds(cBot::Usual);
        const int expert = MedianSeconds(cBot::Expert);
        qInfo("median seconds: %d, %d, %d", beginner, usual, expert);
        QVERIFY(beginner >= 120);
        QVERIFY(beginner < usual && usual < expert);
        QVERIFY(expert <= 420);
    }

    // A player who sees everything gets through the first months of every game without losing a life to bills.
    void NoSeedIsUnfair()
    {
        for (quint32 seed = 1; seed <= 20; ++seed) {
            cGame game(seed);
            cBot bot(cBot::Expert, seed);
            while (game.Month() <= 3) {
                game.Step(bot.Play(game));
                QVERIFY2(game.Lives() == cGame::FirstLives, qPrintable(QString::number(seed)));
            }
        }
    }
};

TEST_CLASS(testGame, QCoreApplication)
#include "testGame.moc"
