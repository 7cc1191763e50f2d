#include "import/cell/modTextDate.h"

#include "base/modChar.h"

#include <QList>

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr qsizetype longest = 30; // "Donnerstag, 30. September 2023"

// By month; the beginning of the name, as far as languages shorten it.
constexpr std::array<QStringView, 24> months = {u"januar|january|jaenner|jänner",
                                                u"jan|jän",
                                                u"februar|february",
                                                u"feb",
                                                u"märz|maerz|march",
                                                u"mär|mrz|mar|maer",
                                                u"april",
                                                u"apr",
                                                u"mai",
                                                u"may",
                                                u"juni|june",
                                                u"jun",
                                                u"juli|july",
                                                u"jul",
                                                u"august",
                                                u"aug",
                                                u"september",
                                                u"sep|sept",
                                                u"oktober|october",
                                                u"okt|oct",
                                                u"november",
                                                u"nov",
                                                u"dezember|december",
                                                u"dez|dec"};

constexpr QStringView weekdays =
    u"mo|di|mi|do|fr|sa|so|mon|tue|wed|thu|fri|sat|sun|montag|dienstag|mittwoch|donnerstag|freitag|samstag|sonnabend|"
    u"sonntag|monday|tuesday|wednesday|thursday|friday|saturday|sunday";

bool IsAmong(QStringView word, QStringView list)
{
    const QList<QStringView> words = list.split(u'|');
    return std::any_of(words.begin(), words.end(),
                       [&](QStringView known) { return word.compare(known, Qt::CaseInsensitive) == 0; });
}

// 1 to 12; 0 when the word is no month.
int MonthOf(QStringView word)
{
    const auto* const found =
        std::find_if(months.begin(), months.end(), [&](QStringView list) { return IsAmong(word, list); });
    return found == months.end() ? 0 : static_cast<int>((found - months.begin()) / 2) + 1;
}

bool IsSign(QChar c)
{
    return c == u' ' || c == u'.' || c == u',' || c == u'-' || c == u'/';
}

// Words and numbers; empty when anything else is in the text.
QList<QStringView> PiecesOf(QStringView text)
{
    QList<QStringView> pieces;
    qsizetype at = 0;
    while (at < text.size()) {
        const qsizetype start = at;
        const auto take = [&](auto isPart) {
            while (at < text.size() && isPart(text[at])) {
                ++at;
            }
        };
        take(modChar::IsDigit);
        if (at == start) {
            take([](QChar c) { return c.isLetter(); });
        }
        if (at == start && !IsSign(text[at])) {
            return {};
        }
        if (at > start) {
            pieces.append(text.mid(start, at - start));
        } else {
            ++at;
        }
    }
    return pieces;
}

std::optional<int> NumberOf(QStringView piece, qsizetype mostDigits)
{
    const bool isNumber = piece.size() <= mostDigits && modChar::AreDigits(piece);
    return isNumber ? std::optional(piece.toInt()) : std::nullopt;
}

} // namespace

QDate modTextDate::Read(QStringView text)
{
    const auto isLetter = [](QChar c) { return c.isLetter(); };
    if (text.size() > longest || !modChar::HasDigit(text) || !std::any_of(text.begin(), text.end(), isLetter)) {
        return {};
    }
    QList<QStringView> pieces = PiecesOf(text);
    if (pieces.size() == 4 && IsAmong(pieces.first(), weekdays)) {
        pieces.removeFirst();
    }
    if (pieces.size() != 3) {
        return {};
    }
    const bool isMonthFirst = pieces.first().front().isLetter();
    const int month = MonthOf(pieces.at(isMonthFirst ? 0 : 1));
    const std::optional<int> day = NumberOf(pieces.at(isMonthFirst ? 1 : 0), 2);
    const std::optional<int> year = NumberOf(pieces.at(2), 4);
    if (month == 0 || !day || !year || pieces.at(2).size() % 2 != 0) {
        return {};
    }
    return {pieces.at(2).size() == 2 ? 2000 + *year : *year, month, *day};
}
