#include "views/template/cTemplateWriter.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modAmount.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/modBalance.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/budget/modLimits.h"
#include "views/chart/modForecast.h"
#include "views/template/cBankNumbers.h"
#include "views/template/cTemplateFlow.h"

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

QString StoredVisible(bool isVisible)
{
    return isVisible ? u"1"_s : u"0"_s;
}

// The limit as it is stored. An amount that reads the same keeps its form.
QString StoredLimit(const cTemplateItem& item, const QString& text, eDecimal decimal)
{
    const qint64 cents = std::abs(modSum::Evaluate(text, decimal).value_or(0));
    if (cents == modTemplate::DefaultValueCents(item)) {
        return item.TemplateDefaultValue;
    }
    return cents == 0 ? QString() : modAmount::CentsToText(cents);
}

// The limit of an account may be zero or below: what counts is whether there is one.
QString StoredAccountLimit(const cTemplateItem& item, const QString& text, eDecimal decimal)
{
    const std::optional<qint64> cents = modSum::Evaluate(text, decimal);
    if (cents == modForecast::Limit(item)) {
        return item.TemplateDefaultValue;
    }
    return cents ? modAmount::CentsToText(*cents) : QString();
}

QString ShownAccountLimit(const cTemplateItem& item, eDecimal decimal)
{
    const std::optional<qint64> cents = modForecast::Limit(item);
    return cents ? modSum::ToText(*cents, decimal) : QString();
}

QString ShownLimit(const cTemplateItem& item, eDecimal decimal)
{
    const qint64 cents = modTemplate::DefaultValueCents(item);
    return cents == 0 ? QString() : modSum::ToText(cents, decimal);
}

// A percentage as typed: "19", "5,5", "7 %".
std::optional<qint64> ReadVat(QString text, eDecimal decimal)
{
    constexpr qint64 most = 10'000; // hundredths of a percent
    const std::optional<qint64> rate = modSum::Evaluate(text.remove(u'%'), decimal);
    return rate && *rate >= 0 && *rate < most ? rate : std::nullopt;
}

// A rate that reads the same keeps its form, and so does a text that is none, as long as nobody changes it.
QString StoredVat(const cTemplateItem& item, const QString& text, eDecimal decimal)
{
    const std::optional<qint64> rate = ReadVat(text, decimal);
    if (text.trimmed() == item.TemplateVAT.trimmed() || (rate && rate == modTemplate::VatRate(item))) {
        return item.TemplateVAT;
    }
    return rate ? modTemplate::VatText(*rate) : QString();
}

QString ShownVat(const cTemplateItem& item, eDecimal decimal)
{
    const std::optional<qint64> rate = modTemplate::VatRate(item);
    return rate ? modTemplate::VatText(*rate).replace(u'.', modSum::Sign(decimal)) : item.TemplateVAT;
}

// What a category brings into a new entry.
void TakeDefaults(cTemplateItem& item, const cTemplateFields& fields, eDecimal decimal)
{
    item.EntryType = fields.Type;
    item.EntryInterval = fields.Interval;
    item.TemplateDefaultValue = StoredLimit(item, fields.Amount, decimal);
    item.TemplateVAT = StoredVat(item, fields.Vat, decimal);
    item.TemplateComment = fields.Comment.trimmed();
}

cTemplateFields DefaultsOf(const cTemplateItem& item, eDecimal decimal)
{
    cTemplateFields fields;
    fields.Type = item.EntryType;
    fields.Interval = item.EntryInterval;
    fields.Amount = ShownLimit(item, decimal);
    fields.Vat = ShownVat(item, decimal);
    fields.Comment = item.TemplateComment;
    fields.IsVisible = modTemplate::IsVisible(item);
    return fields;
}

bool IsBelow(const cTemplateItem& item, const QString& main)
{
    return !modTemplate::IsAccount(item) && modTemplate::GroupOf(item) == main;
}

} // namespace

bool cTemplateWriter::Step(const QString& name, const fnWrite& write)
{
    cUndoStep step(m_tools.Data, name);
    return step.DoneIf(write());
}

std::optional<cTemplateFields> cTemplateWriter::Load(const cTemplateNode& node, QDate today) const
{
    if (node.Kind == eTemplateNode::Main) {
        return LoadMain(node.Path);
    }
    const std::optional<cTemplateItem> item = node.Id > 0 ? m_tools.Data.FindTemplate(node.Id) : std::nullopt;
    if (!item) {
        return std::nullopt;
    }
    if (node.Kind == eTemplateNode::Account) {
        return LoadAccount(*item, today);
    }
    cTemplateFields fields = DefaultsOf(*item, m_tools.Format.Decimal());
    fields.Group = modTemplate::GroupOf(*item);
    fields.Name = modTemplate::SubOf(modTemplate::Path(*item));
    return fields;
}

