#include "import/propose/modKeywordTrust.h"

#include "import/read/modWildcard.h"
#include "model/cTemplateItem.h"
#include "model/modWord.h"

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype shortestEnd = 5; // "esso" ends Espresso

QSet<QString> SetOf(const QString& words)
{
    const QStringList list = words.split(u'|');
    return {list.begin(), list.end()};
}

// Keywords that mean the same when a longer word begins with them.
bool CanOpen(const QString& keyword)
{
    static const QSet<QString> openings =
        SetOf(u"vodafon|telekom|telecom|stadtwerke|naturenergie|rundfunkbeitrag|getränke|getraenke|elterngeld|"
              u"kindergeld|zinsen|"
              u"fitness|mcfit|bußgeld|bussgeld|verkehrsueberwach|kfz-steuer|haftpflicht|rossmann|hundesteuer|fahrrad|"
              u"stellplatz|"
              u"deichmann|mcdonalds|cinemaxx|cineplex|cinestar|steuererstatt|steuererst|rückerstattung|rueckerstattung|"
              u"taschengeld|familienkasse|kaufland|marktkauf|ikea|bausparkasse|lotto|docmorris|baumarkt|"
              u"drogeriemarkt|gehalt|"
              u"rechtsschutzversicherung|risikoversicherung|haushaltversicherung|tankstelle|auktion|strato|alltours"_s);
    return openings.contains(keyword);
}

// Longer keywords mean the same at the end of a compound; not these.
bool CanClose(const QString& keyword)
{
    static const QSet<QString> whole = SetOf(u"total|metro|norma|colt|einkommen|univer|shell|lidl"_s);
    return keyword.size() >= shortestEnd && !whole.contains(keyword);
}

bool IsWordAt(QStringView text, qsizetype at)
{
    return at >= 0 && at < text.size() && text[at].isLetterOrNumber();
}

// Whether the word around the place speaks of electricity. Names end and begin like that too ("Klangstrom",
// "Stromberg"), so both ends must be known.
bool IsPowerAt(QStringView text, qsizetype at)
{
    static const QString keyword = u"strom"_s;
    static const QSet<QString> openings = SetOf(
        u"|öko|oeko|natur|grün|gruen|solar|wind|auto|lade|heiz|wärme|waerme|wärmepumpen|waermepumpen|nacht|"
        u"nachtspeicher|tag|allgemein|haus|hausanschluss|haushalt|haushalts|mieter|bau|betriebs|treppenhaus|yellow"_s);
    static const QStringList endings =
        u"abschlag|abrechnung|rechnung|liefer|kosten|vertrag|versorg|nachzahlung|guthaben|tarif|zähler|zaehler|"
        u"verbrauch|bezug|netz|geld|zahlung|handel|vertrieb|anbieter|anschluss|preis|pauschale|anteil|io"_s.split(u'|');
    qsizetype begin = at;
    while (IsWordAt(text, begin - 1)) {
        --begin;
    }
    const QStringView rest = text.sliced(at + keyword.size());
    return openings.contains(text.sliced(begin, at - begin).toString())
        && (!IsWordAt(rest, 0) || rest[0].isDigit()
            || std::any_of(endings.begin(), endings.end(),
                           [&](const QString& ending) { return rest.startsWith(ending); }));
}

} // namespace

bool modKeywordTrust::IsSound(const QString& keyword, QStringView text)
{
    if (modWildcard::IsPattern(keyword)) {
        return modWildcard::Matches(text, QString(u'*' + keyword + u'*'));
    }
    for (qsizetype at = text.indexOf(keyword); at >= 0; at = text.indexOf(keyword, at + 1)) {
        const bool isOpen = !IsWordAt(text, at - 1);
        const bool isClosed = !IsWordAt(text, at + keyword.size());
        if (keyword == u"strom"
                ? IsPowerAt(text, at)
                : (isOpen && isClosed) || (isClosed && CanClose(keyword)) || (isOpen && CanOpen(keyword))) {
            return true;
        }
    }
    return false;
}

bool modKeywordTrust::IsDoubtful(const QString& keyword, QStringView text, QStringView name)
{
    static const QSet<QString> doubtful =
        SetOf(u"total|metro|norma|colt|bitel|garage|airbnb|hfb|sgd|hood|geschenk|univer|accom|amazon|xing|fahrrad|"
              u"handelshof|bausparkasse"_s);
    static const QSet<QString> works = SetOf(u"stadtwerke|staedtische werke|energie|naturenergie|e.on|eon"_s);
    static const QSet<QString> persons = SetOf(u"lohn|gehalt"_s);
    if (works.contains(keyword)) {
        return !IsSound(u"strom"_s, text);
    }
    if (persons.contains(keyword)) {
        return !IsSound(keyword, text.sliced(name.size()));
    }
    if (keyword == u"fitness"_s) {
        return !text.contains(u"beitrag"_s) && !text.contains(u"mitglied"_s); // a shop for it, or the shoes
    }
    return doubtful.contains(keyword);
}

bool modKeywordTrust::FitsSign(const QString& category, qint64 cents)
{
    static const std::array income{u"Einkommen"_s,
                                   u"Rückerstattung"_s,
                                   u"Staat; Elterngeld"_s,
                                   u"Staat; Steuererstattung"_s,
                                   u"Geldanlage; Zinseinkünfte"_s,
                                   u"Sonstiges; Geldgeschenke"_s,
                                   modWord::Bareinzahlung,
                                   modWord::Startguthaben};
    static const QString both = u"Auktionen"_s;
    if (modTemplate::IsWithin(category, both)) {
        return cents != 0;
    }
    const bool isIncome = std::any_of(income.begin(), income.end(),
                                      [&](const QString& known) { return modTemplate::IsWithin(category, known); });
    return isIncome ? cents > 0 : cents < 0;
}
