#include "import/read/modSepaPurpose.h"

#include <QStringView>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array<QStringView, 17> keywords = {u"IBAN+", u"BIC+",  u"EREF+", u"DEBT+", u"SVWZ+", u"ABWA+",
                                                  u"ABWE+", u"MREF+", u"CRED+", u"KREF+", u"PURP+", u"MDAT+",
                                                  u"ORCR+", u"ORMR+", u"DDAT+", u"OAMT+", u"COAM+"};

// The keyword at the start of the text; empty when there is none.
QStringView KeywordAt(QStringView text)
{
    if (text.size() < 4 || (text[3] != u'+' && (text.size() < 5 || text[4] != u'+'))) {
        return {}; // as nearly always, and quick to see
    }
    const auto isSame = [](QChar letter, QChar capital) { // small letters differ from capitals in one bit
        return letter == capital || (letter.unicode() & ~0x20) == capital.unicode();
    };
    const auto* const found = std::find_if(keywords.begin(), keywords.end(), [&](QStringView keyword) {
        return isSame(text.front(), keyword.front()) && text.size() >= keyword.size()
            && std::equal(keyword.begin(), keyword.end(), text.begin(),
                          [&](QChar capital, QChar letter) { return isSame(letter, capital); });
    });
    return found == keywords.end() ? QStringView() : *found;
}

// Where the next keyword begins; the end of the text when there is none. All keywords end in "+".
qsizetype NextKeyword(QStringView text)
{
    for (qsizetype plus = text.indexOf(u'+'); plus >= 0; plus = text.indexOf(u'+', plus + 1)) {
        if (plus == 0 || !text[plus - 1].isLetter()) {
            continue;
        }
        for (const qsizetype length : {4, 3}) {
            const qsizetype start = plus - length;
            if (start >= 0 && KeywordAt(text.mid(start)).size() == length + 1) {
                return start;
            }
        }
    }
    return text.size();
}

} // namespace

QString modSepaPurpose::Rewrite(const QString& purpose)
{
    QString kept;
    QStringView rest = purpose;
    for (QStringView keyword = KeywordAt(rest); !keyword.isEmpty(); keyword = KeywordAt(rest)) {
        rest = rest.mid(keyword.size());
        const qsizetype end = NextKeyword(rest);
        if (keyword == u"SVWZ+") {
            kept += rest.left(end) + u' ';
        } else if (keyword == u"ABWA+") {
            kept += u'(' + rest.left(end) + u") "_s;
        }
        rest = rest.mid(end);
    }
    kept = kept.trimmed();
    return kept.isEmpty() ? purpose.trimmed() : kept;
}

bool modSepaPurpose::BeginsWithKeyword(const QString& purpose)
{
    return !KeywordAt(purpose).isEmpty();
}