cTemplateFields cTemplateWriter::LoadMain(const QString& main) const
{
    cTemplateFields fields;
    bool isAnyVisible = false;
    const cTemplateItemList items = m_tools.Data.GetTemplates();
    for (const cTemplateItem& item : items) {
        if (!IsBelow(item, main)) {
            continue;
        }
        isAnyVisible = isAnyVisible || modTemplate::IsVisible(item);
        if (!fields.IsBookable && modTemplate::Path(item) == main) {
            fields = DefaultsOf(item, m_tools.Format.Decimal());
            fields.IsBookable = true;
        }
    }
    fields.Name = main;
    fields.IsVisible = isAnyVisible;
    fields.Look = cCategoryLooks::Read(m_tools.Data).Of(main);
    return fields;
}

cTemplateFields cTemplateWriter::LoadAccount(const cTemplateItem& item, QDate today) const
{
    const std::optional<cEntryItem> start = m_tools.Data.GetStartGuthaben(item.TemplateName);
    cTemplateFields fields;
    fields.Name = item.TemplateName;
    fields.Group = item.TemplateCategory;
    fields.Amount = start ? modSum::ToText(modBalance::Effect(*start, {}), m_tools.Format.Decimal()) : QString();
    fields.Limit = ShownAccountLimit(item, m_tools.Format.Decimal());
    fields.Date = start ? start->EntryDate : today; // an unreadable day is shown as none, not as today
    fields.Numbers = cBankNumbers(m_tools.Data, m_tools.Settings).Of(item.TemplateName).join(u'\n');
    fields.Comment = item.TemplateComment;
    fields.IsVisible = modTemplate::IsVisible(item);
    return fields;
}

bool cTemplateWriter::IsAmount(const QString& text)
{
    return text.trimmed().isEmpty() || modSum::Evaluate(text, m_tools.Format.Decimal())
        || m_tools.User.Refuse(modSum::Fault(text, m_tools.Format.Decimal()));
}

bool cTemplateWriter::IsVat(const QString& old, const QString& text)
{
    return text.trimmed().isEmpty() || text == old || ReadVat(text, m_tools.Format.Decimal())
        || m_tools.User.Refuse(cText::Tr(
            "'{0}' ist kein Steuersatz. Bitte geben Sie Prozente ein, zum Beispiel 19 oder 7.", {text.trimmed()}));
}

std::optional<QString> cTemplateWriter::Save(const cTemplateNode& node, const cTemplateFields& old,
                                             const cTemplateFields& fields)
{
    if (fields == old) {
        return node.Path;
    }
    if (!IsAmount(fields.Amount) || !IsAmount(fields.Limit) || !IsVat(old.Vat, fields.Vat)) {
        return std::nullopt;
    }
    if (node.Kind == eTemplateNode::Main) {
        return SaveMain(node, old, fields);
    }
    const std::optional<cTemplateItem> item = node.Id > 0 ? m_tools.Data.FindTemplate(node.Id) : std::nullopt;
    if (!item) {
        return std::nullopt;
    }
    return node.Kind == eTemplateNode::Account ? SaveAccount(*item, old, fields) : SaveCategory(*item, fields);
}

std::optional<QString> cTemplateWriter::SaveCategory(const cTemplateItem& item, const cTemplateFields& fields)
{
    const QString path = modTemplate::Path(item);
    // A name that nobody has touched is not renamed, even if it will not stay as it is.
    const bool isRenamed =
        fields.Name.trimmed() != modTemplate::SubOf(path) || fields.Group.trimmed() != modTemplate::MainOf(path);
    const QString name =
        isRenamed ? cText::Tr("Kategorie '{0}' umbenannt", {path}) : cText::Tr("Kategorie '{0}' geändert", {path});
    const bool isDone = Step(name, [&] {
        const bool isNamed = !isRenamed || cTemplateFlow(m_tools).RenameCategory(item, fields.Group, fields.Name);
        return isNamed && WriteCategory(item, fields);
    });
    const std::optional<cTemplateItem> now = isDone ? m_tools.Data.FindTemplate(item.ID) : std::nullopt;
    return now ? std::optional(modTemplate::Path(*now)) : std::nullopt;
}

bool cTemplateWriter::WriteCategory(const cTemplateItem& item, const cTemplateFields& fields)
{
    const std::optional<cTemplateItem> stored = m_tools.Data.FindTemplate(item.ID);
    if (!stored) {
        return false;
    }
    cTemplateItem changed = *stored;
    TakeDefaults(changed, fields, m_tools.Format.Decimal());
    if (fields.IsVisible != modTemplate::IsVisible(changed)) {
        changed.TemplateVisible = StoredVisible(fields.IsVisible);
    }
    return changed == *stored || m_tools.Data.ChangeTemplate(changed);
}

