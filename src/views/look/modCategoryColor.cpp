#include "views/look/modCategoryColor.h"

#include "base/cText.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

const std::array<quint32, modCategoryColor::Count> modCategoryColor::Light{0x0087e8, 0xf5aa00, 0x1e8252, 0xa54900,
                                                                           0x6fc2ee, 0x88488f, 0x96c75e, 0x263e3d,
                                                                           0x582f09, 0x0a2fa9, 0xd9b096, 0x958da0};
const std::array<quint32, modCategoryColor::Count> modCategoryColor::Dark{0x8ba3f7, 0xf3a900, 0x3eb07e, 0xcd621b,
                                                                          0x8edfff, 0xa864a4, 0xb6f16d, 0xe6dfd5,
                                                                          0x817543, 0x6269de, 0xffd6a0, 0x627772};

namespace {

struct cNamed
{
    int Number;
    const char* Name;
};

constexpr std::array offered{
    cNamed{0, QT_TRANSLATE_NOOP("cText", "Blau")},     cNamed{4, QT_TRANSLATE_NOOP("cText", "Hellblau")},
    cNamed{9, QT_TRANSLATE_NOOP("cText", "Tiefblau")}, cNamed{2, QT_TRANSLATE_NOOP("cText", "Grün")},
    cNamed{6, QT_TRANSLATE_NOOP("cText", "Hellgrün")}, cNamed{1, QT_TRANSLATE_NOOP("cText", "Gelb")},
    cNamed{3, QT_TRANSLATE_NOOP("cText", "Rost")},     cNamed{8, QT_TRANSLATE_NOOP("cText", "Braun")},
    cNamed{10, QT_TRANSLATE_NOOP("cText", "Sand")},    cNamed{5, QT_TRANSLATE_NOOP("cText", "Violett")}};

QString Stored(quint32 colour)
{
    return u"#%1"_s.arg(colour, 6, 16, QChar(u'0'));
}

std::optional<quint32> Value(const QString& stored)
{
    constexpr qsizetype letters = 7;
    bool isNumber = false;
    const uint value = stored.mid(1).toUInt(&isNumber, 16);
    const bool isOne = isNumber && stored.size() == letters && stored.startsWith(u'#') && stored.at(1) != u'+';
    return isOne ? std::optional<quint32>(value) : std::nullopt;
}

int Red(quint32 colour)
{
    return static_cast<int>(colour >> 16U);
}

int Green(quint32 colour)
{
    return static_cast<int>(colour >> 8U & 0xffU);
}

int Blue(quint32 colour)
{
    return static_cast<int>(colour & 0xffU);
}

// How light a colour is to the eye, from 0 to 255.
int Brightness(quint32 colour)
{
    return (Red(colour) * 299 + Green(colour) * 587 + Blue(colour) * 114) / 1000;
}

quint32 Mixed(quint32 from, quint32 to, double share)
{
    const auto mix = [share](int a, int b) { return static_cast<quint32>(std::lround(a + (b - a) * share)); };
    return mix(Red(from), Red(to)) << 16U | mix(Green(from), Green(to)) << 8U | mix(Blue(from), Blue(to));
}

} // namespace

QList<modCategoryColor::cOffer> modCategoryColor::Offers()
{
    QList<cOffer> offers;
    for (const auto& [number, name] : offered) {
        offers.append({number, Stored(Light.at(static_cast<std::size_t>(number))), cText::Tr(name)});
    }
    return offers;
}

std::optional<QString> modCategoryColor::Read(const QString& text)
{
    const QString typed = text.trimmed();
    if (const std::optional<quint32> value = Value(typed)) {
        return Stored(*value);
    }
    const QList<cOffer> offers = Offers();
    const auto named = std::find_if(offers.begin(), offers.end(), [&](const cOffer& offer) {
        return offer.Name.compare(typed, Qt::CaseInsensitive) == 0;
    });
    return named == offers.end() ? std::nullopt : std::optional(named->Stored);
}

QString modCategoryColor::NameOf(const QString& stored)
{
    const QList<cOffer> offers = Offers();
    const auto named = std::find_if(offers.begin(), offers.end(), [&](const cOffer& offer) {
        return offer.Stored.compare(stored, Qt::CaseInsensitive) == 0;
    });
    return named == offers.end() ? stored : named->Name;
}

quint32 modCategoryColor::Shown(const QString& stored, bool isDark)
{
    constexpr int least = 90; // from the brightness of the background
    constexpr double step = 0.1;
    const quint32 colour = Value(stored).value_or(0x808080U);
    const auto offer = std::find(Light.begin(), Light.end(), colour);
    if (offer != Light.end()) {
        return isDark ? Dark.at(static_cast<std::size_t>(offer - Light.begin())) : colour;
    }
    const int ground = isDark ? 35 : 255;
    const quint32 away = isDark ? 0xffffffU : 0U;
    quint32 shown = colour;
    for (double share = step; std::abs(Brightness(shown) - ground) < least && share < 1; share += step) {
        shown = Mixed(colour, away, share);
    }
    return shown;
}

std::optional<int> modCategoryColor::NumberLike(const QString& stored)
{
    constexpr int alike = 90; // sum of the distances of red, green and blue
    const std::optional<quint32> colour = Value(stored);
    if (!colour) {
        return std::nullopt;
    }
    const auto distance = [&](quint32 other) {
        return std::abs(Red(*colour) - Red(other)) + std::abs(Green(*colour) - Green(other))
            + std::abs(Blue(*colour) - Blue(other));
    };
    const auto nearest =
        std::min_element(Light.begin(), Light.end(), [&](quint32 a, quint32 b) { return distance(a) < distance(b); });
    return distance(*nearest) < alike ? std::optional(static_cast<int>(nearest - Light.begin())) : std::nullopt;
}
