#include "views/template/cBankNumbers.h"

#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

QList<std::pair<QString, QString>> cBankNumbers::All() const
{
    QList<std::pair<QString, QString>> numbers;
    const QList<std::pair<QString, QString>> settings = m_data.GetSettings();
    for (const auto& [name, account] : settings) {
        if (const QString number = modSettingKey::BankNumber.PartOf(name); !number.isEmpty()) {
            numbers.append({number, account});
        }
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

QStringList cBankNumbers::Of(const QString& account) const
{
    QStringList numbers;
    const QList<std::pair<QString, QString>> all = All();
    for (const auto& [number, owner] : all) {
        if (owner == account) {
            numbers.append(number);
        }
    }
    return numbers;
}

QString cBankNumbers::AccountOf(const QString& number) const
{
    return m_settings.Get(modSettingKey::BankNumber.Of(number));
}

QStringList cBankNumbers::Unassigned() const
{
    QStringList numbers = m_data.GetImportAccounts();
    numbers.removeIf([this](const QString& number) { return number.isEmpty() || !AccountOf(number).isEmpty(); });
    numbers.sort();
    return numbers;
}

bool cBankNumbers::Assign(const QString& number, const QString& account)
{
    return m_settings.Set(modSettingKey::BankNumber.Of(number), account);
}

bool cBankNumbers::Release(const QString& number)
{
    return m_settings.Delete(modSettingKey::BankNumber.Of(number));
}

bool cBankNumbers::Move(const QString& oldName, const QString& newName)
{
    const QStringList numbers = Of(oldName);
    return std::all_of(numbers.begin(), numbers.end(), [&](const QString& number) { return Assign(number, newName); });
}

bool cBankNumbers::ReleaseAll(const QString& account)
{
    const QStringList numbers = Of(account);
    return std::all_of(numbers.begin(), numbers.end(), [this](const QString& number) { return Release(number); });
}

QStringList cBankNumbers::Read(const QString& text)
{
    static const QRegularExpression separators(u"[,;\n]"_s);
    static const QRegularExpression blanks(u"\\s"_s);
    QStringList numbers = text.split(separators, Qt::SkipEmptyParts);
    for (QString& number : numbers) {
        number.remove(blanks);
    }
    numbers.removeAll(QString());
    numbers.removeDuplicates();
    return numbers;
}