bool cTemplateWriter::CanSaveMain(const QString& main, const cTemplateFields& fields)
{
    const cTemplateItemList items = m_tools.Data.GetTemplates();
    const bool hasSubs = std::any_of(items.begin(), items.end(), [&](const cTemplateItem& item) {
        return IsBelow(item, main) && modTemplate::Path(item) != main;
    });
    return hasSubs || fields.IsBookable
        || m_tools.User.Refuse(cText::Tr("Eine Hauptkategorie ohne Unterkategorien muss direkt bebuchbar sein."));
}

std::optional<QString> cTemplateWriter::SaveMain(const cTemplateNode& node, const cTemplateFields& old,
                                                 const cTemplateFields& fields)
{
    if (!CanSaveMain(node.Path, fields)) {
        return std::nullopt;
    }
    const bool isRenamed = fields.Name != node.Path;
    const QString name = isRenamed ? cText::Tr("Hauptkategorie '{0}' umbenannt", {node.Path})
                                   : cText::Tr("Hauptkategorie '{0}' geändert", {node.Path});
    QString main = modTemplate::TypedName(fields.Name);
    const bool isDone = Step(name, [&] {
        cTemplateFlow flow(m_tools);
        if (isRenamed) {
            return (main == node.Path || flow.RenameMain(node.Path, main)) && WriteMain(node, main, old, fields);
        }
        main = flow.CleanMain(node.Path);
        return !main.isEmpty() && WriteMain(node, main, old, fields);
    });
    return isDone ? std::optional(main) : std::nullopt;
}

bool cTemplateWriter::WriteMain(const cTemplateNode& node, const QString& main, const cTemplateFields& old,
                                const cTemplateFields& fields)
{
    return WriteOwn(node, main, fields) && (fields.IsVisible == old.IsVisible || WriteVisible(main, fields.IsVisible))
        && (fields.Look == old.Look || cCategoryLooks::Store(m_tools.Settings, main, fields.Look, old.Look));
}

// The definition of the main category itself comes and goes with its being bookable.
bool cTemplateWriter::WriteOwn(const cTemplateNode& node, const QString& main, const cTemplateFields& fields)
{
    const std::optional<cTemplateItem> own = node.Id > 0 ? m_tools.Data.FindTemplate(node.Id) : std::nullopt;
    if (!fields.IsBookable) {
        return !own || (modLimits::Remove(m_tools.Settings, main) && m_tools.Data.DeleteTemplate(own->ID));
    }
    cTemplateItem item = own.value_or(cTemplateItem{});
    TakeDefaults(item, fields, m_tools.Format.Decimal());
    if (own) {
        return item == *own || m_tools.Data.ChangeTemplate(item);
    }
    // It takes the position of its first sub-category, so that the main category stays where it is.
    const cTemplateItemList items = modTemplate::InOrder(m_tools.Data.GetTemplates());
    const auto first =
        std::find_if(items.begin(), items.end(), [&](const cTemplateItem& sub) { return IsBelow(sub, main); });
    item.TemplateType = modWord::Kategorie;
    item.TemplateCategory = main;
    item.TemplatePriority = first == items.end() ? item.TemplatePriority : first->TemplatePriority;
    return m_tools.Data.AddNewTemplate(item);
}

bool cTemplateWriter::WriteVisible(const QString& main, bool isVisible)
{
    const cTemplateItemList items = m_tools.Data.GetTemplates();
    return std::all_of(items.begin(), items.end(), [&](cTemplateItem item) {
        if (!IsBelow(item, main) || modTemplate::IsVisible(item) == isVisible) {
            return true;
        }
        item.TemplateVisible = StoredVisible(isVisible);
        return m_tools.Data.ChangeTemplate(item);
    });
}

bool cTemplateWriter::HasDay(const cTemplateFields& old, const cTemplateFields& fields)
{
    const bool isUnchanged = fields.Amount == old.Amount && fields.Date == old.Date;
    return isUnchanged || fields.Amount.trimmed().isEmpty() || fields.Date.isValid()
        || m_tools.User.Refuse(cText::Tr("Bitte geben Sie den Tag des Startguthabens an, zum Beispiel 31.01.2026."));
}

bool cTemplateWriter::StaysOpen(const cTemplateItem& account, const cTemplateFields& fields)
{
    const cTemplateItemList accounts = m_tools.Data.GetAccounts();
    const bool isOtherOpen = std::any_of(accounts.begin(), accounts.end(), [&](const cTemplateItem& other) {
        return other.ID != account.ID && modTemplate::IsVisible(other);
    });
    return fields.IsVisible || isOtherOpen
        || m_tools.User.Refuse(
            cText::Tr("Das letzte offene Konto kann nicht geschlossen werden: Jede Buchung braucht ein Konto."));
}

