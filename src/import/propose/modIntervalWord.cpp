#include "import/propose/modIntervalWord.h"

#include "import/read/modTextWords.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cWord
{
    QLatin1StringView Begin; // of the folded word
    const char16_t* Interval = nullptr;
};

constexpr const char16_t* quarterly = u"Alle 3 Monate";
constexpr const char16_t* halfYearly = u"Alle 6 Monate";
constexpr const char16_t* yearly = u"Jährlich";
constexpr const char16_t* monthly = u"Monatlich";

constexpr std::array words{cWord{"quartal"_L1, quarterly},     cWord{"vierteljaehrlich"_L1, quarterly},
                           cWord{"vierteljahr"_L1, quarterly}, cWord{"halbjaehrlich"_L1, halfYearly},
                           cWord{"halbjahr"_L1, halfYearly},   cWord{"jaehrlich"_L1, yearly},
                           cWord{"jahresbeitrag"_L1, yearly},  cWord{"jahrespraemie"_L1, yearly},
                           cWord{"monatlich"_L1, monthly},     cWord{"monatsbeitrag"_L1, monthly}};

bool IsYear(QStringView word)
{
    return (word.size() == 2 || word.size() == 4) && modTextWords::HasDigits(word, static_cast<int>(word.size()));
}

// "Q4" is a quarter only beside its year: there are cars of that name.
bool IsQuarter(QStringView word, QStringView before, QStringView after)
{
    return word.size() == 2 && word[0] == u'q' && word[1] >= u'1' && word[1] <= u'4'
        && (IsYear(before) || IsYear(after));
}

// A number that divides a yearly word, as in "1/4-jährlich", or multiplies a monthly one, as in "3-monatlich". No text:
// how often that would be is no interval of the program.
QString Divided(const char16_t* interval, QStringView before)
{
    const bool isJoined = before.endsWith(u'-');
    const QStringView number = isJoined ? before.chopped(1) : before.trimmed();
    const auto ends = [&](QLatin1StringView fraction, QChar sign) {
        return number.endsWith(fraction) || number.endsWith(sign);
    };
    if (interval == yearly && ends("1/4"_L1, u'\u00bc')) {
        return QString::fromUtf16(quarterly);
    }
    if (interval == yearly && ends("1/2"_L1, u'\u00bd')) {
        return QString::fromUtf16(halfYearly);
    }
    if (interval != monthly || !isJoined || number.isEmpty() || !number.back().isDigit()) {
        return QString::fromUtf16(interval);
    }
    const bool isLong = number.size() > 1 && number[number.size() - 2].isDigit();
    switch (isLong ? 0 : number.back().digitValue()) {
    case 2: return u"Alle 2 Monate"_s;
    case 3: return QString::fromUtf16(quarterly);
    case 6: return QString::fromUtf16(halfYearly);
    default: return {};
    }
}

} // namespace

QString modIntervalWord::In(const QString& purpose)
{
    const QList<modTextWords::cWord> all = modTextWords::Of(purpose);
    for (qsizetype i = 0; i < all.size(); ++i) {
        const QString& word = all.at(i).Folded;
        const QString before = i > 0 ? all.at(i - 1).Folded : QString();
        const QString after = i + 1 < all.size() ? all.at(i + 1).Folded : QString();
        if (IsQuarter(word, before, after)) {
            return QString::fromUtf16(quarterly);
        }
        const auto* const known =
            std::find_if(words.begin(), words.end(), [&](const cWord& each) { return word.startsWith(each.Begin); });
        if (known != words.end()) {
            return Divided(known->Interval, QStringView(purpose).left(all.at(i).At));
        }
    }
    return {};
}
