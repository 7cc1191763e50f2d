#include "import/cell/modMoneyWords.h"

#include "import/cell/modTableValue.h"

#include <QList>
#include <QString>

#include <algorithm>

namespace {

// What a card is paid with. Only the owner does.
constexpr QStringView strongInWords =
    u"*ZAHLUNG ERHALTEN*|*BERWEISUNG ERHALTEN*|*IHRE ZAHLUNG*|*DEINE ZAHLUNG*|*PAYMENT RECEIVED*|*PAYMENT THANK YOU*|"
    u"*PAYMENT - THANK YOU*|*IHR ZAHLUNGSEINGANG*|*ZAHLUNG BESTEN DANK*|*SALDOAUSGLEICH*|*YOUR PAYMENT*|"
    u"*VOTRE PAIEMENT*|*VOSTRO PAGAMENTO*|*BETALING ONTVANGEN*|AUTOPAY*";
// The text in which they come often tells the opposite by itself ("Lastschrift" in "Rücklastschrift").
constexpr QStringView inWords =
    u"*GEHALT|*GEHALT *|LOHN|LOHN *|* LOHN|* LOHN *|*SALARY*|*SALARIS*|*SALAIRE*|*STIPENDIO*|*GUTSCHRIFT|*GUTSCHRIFT *|"
    u"*GUTSCHR.*|*GUTSCHR *|"
    u"*ZAHLUNGSEINGANG*|*GELDEINGANG*|*KINDERGELD*|*RENTE|*RENTE *|*PENSION|*PENSION *|*EINZAHLUNG*|*R\u00DCCKZAHLUNG*|"
    u"*ERSTATTUNG*|*REFUND*|*R\u00DCCKLASTSCHRIFT*|*RUECKLASTSCHRIFT*|*ZINSGUTSCHRIFT*|HABENZINS*|*DIVIDEND*|"
    u"*EINKOMMEN*|INCOME|DEPOSIT|DEPOSIT *|*BIJSCHRIJVING*|*HONORAR*|*RECEIVED MONEY*|MONEY ADDED*|TOP-UP*|"
    u"*DIRECT CREDIT*|*INCOMING*|*RETOURE*";
constexpr QStringView outWords =
    u"*LASTSCHRIFT|*LASTSCHRIFT *|*LASTSCHRIFT,*|*BELASTUNG|*BELASTUNG *|*KARTENZAHLUNG*|*KARTENVERF\u00DCGUNG*|"
    u"*EINKAUF|*EINKAUF *|*EINK\u00C4UFE*|*AUSZAHLUNG*|*GELDAUTOMAT*|*BANKOMAT*|*BANCOMAT*|*BARGELDBEZUG*|*ABBUCHUNG*|"
    u"MIETE|MIETE *|* MIETE|* MIETE *|*WARMMIETE*|*KALTMIETE*|HUUR|HUUR *|RENT|RENT *|*DIRECT DEBIT*|*CARD PAYMENT*|"
    u"*WITHDRAWAL*|PURCHASE*|*CARD PURCHASE*|*BETAALAUTOMAAT*|*GELDAUTOMAAT*|*INCASSO*|*CASHPOINT*|*KONTOF\u00DCHRUNG*|"
    u"*JAHRESGEB\u00DCHR*|*JAHRESENTGELT*|*MONATSENTGELT*|*KONTOENTGELT*|*GROCERIES*|*LEBENSMITTEL*|*RESTAURANT*|"
    u"*TANKSTELLE*|*APOTHEKE*|*B\u00C4CKEREI*|*SUPERMARKT*|*STADTWERKE*|*ABSCHLAG*|"
    u"REWE|REWE *|LIDL|LIDL *|ALDI|ALDI *|EDEKA|EDEKA *|PENNY|PENNY *|KAUFLAND*|NETTO MARKEN*|ROSSMANN*|DM DROGERIE*|"
    u"MIGROS*|COOP|COOP *|COOP-*|DENNER*|HOFER|HOFER *|BILLA|BILLA *|SPAR DANKT*|ALBERT HEIJN*|JUMBO *|AMAZON*|AMZN*|"
    u"NETFLIX*|SPOTIFY*|SHELL|SHELL *|ARAL|ARAL *|ESSO|ESSO *|SBB|SBB *|DB VERTRIEB*|IKEA|IKEA *|"
    u"STARBUCKS*|MCDONALD*|UBER|UBER *|*HOTEL|*HOTEL *|HOTEL *|ZARA|ZARA *|H&M*|MEDIA MARKT*|SATURN|SATURN *";
constexpr QStringView cardNames =
    u"*Karteninhaber*|*Kartennummer*|*Kartenkonto*|*Kreditkarte*|*H\u00E4ndler*|*Haendler*|*Merchant*|*Card*|*Karte|"
    u"Karte *|*Num\u00E9ro de carte*|*Kaufdatum*|*Numero carta*";

// A list of words, "*" in front or behind standing for any text, as it is searched.
class cWordList
{
public:
    explicit cWordList(QStringView words)
    {
        for (QStringView word : words.split(u'|')) {
            const bool isOpenBefore = word.startsWith(u'*');
            const bool isOpenBehind = word.endsWith(u'*');
            word = word.mid(isOpenBefore ? 1 : 0).chopped(isOpenBehind ? 1 : 0);
            m_words.append({word.toString().toUpper(), isOpenBefore, isOpenBehind});
        }
    }

    [[nodiscard]] bool Has(const QString& upper) const
    {
        return std::any_of(m_words.begin(), m_words.end(), [&](const cWord& word) {
            if (word.IsOpenBefore) {
                return word.IsOpenBehind ? upper.contains(word.Text) : upper.endsWith(word.Text);
            }
            return word.IsOpenBehind ? upper.startsWith(word.Text) : upper == word.Text;
        });
    }

private:
    struct cWord
    {
        QString Text;
        bool IsOpenBefore;
        bool IsOpenBehind;
    };
    QList<cWord> m_words;
};

} // namespace

modMoneyWords::cVote modMoneyWords::Of(QStringView text)
{
    if (text.size() < 2) {
        return {};
    }
    if (const int sign = modTableValue::IndicatorSign(text); sign != 0 && text.size() > 2) {
        return {sign, true};
    }
    if (!std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); })) {
        return {};
    }
    static const cWordList strongIn(strongInWords);
    static const cWordList in(inWords);
    static const cWordList out(outWords);
    const QString upper = text.toString().toUpper();
    if (strongIn.Has(upper)) {
        return {1, true};
    }
    if (in.Has(upper)) {
        return {1, false};
    }
    return out.Has(upper) ? cVote{-1, false} : cVote{};
}

bool modMoneyWords::IsOfCard(QStringView columnName)
{
    static const cWordList names(cardNames);
    return names.Has(columnName.toString().toUpper());
}
