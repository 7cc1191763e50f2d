#include "views/bank/cBankAccountChoice.h"

#include "base/cText.h"
#include "core/cBookTools.h"
#include "import/stage/cAccountMap.h"
#include "model/cTemplateItem.h"
#include "store/cDataAccess.h"
#include "views/bank/cBankAccess.h"
#include "views/bank/modBankText.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

// True when one of the words of the product stands in the name, or the other way round: "Giro Komfort" and "Girokonto";
// or when both tell the same kind of account: "Privatgiro" and "Girokonto".
bool IsSimilar(const QString& product, const QString& name)
{
    constexpr std::array<QStringView, 5> kinds{u"giro", u"tagesgeld", u"festgeld", u"spar", u"kredit"};
    const bool isSameKind = std::any_of(kinds.begin(), kinds.end(), [&](QStringView kind) {
        return product.contains(kind, Qt::CaseInsensitive) && name.contains(kind, Qt::CaseInsensitive);
    });
    static const QRegularExpression gap(u"[^\\p{L}]+"_s);
    constexpr qsizetype shortest = 4; // letters; "der" says nothing
    const auto stands = [](const QString& words, const QString& text) {
        const QStringList list = words.split(gap, Qt::SkipEmptyParts);
        return std::any_of(list.begin(), list.end(), [&](const QString& word) {
            return word.size() >= shortest && text.contains(word, Qt::CaseInsensitive)
                && word.compare(u"konto", Qt::CaseInsensitive) != 0;
        });
    };
    return isSameKind || stands(product, name) || stands(name, product);
}

} // namespace

cBankAccountChoice::cBankAccountChoice(const cBookTools& tools, const cBankState& state, bool isNew)
{
    const cTemplateItemList accounts = tools.Data.GetAccounts();
    for (const cTemplateItem& account : accounts) {
        if (modTemplate::IsVisible(account)) {
            m_names.append(account.TemplateName);
        }
    }
    const auto mapping = cAccountMap(tools.Data, tools.Settings).Mapping();
    for (const auto& [number, account] : mapping) {
        m_withNumber.append(account);
    }
    const cBankAccess access(tools);
    const QList<cBankAccount> chosen = access.Chosen(state);
    for (const cBankAccount& account : state.Accounts) {
        cLine line{account, modBankText::Product(account), modBankText::Number(account),
                   modBankText::NotFetched(state, account), access.BookAccountOf(state, account)};
        line.IsChosen = line.Reason.isEmpty() && (isNew || chosen.contains(account));
        m_lines.append(line);
    }
    for (cLine& line : m_lines) { // known ones are all there by now, so that none of them is proposed for another
        if (line.Reason.isEmpty() && line.BookAccount.isEmpty()) {
            line.BookAccount = Proposal(line);
        }
    }
    m_proposed = m_lines;
}

bool cBankAccountChoice::IsTaken(const QString& name) const
{
    return m_withNumber.contains(name)
        || std::any_of(m_lines.begin(), m_lines.end(), [&](const cLine& line) { return line.BookAccount == name; });
}

QString cBankAccountChoice::Proposal(const cLine& line) const
{
    const auto found = std::find_if(m_names.begin(), m_names.end(), [&](const QString& name) {
        return !IsTaken(name) && IsSimilar(line.Product, name);
    });
    return found == m_names.end() ? NewName(line) : *found;
}

// The product, with the last digits of the number where there is such an account already.
QString cBankAccountChoice::NewName(const cLine& line) const
{
    constexpr qsizetype digits = 4;
    const QString name = modTemplate::CleanName(line.Product).trimmed();
    const auto is = [&](const QString& other) { return modTemplate::IsSameName(other, name); };
    const bool isThere = std::any_of(m_names.begin(), m_names.end(), is)
        || std::any_of(m_lines.begin(), m_lines.end(), [&](const cLine& other) { return is(other.BookAccount); });
    const QString& number = line.Account.Number.isEmpty() ? line.Account.Iban : line.Account.Number;
    return isThere ? name + u' ' + number.right(digits) : name;
}

void cBankAccountChoice::Choose(qsizetype line, bool isChosen)
{
    m_lines[line].IsChosen = isChosen && m_lines.at(line).Reason.isEmpty();
}

void cBankAccountChoice::SetBookAccount(qsizetype line, const QString& name)
{
    m_lines[line].BookAccount = name.simplified();
}

QString cBankAccountChoice::Note(qsizetype line) const
{
    const QString& name = m_lines.at(line).BookAccount;
    const bool isThere = std::any_of(m_names.begin(), m_names.end(),
                                     [&](const QString& other) { return modTemplate::IsSameName(other, name); });
    return name.isEmpty() || isThere ? QString() : cText::Tr("wird neu angelegt");
}

QString cBankAccountChoice::Problem() const
{
    const QList<cBankAccount> chosen = Chosen();
    QStringList reasons;
    for (const cLine& line : m_lines) {
        if (!line.Reason.isEmpty()) {
            reasons.append(line.Number + u": "_s + line.Reason);
        }
    }
    if (reasons.size() == m_lines.size()) {
        return cText::Tr("Keines der Konten kann abgerufen werden. Laden Sie bei Ihrer Bank Kontoauszüge herunter und "
                         "importieren Sie diese.\n{0}",
                         {reasons.join(u'\n')});
    }
    if (chosen.isEmpty()) {
        return cText::Tr("Wählen Sie mindestens ein Konto aus, dessen Umsätze abgerufen werden sollen.");
    }
    const auto nameless = std::find_if(m_lines.begin(), m_lines.end(), [](const cLine& line) {
        return line.IsChosen && modTemplate::CleanName(line.BookAccount).trimmed().isEmpty();
    });
    return nameless == m_lines.end()
        ? QString()
        : cText::Tr("Wählen Sie für {0} ein Konto im Buch, oder geben Sie den Namen eines neuen ein.",
                    {nameless->Number});
}

QList<cBankAccount> cBankAccountChoice::Chosen() const
{
    QList<cBankAccount> accounts;
    for (const cLine& line : m_lines) {
        if (line.IsChosen) {
            accounts.append(line.Account);
        }
    }
    return accounts;
}