bool cTemplateWriter::ConfirmNumbers(const QString& account, const QString& text)
{
    const cBankNumbers bank(m_tools.Data, m_tools.Settings);
    const QStringList numbers = cBankNumbers::Read(text);
    return std::all_of(numbers.begin(), numbers.end(), [&](const QString& number) {
        const QString owner = bank.AccountOf(number);
        if (owner.isEmpty() || owner == account || !m_tools.Data.FindAccount(owner)) {
            return true;
        }
        const eAnswer answer = m_tools.User.Ask(
            {.Text = cText::Tr("Die Kontonummer {0} gehört bisher zum Konto '{1}'.\nSoll sie künftig zu "
                               "'{2}' gehören?",
                               {number, owner, account}),
             .Title = cText::Tr("Konto zuordnen")});
        return answer == eAnswer::Yes;
    });
}

std::optional<QString> cTemplateWriter::SaveAccount(const cTemplateItem& item, const cTemplateFields& old,
                                                    const cTemplateFields& fields)
{
    const QString name = modTemplate::TypedName(fields.Name);
    // A name that nobody has touched is not renamed, even if it will not stay as it is.
    const bool isRenamed = fields.Name != item.TemplateName && name != item.TemplateName;
    if (!HasDay(old, fields) || !StaysOpen(item, fields) || !ConfirmNumbers(item.TemplateName, fields.Numbers)) {
        return std::nullopt;
    }
    const QString step = isRenamed ? cText::Tr("Konto '{0}' umbenannt", {item.TemplateName})
                                   : cText::Tr("Konto '{0}' geändert", {item.TemplateName});
    const bool isDone = Step(step, [&] {
        const bool isNamed = !isRenamed || cTemplateFlow(m_tools).RenameAccount(item.TemplateName, name);
        return isNamed && WriteAccount(item, old, fields);
    });
    const std::optional<cTemplateItem> now = isDone ? m_tools.Data.FindTemplate(item.ID) : std::nullopt;
    return now ? std::optional(now->TemplateName) : std::nullopt;
}

bool cTemplateWriter::WriteAccount(const cTemplateItem& item, const cTemplateFields& old, const cTemplateFields& fields)
{
    const std::optional<cTemplateItem> stored = m_tools.Data.FindTemplate(item.ID);
    if (!stored) {
        return false;
    }
    cTemplateItem changed = *stored;
    if (fields.Group != changed.TemplateCategory) {
        changed.TemplateCategory = modTemplate::TypedName(fields.Group);
    }
    changed.TemplateComment = fields.Comment.trimmed();
    changed.TemplateDefaultValue = StoredAccountLimit(changed, fields.Limit, m_tools.Format.Decimal());
    if (fields.IsVisible != modTemplate::IsVisible(changed)) {
        changed.TemplateVisible = StoredVisible(fields.IsVisible);
    }
    if (changed != *stored && !m_tools.Data.ChangeTemplate(changed)) {
        return false;
    }
    const bool isSameStart = fields.Amount == old.Amount && fields.Date == old.Date;
    const QString name = m_tools.Data.FindTemplate(item.ID).value_or(changed).TemplateName;
    return (isSameStart || WriteStartBalance(name, fields))
        && (fields.Numbers == old.Numbers || WriteNumbers(name, fields.Numbers));
}

bool cTemplateWriter::WriteStartBalance(const QString& account, const cTemplateFields& fields)
{
    if (!fields.Amount.trimmed().isEmpty()) {
        return m_tools.Data.SetStartGuthaben(
            account, modSum::Evaluate(fields.Amount, m_tools.Format.Decimal()).value_or(0), fields.Date);
    }
    const std::optional<cEntryItem> start = m_tools.Data.GetStartGuthaben(account);
    return !start || m_tools.Data.DeleteEntry(start->ID);
}

bool cTemplateWriter::WriteNumbers(const QString& account, const QString& text)
{
    cBankNumbers bank(m_tools.Data, m_tools.Settings);
    const QStringList wanted = cBankNumbers::Read(text);
    const QStringList stored = bank.Of(account);
    return std::all_of(stored.begin(), stored.end(),
                       [&](const QString& number) {
                           return wanted.contains(number, Qt::CaseInsensitive) || bank.Release(number);
                       })
        && std::all_of(wanted.begin(), wanted.end(), [&](const QString& number) {
               return bank.AccountOf(number) == account || bank.Assign(number, account);
           });
}
