#include "views/bank/cBankDirectory.h"

#include "base/cShell.h"
#include "base/cText.h"
#include "base/modChar.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

// The first characters of a BIC name the bank, the rest its branch; all X there is the head office.
constexpr int bicOfBank = 8;
constexpr int bicLength = 11;

// A German IBAN is DE, two check digits, the bank code and the account number.
constexpr int codeStart = 4;
constexpr int codeLength = 8;
constexpr int ibanLength = 22;
constexpr int shortestForeign = 15; // of any country

// How well a bank fits what was typed, best first.
enum class eFit { Exactly, NameBegins, WordsBegin, Holds, Not };

// A code, BIC or IBAN without blanks, in capitals, and without what statements print in front of it.
QString Compact(const QString& text)
{
    static const QRegularExpression label(u"^(BIC|BLZ|IBAN):?"_s);
    QString kept;
    for (const QChar c : text) {
        if (!c.isSpace()) {
            kept.append(c.toUpper());
        }
    }
    return kept.remove(label);
}

bool IsBic(const QString& compact)
{
    static const QRegularExpression form(u"^[A-Z]{6}[A-Z0-9]{2}([A-Z0-9]{3})?$"_s);
    return form.match(compact).hasMatch();
}

// No name of a bank begins with DE and a digit.
bool BeginsAsGermanIban(const QString& compact)
{
    return compact.size() > 2 && compact.startsWith("DE"_L1) && compact.at(2).isDigit();
}

bool IsForeignIban(const QString& compact)
{
    static const QRegularExpression form(u"^[A-Z]{2}[0-9]{2}[A-Z0-9]+$"_s);
    return compact.size() >= shortestForeign && !compact.startsWith("DE"_L1) && form.match(compact).hasMatch();
}

// The rest by 97 of what follows the check digits, the country as digits (D is 13, E is 14) and the check digits is 1.
bool HasRightDigits(const QString& iban)
{
    const QString digits = iban.mid(codeStart) + u"1314"_s + iban.mid(2, 2);
    int rest = 0;
    for (const QChar c : digits) {
        rest = (rest * 10 + c.digitValue()) % 97;
    }
    return rest == 1;
}

// Words alone count, so that "VR Bank" finds "VR-Bank".
QString WithoutMarks(const QString& text)
{
    QString kept = text;
    std::replace_if(
        kept.begin(), kept.end(), [](QChar c) { return !c.isLetterOrNumber(); }, u' ');
    return kept;
}

// A text of the directory as it is searched: a bar where it begins and a blank before each word.
QString Marked(const QString& text)
{
    return u"| "_s + WithoutMarks(text).simplified();
}

modFold::cFolded After(const QString& mark, const modFold::cFolded& folded)
{
    return {mark + folded.Plain, mark + folded.Spelled};
}

bool CodeBegins(const cBankInfo& bank, const QString& typed)
{
    return bank.Code.startsWith(typed) || bank.Bic.startsWith(typed);
}

// How well each bank fits the words, which may stand in any order: as well as the one that fits it worst.
std::vector<eFit> FitsOfWords(const cBankInfoList& banks, const modFold::cTexts& texts, const QStringList& words)
{
    std::vector<eFit> fits(static_cast<std::size_t>(banks.size()), words.isEmpty() ? eFit::Not : eFit::WordsBegin);
    for (const QString& word : words) {
        const modFold::cFolded folded = modFold::Fold(word);
        const QString capitals = word.toUpper();
        const std::vector<bool> begins = texts.Find(After(u" "_s, folded));
        const std::vector<bool> holds = texts.Find(folded);
        for (std::size_t bank = 0; bank < fits.size(); ++bank) {
            const bool isHeld = holds[bank] || CodeBegins(banks[static_cast<qsizetype>(bank)], capitals);
            const eFit other = isHeld ? eFit::Holds : eFit::Not;
            fits[bank] = std::max(fits[bank], begins[bank] ? eFit::WordsBegin : other);
        }
    }
    return fits;
}

