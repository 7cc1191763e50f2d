#include "import/read/modPayee.h"

#include "import/read/modSepaPurpose.h"
#include "import/read/modTextWords.h"
#include "model/cImportEntry.h"

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

using modTextWords::cWord;

constexpr qsizetype mostWords = 4; // of a key: what follows is the bank's chatter

QSet<QString> SetOf(const QString& words)
{
    const QStringList list = words.split(u' ');
    return {list.begin(), list.end()};
}

// What says nothing about who it is: legal forms, the bank's words for a payment, thanks, branches, countries.
bool IsFiller(const QString& word)
{
    static const QSet<QString> fillers =
        SetOf(u"gmbh mbh ag kg ohg co se ug kgaa gbr ev eg ek inc ltd limited llc sarl scs sca bv nv ab plc publ cie "
              u"ggmbh und u sagt danke dankt vielen dank markt filiale fil nr zw nl niederlassung deutschland "
              u"germany europe de deu at aut ch che com www net eu visa mastercard maestro girocard debitkarte "
              u"debitk debit kreditkarte kartenzahlung kartennummer karte ec pos elv lastschrift terminal beleg uhr "
              u"herr frau firma kauf einkauf zahlung eur euro chf kaufumsatz kfn vj debitkartenumsatz vom"_s);
    return fillers.contains(word);
}

// More words that stand before or after the shop in a purpose.
bool IsPurposeFiller(const QString& word)
{
    static const QSet<QString> fillers =
        SetOf(u"rechnung rechnungsnummer rg re bestellung bestellnummer order auftrag kundennummer kundennr kdnr kd "
              u"kunde kundenkonto vertrag vertragskonto vk ihr ihre bei an von fuer zu zum zur the for at by payment "
              u"purchase your ref referenz mandat mandatsreferenz mref eref svwz kref cred glaeubiger id abbuchung "
              u"ueberweisung dauerauftrag basislastschrift folgelastschrift gutschrift beitrag abschlag rate pp sepa "
              u"januar februar maerz april mai juni juli august september oktober november dezember jan feb mrz apr "
              u"jun jul aug sep okt nov dez"_s);
    return fillers.contains(word);
}

// The larger towns: where a name ends with one of them it is the branch that the card was used in.
bool IsPlace(const QString& word)
{
    static const QSet<QString> places =
        SetOf(u"berlin hamburg muenchen munchen koeln koln frankfurt stuttgart duesseldorf dusseldorf leipzig "
              u"dortmund essen bremen dresden hannover nuernberg nurnberg duisburg bochum wuppertal bielefeld bonn "
              u"muenster mannheim karlsruhe augsburg wiesbaden gelsenkirchen moenchengladbach braunschweig kiel "
              u"chemnitz aachen halle magdeburg freiburg krefeld mainz luebeck erfurt oberhausen rostock kassel "
              u"hagen saarbruecken potsdam hamm ludwigshafen muelheim oldenburg osnabrueck leverkusen heidelberg "
              u"solingen darmstadt herne regensburg neuss paderborn ingolstadt offenbach fuerth ulm wuerzburg "
              u"heilbronn pforzheim wolfsburg goettingen bottrop reutlingen koblenz bremerhaven recklinghausen "
              u"erlangen remscheid jena trier salzgitter siegen hildesheim cottbus gera schwerin kempten passau "
              u"landshut konstanz tuebingen giessen marburg fulda celle lueneburg flensburg stralsund wien graz linz "
              u"salzburg innsbruck klagenfurt villach wels bregenz dornbirn zuerich zurich genf basel bern lausanne "
              u"winterthur luzern oerlikon nord sued ost west mitte zentrum city"_s);
    return places.contains(word);
}

// Words that begin the name of somebody who collects for others, alone or with the next one.
bool IsCollectorName(const QList<cWord>& words)
{
    static const QSet<QString> alone =
        SetOf(u"paypal klarna stripe sumup adyen mollie payone unzer ratepay telecash concardis nexi nets computop "
              u"worldline worldpay izettle zettle girosolution secupay logpay riverty afterpay sofort gocardless "
              u"hobex heidelpay billpay twint helaba micropayment braintree payu paddle hipay ppro sq amazon amz pp "
              u"google"_s);
    static const QSet<QString> firsts = SetOf(u"apple bs card checkout digital evo first landesbank six vr"_s);
    static const QSet<QString> seconds = SetOf(u"com complete data hessen pay payment payments payone river"_s);
    const qsizetype first = !words.isEmpty() && words.front().Folded == u"visa"_s ? 1 : 0;
    if (words.size() <= first) {
        return false;
    }
    const QString& word = words.at(first).Folded;
    return alone.contains(word)
        || (firsts.contains(word) && words.size() > first + 1 && seconds.contains(words.at(first + 1).Folded));
}

// Who sells things of his own beside those of others.
bool IsShopItself(const QString& name)
{
    return name.startsWith(u"amazon"_s, Qt::CaseInsensitive) || name.startsWith(u"google"_s, Qt::CaseInsensitive);
}

