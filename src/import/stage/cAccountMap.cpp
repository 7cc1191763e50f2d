#include "import/stage/cAccountMap.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "core/cSettings.h"
#include "import/read/modAccountNumber.h"
#include "import/stage/cAccountGuess.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"

#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList VisibleNames(const cTemplateItemList& accounts)
{
    QStringList names;
    for (const cTemplateItem& account : accounts) {
        if (modTemplate::IsVisible(account)) {
            names.append(account.TemplateName);
        }
    }
    return names;
}

// The accounts that there are, to look up many.
QSet<QString> NamesOf(const cTemplateItemList& accounts)
{
    QSet<QString> names;
    for (const cTemplateItem& account : accounts) {
        names.insert(account.TemplateName);
    }
    names.remove({});
    return names;
}

QString QuestionFor(const QString& number, const QString& product)
{
    return number.isEmpty()
        ? cText::Tr("Der Kontoauszug nennt keine Kontonummer.\nZu welchem Konto gehören seine Umsätze?")
        : cText::Tr("Zu welchem Konto gehören die Umsätze der Kontonummer {0}?\nEin neuer Name legt ein Konto an.",
                    {product.isEmpty() ? number : number + u" ("_s + product + u')'});
}

} // namespace

cAccountMap::cAccountMap(cDataAccess& data, cSettings& settings) : m_data(data), m_settings(settings)
{
}

bool cAccountMap::Exists(const QString& account) const
{
    return !account.isEmpty() && m_data.FindAccount(account).has_value();
}

QString cAccountMap::AccountOf(const QString& number) const
{
    const QString account = m_settings.Get(modSettingKey::BankNumber.Of(number));
    return Exists(account) ? account : QString();
}

QString cAccountMap::BankCodeOf(const QString& number) const
{
    return m_settings.Get(modSettingKey::BankCode.Of(number));
}

QList<std::pair<QString, QString>> cAccountMap::Mapping() const
{
    QList<std::pair<QString, QString>> mapping;
    const QSet<QString> names = NamesOf(m_data.GetAccounts());
    for (const auto& [name, account] : m_data.GetSettings()) {
        const QString number = modSettingKey::BankNumber.PartOf(name);
        if (!number.isEmpty() && names.contains(account)) {
            mapping.append({number, account});
        }
    }
    return mapping;
}

QHash<QString, int> cAccountMap::OpenByAccount() const
{
    QHash<QString, int> byAccount;
    const QHash<QString, int> byNumber = m_data.CountOpenImports();
    const QSet<QString> names = NamesOf(m_data.GetAccounts());
    for (auto open = byNumber.begin(); open != byNumber.end(); ++open) {
        const QString account = m_settings.Get(modSettingKey::BankNumber.Of(open.key()));
        byAccount[names.contains(account) ? account : QString()] += *open;
    }
    return byAccount;
}

QString cAccountMap::OwnAccountOf(const QString& number, const QString& bankCode) const
{
    if (number.trimmed().isEmpty()) {
        return {};
    }
    const QString code = bankCode.isEmpty() ? BankCodeOf(number) : bankCode;
    const auto isSame = [&](const QString& known) {
        return modAccountNumber::IsSame(number, code, known, BankCodeOf(known));
    };
    if (const QString direct = AccountOf(number); !direct.isEmpty() && isSame(number)) {
        return direct;
    }
    const QList<std::pair<QString, QString>> mapping = Mapping();
    const auto found =
        std::find_if(mapping.begin(), mapping.end(), [&](const auto& known) { return isSame(known.first); });
    return found == mapping.end() ? QString() : found->second;
}

QString cAccountMap::Proposal(const QString& number) const
{
    if (const QString known = OwnAccountOf(number, {}); !known.isEmpty()) {
        return known;
    }
    const QStringList names = VisibleNames(m_data.GetAccounts());
    const auto named = std::find_if(names.begin(), names.end(), [&](const QString& name) {
        return !number.isEmpty() && name.contains(number, Qt::CaseInsensitive);
    });
    return named != names.end() ? *named : cAccountGuess(m_data, m_settings, WithNumber()).AccountFor(number);
}

QString cAccountMap::ProposalFor(const cImportEntryList& rows) const
{
    return cAccountGuess(m_data, m_settings, {}).Likeliest(rows);
}

