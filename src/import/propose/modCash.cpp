#include "import/propose/modCash.h"

#include "import/read/modTextWords.h"
#include "model/cImportEntry.h"

#include <QList>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

using modTextWords::cWord;

constexpr qint64 smallestNote = 500; // cents; machines give notes

// A word or, where it is open, the beginning of one.
struct cSign
{
    const char16_t* Word;
    bool IsOpen;
};

constexpr std::array drawn{
    cSign{u"bargeldausz", true},     cSign{u"bargeldabh", true},         cSign{u"bargeldbezug", true},
    cSign{u"bargeldbehebung", true}, cSign{u"bargeld", false},           cSign{u"barauszahlung", true},
    cSign{u"barabhebung", true},     cSign{u"barbehebung", true},        cSign{u"barbezug", true},
    cSign{u"geldautomat", true},     cSign{u"geldausgabeautomat", true}, cSign{u"gaa", false},
    cSign{u"geldabhebung", true},    cSign{u"behebung", false},          cSign{u"atm", false},
    cSign{u"withdrawal", false},     cSign{u"abhebung", false},          cSign{u"geldauszahlung", true},
    cSign{u"bankomatbezug", true},
};
constexpr std::array paidIn{
    cSign{u"bareinzahlung", true},
    cSign{u"bargeldeinz", true},
    cSign{u"einzahlungsautomat", true},
    cSign{u"bareinz", false},
};
// What only looks like it.
constexpr std::array others{
    cSign{u"entgelt", true}, cSign{u"gebuehr", true}, cSign{u"provision", true},
    cSign{u"spesen", true},  cSign{u"zinsen", true},  cSign{u"bargeldlos", true},
};

template <std::size_t size>
bool HasOneOf(const QList<cWord>& words, const std::array<cSign, size>& signs)
{
    return std::any_of(words.begin(), words.end(), [&](const cWord& word) {
        return std::any_of(signs.begin(), signs.end(), [&](const cSign& sign) {
            if (word.Folded.front() != QChar(sign.Word[0])) {
                return false;
            }
            const QStringView wanted(sign.Word);
            return sign.IsOpen ? word.Folded.startsWith(wanted) : word.Folded == wanted;
        });
    });
}

// "GA NR00012345", as savings banks number their machines.
bool HasMachineNumber(const QList<cWord>& words)
{
    for (qsizetype i = 0; i + 1 < words.size(); ++i) {
        const QString& next = words.at(i + 1).Folded;
        if (words.at(i).Folded == u"ga"_s && next.startsWith(u"nr"_s) && modTextWords::HasDigits(next, 3)) {
            return true;
        }
    }
    return false;
}

bool IsCashText(const QString& text, qint64 cents)
{
    const QList<cWord> words = modTextWords::Of(text);
    const bool isCash = cents < 0 ? HasOneOf(words, drawn) || HasMachineNumber(words) : HasOneOf(words, paidIn);
    return isCash && !HasOneOf(words, others);
}

// In these a whole word or its end tells; "Sparkasse" is none of them.
bool IsCashName(const QString& name)
{
    static const std::array whole{u"bar"_s, u"kasse"_s, u"cash"_s, u"wallet"_s, u"boerse"_s};
    static const std::array parts{u"bargeld"_s,        u"geldboerse"_s,  u"portemonnaie"_s, u"portmonee"_s,
                                  u"geldbeutel"_s,     u"brieftasche"_s, u"barkasse"_s,     u"handkasse"_s,
                                  u"haushaltskasse"_s, u"sparschwein"_s, u"spardose"_s};
    const QList<cWord> words = modTextWords::Of(name);
    return std::any_of(words.begin(), words.end(), [](const cWord& word) {
        return std::find(whole.begin(), whole.end(), word.Folded) != whole.end()
            || std::any_of(parts.begin(), parts.end(), [&](const QString& part) { return word.Folded.contains(part); });
    });
}

} // namespace

bool modCash::CanBeCash(const cImportEntry& row)
{
    return row.ImportValue != 0 && row.ImportValue % smallestNote == 0;
}

bool modCash::IsCash(const cImportEntry& row)
{
    return row.ImportValue != 0
        && (IsCashText(row.ImportType + u' ' + row.ImportBeneficiary, row.ImportValue)
            || (CanBeCash(row) && !row.ImportPurpose.isEmpty()
                && IsCashText(row.ImportType + u' ' + row.ImportPurpose, row.ImportValue)));
}

QStringList modCash::Accounts(const cTemplateItemList& accounts, const QStringList& numbered)
{
    QStringList named;
    QStringList grouped;
    for (const cTemplateItem& account : accounts) {
        if (!modTemplate::IsVisible(account) || numbered.contains(account.TemplateName)) {
            continue;
        }
        if (IsCashName(account.TemplateName)) {
            named.append(account.TemplateName);
        } else if (IsCashName(account.TemplateCategory)) {
            grouped.append(account.TemplateName);
        }
    }
    return named.isEmpty() ? grouped : named;
}
