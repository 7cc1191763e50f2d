#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// A category or an account, a row of table `template`.
struct cTemplateItem
{
    int ID = 0;
    QString EntryType;                             // default kind of entry
    QString EntryInterval;                         // default interval
    QString TemplateType;                          // "Konto" or "Kategorie"
    QString TemplateVisible = QStringLiteral("1"); // "1" or "0"
    QString TemplateCategory;                      // main category, or the group of an account
    QString TemplateName;                          // sub-category, or the name of an account
    QString TemplateComment;
    QString TemplatePriority = QStringLiteral("0"); // whole number
    QString TemplateVAT;                            // percent as a number text; whatever older files hold
    QString TemplateDefaultValue;                   // amount text: see LimitCents, and the limit of an account

    bool operator==(const cTemplateItem&) const = default;
};

using cTemplateItemList = QList<cTemplateItem>;

namespace modTemplate {

// The path of a category without names. Sums count entries without a category with it.
inline const QString NoPath = QStringLiteral("Keine Angabe");

[[nodiscard]] bool IsAccount(const cTemplateItem& item);

// False only for a stored "0": what cannot be read keeps the item in sight.
[[nodiscard]] bool IsVisible(const cTemplateItem& item);

// Whole number; 0 for a text that is none.
[[nodiscard]] int Priority(const cTemplateItem& item);

// The value of a category in cents; 0 when there is none. Where the category's interval recurs it is what is paid each
// time, else what may be spent in a month.
[[nodiscard]] qint64 DefaultValueCents(const cTemplateItem& item);

// What a new entry of the category will probably come to, in cents; 0 when nothing is proposed.
[[nodiscard]] qint64 ProposedCents(const cTemplateItem& item);

// What the value allows to be spent in so many calendar months, in cents: a year of 600.00 paid yearly is 600.00. 0
// when there is no limit, as for a category of income.
[[nodiscard]] qint64 LimitCents(const cTemplateItem& item, qint64 months);

// The rate of the VAT in hundredths of a percent, 1900 for "19"; empty when there is none or none that can be read.
[[nodiscard]] std::optional<qint64> VatRate(const cTemplateItem& item);

// The rate as it is stored: "19", "5.5".
[[nodiscard]] QString VatText(qint64 rate);

// The VAT in an amount that includes it, both in cents.
[[nodiscard]] qint64 VatCents(qint64 cents, qint64 rate);

// The name without the characters that would break paths, reports or queries.
[[nodiscard]] QString CleanName(const QString& name);
// The same of what the user typed, without the blanks around it.
[[nodiscard]] QString TypedName(const QString& name);

// Names that look the same in a list: letter case and further blanks tell nobody anything.
[[nodiscard]] bool IsSameName(const QString& a, const QString& b);

// What entries know the item by: the name of an account, the path of a category.
[[nodiscard]] QString NameOf(const cTemplateItem& item);

// True when another one of the items is called so, or when the name stands for all accounts.
[[nodiscard]] bool IsTaken(const cTemplateItemList& items, const cTemplateItem& named);

// The account of this name, or one whose name looks the same; empty when there is none.
[[nodiscard]] QString AccountLike(const cTemplateItemList& accounts, const QString& name);

// The category path as it is stored in an entry: main category and sub-category joined by "; ".
[[nodiscard]] QString Path(const cTemplateItem& item);

// The two halves of a path; the second one is empty for a main category itself.
[[nodiscard]] QString MainOf(const QString& path);
[[nodiscard]] QString SubOf(const QString& path);
[[nodiscard]] QString Join(const QString& main, const QString& sub);

// True for the category itself, and for a sub-category of a main category.
[[nodiscard]] bool IsWithin(const QString& path, const QString& category);

// The path with another main category.
[[nodiscard]] QString WithMain(const QString& path, const QString& main);

// What an item stands below in lists: main category of its path, or the group of an account.
[[nodiscard]] QString GroupOf(const cTemplateItem& item);

// In the order that the user gave them, as every list should offer them: groups stay together and stand where their
// first item stands, the main category itself comes before its sub-categories, and equal positions go by name.
[[nodiscard]] cTemplateItemList InOrder(cTemplateItemList items);

// The names of the accounts, and the paths of the categories, in this order.
[[nodiscard]] QStringList AccountNames(const cTemplateItemList& items);
[[nodiscard]] QStringList Paths(const cTemplateItemList& items);

// The paths with every main category before its first one, whether it has a row of its own or not; each once.
[[nodiscard]] QStringList WithMains(const QStringList& paths);

// The highest position among the items of that type in that group, else of that type; 0 when there is none.
[[nodiscard]] int LastPriority(const cTemplateItemList& items, const QString& type, const QString& group);

// A category with these names, cleaned, at the end of its group. It happens once and is of the kind of its neighbours,
// else an expense, because most are. Without any name when nothing is left of the two.
[[nodiscard]] cTemplateItem NewCategory(const cTemplateItemList& items, const QString& main, const QString& sub);

// An account of this name, cleaned, at the end of the group in which most accounts stand: those of banks, in the usual
// book. Without name when nothing is left of it, or when it stands for all accounts.
[[nodiscard]] cTemplateItem NewAccount(const cTemplateItemList& accounts, const QString& name);

} // namespace modTemplate