// How well each bank fits what was typed.
std::vector<eFit> FitsOf(const cBankInfoList& banks, const modFold::cTexts& texts, const QString& text)
{
    const QString code = Compact(text); // or BIC
    const QString headOffice = code.leftJustified(bicLength, u'X');
    const QStringList words = WithoutMarks(text).split(u' ', Qt::SkipEmptyParts);
    const std::vector<bool> begins = texts.Find(modFold::Fold(Marked(text)));
    std::vector<eFit> fits = FitsOfWords(banks, texts, words);
    for (std::size_t row = 0; row < fits.size(); ++row) {
        const cBankInfo& bank = banks[static_cast<qsizetype>(row)];
        if (bank.Code == code || bank.Bic == code || bank.Bic == headOffice) {
            fits[row] = eFit::Exactly;
        } else if (begins[row] && !words.isEmpty()) {
            fits[row] = eFit::NameBegins;
        } else if (CodeBegins(bank, code)) {
            fits[row] = std::min(fits[row], eFit::Holds);
        }
    }
    return fits;
}

// Banks with an address first, of these the ones that have not gone up in another bank and live on in old account
// numbers only, of these the head offices: it is them whose city is known.
QString Place(const cBankInfo& bank)
{
    const auto last = [](bool isLast) { return isLast ? u'1' : u'0'; };
    return QString(last(bank.Url.isEmpty())) + last(bank.Name.endsWith("-alt-"_L1)) + last(bank.City.isEmpty())
        + modFold::Fold(bank.Name + u' ' + bank.City).Plain + bank.Code;
}

// The banks of the file; a line that is none is left out.
cBankInfoList Read(const QByteArray& bytes)
{
    cBankInfoList banks;
    const QList<QByteArray> lines = bytes.split('\n');
    for (const QByteArray& line : lines) {
        const QStringList columns = QString::fromUtf8(line).split(u'\t');
        if (columns.size() == 5 && !line.startsWith('#')) {
            banks.append({columns[0], columns[1], columns[2], columns[3], columns[4]});
        }
    }
    return banks;
}

cBankMatches Refuse(const QString& problem)
{
    return {{}, 0, problem};
}

} // namespace

