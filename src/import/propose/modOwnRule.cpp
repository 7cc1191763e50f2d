#include "import/propose/modOwnRule.h"

#include "base/cText.h"
#include "model/cImportEntry.h"
#include "model/modCutText.h"
#include "model/modWord.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

// Each rule bears the version of its own line, so that a later program can add rules of a new kind beside the others.
const QString version = u"1"_s;
constexpr QStringView escaped = u"%;\r\n";

// How a field is called in the stored line.
struct cField
{
    const char16_t* Key;
    QString cOwnRule::*Value;
};
constexpr std::array fields{
    cField{u"text", &cOwnRule::Text},         cField{u"counterparty", &cOwnRule::Counterparty},
    cField{u"account", &cOwnRule::Account},   cField{u"category", &cOwnRule::Category},
    cField{u"interval", &cOwnRule::Interval}, cField{u"description", &cOwnRule::Description},
};

QString Escape(const QString& text)
{
    QString result;
    for (const QChar c : text) {
        if (escaped.contains(c)) {
            result += u"%%1"_s.arg(c.unicode(), 2, 16, QChar(u'0'));
        } else {
            result += c;
        }
    }
    return result;
}

// Null text when there is a "%" that Escape did not write.
QString Unescape(const QString& text)
{
    QString result = u""_s;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) != u'%') {
            result += text.at(i);
            continue;
        }
        bool isNumber = false;
        const QChar c(text.mid(i + 1, 2).toUShort(&isNumber, 16));
        if (!isNumber || !escaped.contains(c)) {
            return {};
        }
        result += c;
        i += 2;
    }
    return result;
}

bool ReadPart(const QString& part, cOwnRule& rule)
{
    const QString key = part.section(u'=', 0, 0);
    const QString value = Unescape(part.section(u'=', 1));
    if (part == u"off") {
        rule.IsOn = false;
        return true;
    }
    if (key == u"sign" && (value == u"in" || value == u"out")) {
        rule.Sign = value == u"in" ? eRuleSign::In : eRuleSign::Out;
        return true;
    }
    const auto* const field =
        std::find_if(fields.begin(), fields.end(), [&](const cField& known) { return key == known.Key; });
    if (field == fields.end() || value.isEmpty()) {
        return false;
    }
    rule.*field->Value = value;
    return true;
}

// Words that say nothing about what a transaction is for.
bool IsCommon(const QString& word)
{
    static const QStringList common =
        QStringLiteral(
            "abbuchung auftrag august basislastschrift beleg betrag buchung danke dankt datum dauerauftrag dezember "
            "diese eref februar folgelastschrift gmbh gutschrift herr iban ihre ihren januar juli juni kartenzahlung "
            "kref kundennummer lastschrift mandat mandatsreferenz mref märz november nummer oktober rechnung "
            "rechnungsnummer referenz sagt sepa september svwz vielen zahlung überweisung")
            .split(u' ');
    return common.contains(word.toLower());
}

struct cWord
{
    qsizetype At = 0;
    QString Text;
};

// The two longest words that say something, in the order of the text.
QList<cWord> TellingWords(const QString& purpose)
{
    constexpr int most = 2;
    constexpr int shortest = 4;
    static const QRegularExpression pattern(u"(?<![\\w/+-])\\p{L}[\\p{L}-]+(?![\\w/+])"_s,
                                            QRegularExpression::UseUnicodePropertiesOption);
    QList<cWord> words;
    auto found = pattern.globalMatch(purpose);
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        if (match.capturedLength() >= shortest && !IsCommon(match.captured())) {
            words.append({match.capturedStart(), match.captured()});
        }
    }
    std::stable_sort(words.begin(), words.end(),
                     [](const cWord& a, const cWord& b) { return a.Text.size() > b.Text.size(); });
    words = words.mid(0, most);
    std::sort(words.begin(), words.end(), [](const cWord& a, const cWord& b) { return a.At < b.At; });
    return words;
}

QString TellingText(const QString& purpose)
{
    const QString text = QString(purpose).remove(u'\n').remove(u'\r').simplified();
    const QList<cWord> words = TellingWords(text);
    QString result;
    for (qsizetype i = 0; i < words.size(); ++i) {
        if (i > 0) {
            const bool isNext = words.at(i - 1).At + words.at(i - 1).Text.size() + 1 == words.at(i).At;
            result += isNext && text.at(words.at(i).At - 1) == u' ' ? u' ' : u'*';
        }
        result += words.at(i).Text;
    }
    return result;
}

// These collect for others, so their name alone would throw quite different purchases together.
bool IsCollector(const QString& name)
{
    static const QStringList collectors{u"paypal"_s, u"klarna"_s, u"amazon"_s, u"adyen"_s,
                                        u"stripe"_s, u"mollie"_s, u"sumup"_s,  u"payone"_s};
    return std::any_of(collectors.begin(), collectors.end(),
                       [&](const QString& collector) { return name.contains(collector, Qt::CaseInsensitive); });
}

} // namespace

QString modOwnRule::ToLine(const cOwnRule& rule)
{
    if (!rule.Unreadable.isEmpty()) {
        return rule.Unreadable;
    }
    QStringList parts{version};
    if (!rule.IsOn) {
        parts.append(u"off"_s);
    }
    if (rule.Sign != eRuleSign::Any) {
        parts.append(rule.Sign == eRuleSign::In ? u"sign=in"_s : u"sign=out"_s);
    }
    for (const cField& field : fields) {
        if (!(rule.*field.Value).isEmpty()) {
            parts.append(QStringView(field.Key) + u'=' + Escape(rule.*field.Value));
        }
    }
    return parts.join(u';');
}

cOwnRule modOwnRule::FromLine(const QString& line)
{
    QStringList parts = line.split(u';');
    cOwnRule rule;
    const bool isKnown = parts.takeFirst() == version
        && std::all_of(parts.begin(), parts.end(), [&](const QString& part) { return ReadPart(part, rule); });
    const bool hasWord = rule.Interval.isEmpty() || modWord::Intervals().Contains(rule.Interval);
    if (!isKnown || !hasWord || !rule.HasCondition() || !rule.HasResult()) {
        rule = {};
        rule.IsOn = false;
        rule.Unreadable = line;
    }
    return rule;
}

QString modOwnRule::Label(const cOwnRule& rule)
{
    QStringList parts{!rule.Text.isEmpty() ? rule.Text : rule.Counterparty};
    if (parts.constFirst().isEmpty()) {
        const QString in = cText::Tr("Einnahme");
        parts = {rule.Sign == eRuleSign::Any ? QString() : (rule.Sign == eRuleSign::In ? in : cText::Tr("Ausgabe")),
                 rule.Account};
    }
    parts.removeAll(QString());
    return parts.join(u", "_s);
}

cOwnRule modOwnRule::FromRow(const cImportEntry& torn)
{
    const cImportEntry row = modCutText::WholeWords(torn);
    cOwnRule rule;
    const QString name = row.ImportBeneficiary.simplified();
    rule.Counterparty = name.isEmpty() ? row.ImportBeneficiaryAccount.simplified() : name;
    if (rule.Counterparty.isEmpty() || IsCollector(name)) {
        rule.Text = TellingText(row.ImportPurpose);
    }
    if (!rule.HasCondition()) {
        rule.Text = row.ImportType.section(u'|', 0, 0).simplified();
    }
    if (row.ImportValue != 0) {
        rule.Sign = row.ImportValue > 0 ? eRuleSign::In : eRuleSign::Out;
    }
    return rule;
}