// Any other account than the proposed one would be chosen by accident.
QString cAccountMap::NameFor(const QString& number, const QString& product) const
{
    const QString proposal = Proposal(number);
    return proposal.isEmpty() ? cAccountGuess(m_data, m_settings, WithNumber()).NewName(number, product) : proposal;
}

QSet<QString> cAccountMap::WithNumber() const
{
    QSet<QString> names;
    const QList<std::pair<QString, QString>> mapping = Mapping();
    for (const auto& [number, account] : mapping) {
        if (number != account) {
            names.insert(account); // the others lent their name: their bank's number may still come
        }
    }
    return names;
}

QStringList cAccountMap::Choices() const
{
    const cTemplateItemList accounts = modTemplate::InOrder(m_data.GetAccounts());
    QStringList names = VisibleNames(accounts);
    names.append(modTemplate::AccountNames(accounts));
    names.removeDuplicates();
    return names;
}

QString cAccountMap::NumberMeant(const QString& typed) const
{
    const QString account = Known(typed.simplified());
    if (!Exists(account)) {
        return typed.simplified();
    }
    const QList<std::pair<QString, QString>> mapping = Mapping();
    const auto own =
        std::find_if(mapping.begin(), mapping.end(), [&](const auto& known) { return known.second == account; });
    return own == mapping.end() ? account : own->first;
}

QStringList cAccountMap::AssignNames(const QStringList& numbers)
{
    QStringList assigned;
    for (const QString& number : numbers) {
        if (AccountOf(number).isEmpty() && Has(number) && Assign(number, number)) {
            assigned.append(number); // of a refusal the user has been told
        }
    }
    return assigned;
}

// The account of this name, be it in another letter case, or the name as a new account would have it.
QString cAccountMap::Known(const QString& typed) const
{
    if (Exists(typed)) {
        return typed;
    }
    const cTemplateItemList accounts = m_data.GetAccounts();
    const QString name = modTemplate::NewAccount(accounts, typed).TemplateName;
    const QString like = modTemplate::AccountLike(accounts, name);
    return like.isEmpty() ? name : like;
}

bool cAccountMap::Assign(const QString& number, const QString& account)
{
    const QString name = Known(account.trimmed());
    if (name.isEmpty()) {
        return false;
    }
    if (!Exists(name)) {
        cTemplateItem item = modTemplate::NewAccount(m_data.GetAccounts(), name);
        if (!m_data.AddNewTemplate(item)) {
            return false;
        }
    }
    return m_settings.Set(modSettingKey::BankNumber.Of(number), name);
}

QString cAccountMap::Ask(const QString& number, cUser& user, const QString& product)
{
    if (const QString known = AccountOf(number); !known.isEmpty()) {
        return known;
    }
    cChoice choice;
    choice.Text = QuestionFor(number, product);
    choice.Title = cText::Tr("Konto zuordnen");
    choice.Items = Choices();
    choice.Proposal = NameFor(number, product);
    choice.AllowNew = true;
    const std::optional<QString> answer = user.Choose(choice);
    return answer && Assign(number, *answer) ? AccountOf(number) : QString();
}

QStringList cAccountMap::Unknown(const QStringList& numbers) const
{
    QStringList unknown;
    std::copy_if(numbers.begin(), numbers.end(), std::back_inserter(unknown),
                 [&](const QString& number) { return AccountOf(number).isEmpty(); });
    return unknown;
}

std::optional<cTemplateItem> cAccountMap::getAssignedAccount(const cImportEntry& row) const
{
    const QString account = m_settings.Get(modSettingKey::BankNumber.Of(row.ImportAccount));
    return account.isEmpty() ? std::nullopt : m_data.FindAccount(account);
}

std::optional<cTemplateItem> cAccountMap::getAssignedAccountTo(const cImportEntry& row) const
{
    const QString account = OwnAccountOf(row.ImportBeneficiaryAccount, row.ImportBeneficiaryBLZ);
    return account.isEmpty() ? std::nullopt : m_data.FindAccount(account);
}

std::optional<cEntryItem> cAccountMap::getAssignedEntry(const cImportEntry& row) const
{
    return row.ImportAssigned && row.ImportAssignedEntry > -1 ? m_data.LoadEntry(row.ImportAssignedEntry)
                                                              : std::nullopt;
}
