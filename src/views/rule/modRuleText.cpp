#include "views/rule/modRuleText.h"

#include "base/cText.h"
#include "model/modWord.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// The alternatives that say something.
QStringList Alternatives(const QString& text)
{
    QStringList alternatives = text.split(u'|');
    alternatives.removeIf([](const QString& alternative) { return alternative.trimmed().isEmpty(); });
    return alternatives;
}

bool IsMereWildcard(const QString& alternative)
{
    return std::all_of(alternative.begin(), alternative.end(),
                       [](QChar c) { return c == u'*' || c == u'?' || c.isSpace(); });
}

} // namespace

QString modRuleText::Conditions(const cOwnRule& rule)
{
    if (!rule.Unreadable.isEmpty()) {
        return cText::Tr("nicht lesbar: {0}", {rule.Unreadable});
    }
    QStringList parts;
    if (!rule.Text.isEmpty()) {
        QStringList alternatives = Alternatives(rule.Text);
        for (QString& alternative : alternatives) {
            alternative = u"'%1'"_s.arg(alternative.trimmed());
        }
        parts.append(cText::Tr("Text enthält {0}", {alternatives.join(cText::Tr(" oder "))}));
    }
    if (!rule.Counterparty.isEmpty()) {
        parts.append(rule.Sign == eRuleSign::In ? cText::Tr("von {0}", {rule.Counterparty})
                                                : cText::Tr("an {0}", {rule.Counterparty}));
    }
    if (rule.Sign != eRuleSign::Any) {
        parts.append(modWord::EntryTypes().ToShown(rule.Sign == eRuleSign::In ? modWord::Einnahme : modWord::Ausgabe));
    }
    if (!rule.Account.isEmpty()) {
        parts.append(cText::Tr("Konto {0}", {rule.Account}));
    }
    return parts.join(u", "_s);
}

QString modRuleText::Result(const cOwnRule& rule)
{
    if (!rule.Unreadable.isEmpty()) {
        return cText::Tr("wird nicht angewandt");
    }
    QStringList parts{rule.Category, modWord::Intervals().ToShown(rule.Interval),
                      rule.Description.isEmpty() ? QString() : u"'%1'"_s.arg(rule.Description)};
    parts.removeAll(QString());
    return parts.join(u", "_s);
}

QString modRuleText::Problem(const cOwnRule& rule)
{
    if (!rule.Unreadable.isEmpty()) {
        return cText::Tr("Diese Regel ist beschädigt oder stammt von einer neueren Version. Sie bleibt, wie sie ist.");
    }
    if (!rule.HasCondition()) {
        return cText::Tr("Bitte geben Sie an, woran die Regel einen Umsatz erkennt.");
    }
    const QStringList alternatives = Alternatives(rule.Text);
    if (!rule.Text.isEmpty()
        && (alternatives.isEmpty() || std::any_of(alternatives.begin(), alternatives.end(), IsMereWildcard))) {
        return cText::Tr("Der Text '{0}' passt auf jeden Umsatz.", {rule.Text});
    }
    if (!rule.HasResult()) {
        return cText::Tr("Bitte geben Sie an, was die Regel vorschlagen soll.");
    }
    return {};
}