void cBankDirectory::Load() const
{
    if (m_isRead) {
        return;
    }
    m_isRead = true;
    QFile file(m_shell.InstalledFile(u"banken.tsv"_s));
    std::vector<std::pair<QString, cBankInfo>> placed;
    const cBankInfoList banks = file.open(QIODevice::ReadOnly) ? Read(file.readAll()) : cBankInfoList();
    for (const cBankInfo& bank : banks) {
        placed.emplace_back(Place(bank), bank);
    }
    std::sort(placed.begin(), placed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    for (const auto& [place, bank] : placed) {
        m_byCode.insert(bank.Code, m_texts.Add(Marked(bank.Name + u' ' + bank.City)));
        ++m_names[bank.Name];
        m_banks.append(bank);
    }
}

std::optional<cBankInfo> cBankDirectory::Find(const QString& code) const
{
    Load();
    const auto found = m_byCode.constFind(Compact(code));
    return found == m_byCode.constEnd() ? std::nullopt : std::optional(m_banks[*found]);
}

cBankInfoList cBankDirectory::FindByBic(const QString& bic) const
{
    const QString compact = Compact(bic);
    if (!IsBic(compact)) {
        return {};
    }
    Load();
    const QString whole = compact.leftJustified(bicLength, u'X');
    cBankInfoList exact;
    cBankInfoList others;
    for (const cBankInfo& bank : std::as_const(m_banks)) {
        if (bank.Bic == whole) {
            exact.append(bank);
        } else if (bank.Bic.startsWith(QStringView(compact).first(bicOfBank))) {
            others.append(bank);
        }
    }
    return exact.isEmpty() ? others : exact;
}

cBankMatches cBankDirectory::FindByIban(const QString& iban) const
{
    const QString compact = Compact(iban);
    if (IsForeignIban(compact)) {
        return Refuse(cText::Tr("Das ist keine deutsche IBAN; das Verzeichnis enthält Banken in Deutschland."));
    }
    if (compact.size() != ibanLength || !BeginsAsGermanIban(compact)
        || !modChar::AreDigits(QStringView(compact).mid(2))) {
        return Refuse(cText::Tr("Eine deutsche IBAN besteht aus DE und 20 Ziffern. Bitte vergleichen Sie sie mit Ihrem "
                                "Kontoauszug."));
    }
    if (!HasRightDigits(compact)) {
        return Refuse(cText::Tr("In der IBAN steckt ein Tippfehler: Ihre Prüfziffern passen nicht. Bitte vergleichen "
                                "Sie sie mit Ihrem Kontoauszug."));
    }
    return OneByCode(compact.mid(codeStart, codeLength));
}

cBankMatches cBankDirectory::Search(const QString& text, int limit) const
{
    const QString compact = Compact(text);
    if (compact.isEmpty()) {
        return Refuse(cText::Tr("Bitte geben Sie Name oder Ort der Bank, ihre Bankleitzahl, BIC oder IBAN ein."));
    }
    if (BeginsAsGermanIban(compact) || IsForeignIban(compact)) {
        return SearchIban(compact, limit);
    }
    return SearchWords(text, limit);
}

QString cBankDirectory::Title(const cBankInfo& bank) const
{
    Load();
    const bool isShown = m_names.value(bank.Name) > 1 && !bank.City.isEmpty() && !bank.Name.contains(bank.City);
    return isShown ? bank.Name + u", "_s + bank.City : bank.Name;
}

cBankMatches cBankDirectory::OneByCode(const QString& code) const
{
    if (const std::optional<cBankInfo> bank = Find(code)) {
        return {{*bank}, 1, {}};
    }
    if (m_banks.isEmpty()) {
        return Answer({}, 1);
    }
    return Refuse(cText::Tr("Die Bankleitzahl {0} steht nicht im Verzeichnis. Bitte vergleichen Sie sie mit Ihrem "
                            "Kontoauszug.",
                            {code}));
}

// An IBAN that is still being typed shows the banks that it may lead to.
cBankMatches cBankDirectory::SearchIban(const QString& iban, int limit) const
{
    const bool isBegun =
        iban.size() < ibanLength && !IsForeignIban(iban) && modChar::AreDigits(QStringView(iban).mid(2));
    if (!isBegun) {
        return FindByIban(iban);
    }
    const QString code = iban.mid(codeStart, codeLength);
    if (code.isEmpty()) {
        return Refuse(cText::Tr("Die Bank steht in der IBAN ab der fünften Stelle. Bitte tippen Sie weiter."));
    }
    return code.size() == codeLength ? OneByCode(code) : SearchWords(code, limit);
}

cBankMatches cBankDirectory::SearchWords(const QString& text, int limit) const
{
    const QString compact = Compact(text);
    if (compact.size() == codeLength && modChar::AreDigits(compact)) {
        return OneByCode(compact);
    }
    Load();
    const std::vector<eFit> fits = FitsOf(m_banks, m_texts, text);
    std::vector<int> rows;
    for (std::size_t row = 0; row < fits.size(); ++row) {
        if (fits[row] != eFit::Not) {
            rows.push_back(static_cast<int>(row));
        }
    }
    std::stable_sort(rows.begin(), rows.end(), [&](int a, int b) {
        return fits[static_cast<std::size_t>(a)] < fits[static_cast<std::size_t>(b)];
    });
    cBankInfoList banks;
    for (const int row : rows) {
        banks.append(m_banks[row]);
    }
    return Answer(banks.isEmpty() ? FindByBic(compact) : banks, limit);
}

cBankMatches cBankDirectory::Answer(const cBankInfoList& banks, int limit) const
{
    if (!banks.isEmpty()) {
        return {banks.mid(0, limit), static_cast<int>(banks.size()), {}};
    }
    if (m_banks.isEmpty()) {
        return Refuse(cText::Tr("Das Verzeichnis der Banken lässt sich nicht lesen: Die Datei 'banken.tsv' fehlt oder "
                                "ist leer. Bitte installieren Sie Kontorelle neu."));
    }
    return Refuse(cText::Tr("Keine Bank gefunden. Versuchen Sie es mit weniger Wörtern, mit dem Ort, der Bankleitzahl "
                            "oder der IBAN."));
}