// What stands before the branch: "REWE SAGT DANKE 43110//Koeln/DE", "EDEKA.CENTER/Hamburg".
QStringView BeforePlace(QStringView text)
{
    constexpr qsizetype fewest = 3; // letters: "02/2026 Miete" is a date
    const QStringView head = text.first(std::max<qsizetype>(0, text.indexOf(u'/')));
    return std::count_if(head.begin(), head.end(), [](QChar c) { return c.isLetter(); }) >= fewest ? head : text;
}

// What stands behind the name of the collector: "SumUp  *Cafe Luna".
QStringView BehindStar(QStringView text)
{
    const qsizetype star = text.indexOf(u'*');
    return star > 0 && IsCollectorName(modTextWords::Of(text.first(star))) ? text.sliced(star + 1) : QStringView();
}

bool IsLetters(const QList<cWord>& words, qsizetype place)
{
    return place >= 0 && place < words.size() && words.at(place).Size == 1 && words.at(place).Folded.at(0).isLetter();
}

// Letters one by one are an abbreviation: "e.V.", "S.a.r.l.".
bool IsAbbreviation(const QList<cWord>& words, qsizetype place)
{
    return IsLetters(words, place) && (IsLetters(words, place - 1) || IsLetters(words, place + 1));
}

enum class eFrom { Name, Purpose };

bool IsKept(const QList<cWord>& words, qsizetype place, eFrom from)
{
    const QString& word = words.at(place).Folded;
    const bool isNumber = modTextWords::HasDigits(word, place == 0 && from == eFrom::Name ? 3 : 2)
        || (modTextWords::HasDigits(word, 1) && word.size() == 1);
    return !isNumber && !IsFiller(word) && !IsAbbreviation(words, place)
        && (from == eFrom::Name || !IsPurposeFiller(word));
}

QList<cWord> Kept(QStringView text, eFrom from)
{
    const QList<cWord> words = modTextWords::Of(text);
    QList<cWord> kept;
    for (qsizetype place = 0; place < words.size() && kept.size() < mostWords; ++place) {
        if (IsKept(words, place, from)) {
            kept.append(words.at(place));
        } else if (from == eFrom::Purpose && !kept.isEmpty() && modTextWords::HasDigits(words.at(place).Folded, 3)) {
            break; // behind the first long number of a purpose stands nothing but more of them
        }
    }
    while (kept.size() > 1 && IsPlace(kept.last().Folded)) {
        kept.removeLast();
    }
    return kept;
}

modPayee::cPayee Make(QStringView text, eFrom from)
{
    const QList<cWord> kept = Kept(text, from);
    modPayee::cPayee payee;
    payee.Text = text.toString();
    payee.IsOwn = from == eFrom::Name;
    if (kept.isEmpty()) {
        return payee;
    }
    QStringList key;
    for (const cWord& word : kept) {
        key.append(word.Folded);
    }
    payee.Key = key.join(u' ');
    payee.Name = text.sliced(kept.first().At, kept.last().At + kept.last().Size - kept.first().At).toString();
    return payee;
}

// The shop in the purpose of a collector.
modPayee::cPayee Shop(const QString& text)
{
    const QString purpose = modSepaPurpose::Rewrite(text);
    static const std::array heads{u"Einkauf bei "_s, u"purchase at "_s, u"Zahlung an "_s};
    for (const QString& head : heads) {
        if (const qsizetype at = purpose.indexOf(head, 0, Qt::CaseInsensitive); at >= 0) {
            const QStringView shop = QStringView(purpose).sliced(at + head.size());
            const qsizetype comma = shop.indexOf(u',');
            return Make(comma < 0 ? shop : shop.first(comma), eFrom::Name);
        }
    }
    const QStringView behind = BehindStar(purpose);
    return Make(BeforePlace(behind.isEmpty() ? QStringView(purpose) : behind), eFrom::Purpose);
}

QString Flat(const QString& text)
{
    return QString(text).replace(u'\n', u' ').simplified();
}

} // namespace

bool modPayee::IsCollector(const QList<modTextWords::cWord>& words)
{
    return IsCollectorName(words);
}

bool modPayee::IsCollector(const QString& name)
{
    return IsCollectorName(modTextWords::Of(name));
}

modPayee::cPayee modPayee::Of(const cImportEntry& row)
{
    const QString name = Flat(row.ImportBeneficiary);
    if (name.isEmpty()) {
        return Shop(Flat(row.ImportPurpose));
    }
    if (const QStringView shop = BehindStar(name); !shop.isEmpty()) {
        if (cPayee payee = Make(BeforePlace(shop), eFrom::Name); !payee.Key.isEmpty()) {
            return payee;
        }
    }
    if (IsCollector(name)) {
        cPayee payee = Shop(Flat(row.ImportPurpose));
        if (!payee.Key.isEmpty() || !IsShopItself(name)) {
            return payee;
        }
    }
    cPayee payee = Make(BeforePlace(name), eFrom::Name);
    payee.Text = name;
    if (payee.Key.isEmpty()) {
        payee.Key = name.toCaseFolded();
        payee.Name = name;
    }
    return payee;
}

bool modPayee::CanBeSame(const QString& key, const QString& other)
{
    const QStringList words = key.split(u' ');
    const QStringList others = other.split(u' ');
    const QStringList& few = words.size() <= others.size() ? words : others;
    const QStringList& many = words.size() <= others.size() ? others : words;
    return std::all_of(few.begin(), few.end(), [&](const QString& word) { return many.contains(word); });
}
