#pragma once

#include <QList>
#include <QString>

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
    QString TemplateVAT;                            // amount text as in the database
    QString TemplateDefaultValue;                   // amount text: monthly limit of a category

    bool operator==(const cTemplateItem&) const = default;
};

using cTemplateItemList = QList<cTemplateItem>;

namespace modTemplate {

[[nodiscard]] bool IsAccount(const cTemplateItem& item);

// False only for a stored "0": what cannot be read keeps the item in sight.
[[nodiscard]] bool IsVisible(const cTemplateItem& item);

// Whole number; 0 for a text that is none.
[[nodiscard]] int Priority(const cTemplateItem& item);

// Monthly limit in cents; 0 when there is none.
[[nodiscard]] qint64 DefaultValueCents(const cTemplateItem& item);

// The name without the characters that would break paths, reports or queries.
[[nodiscard]] QString CleanName(const QString& name);

// The category path as it is stored in an entry: main category and sub-category joined by "; ".
[[nodiscard]] QString Path(const cTemplateItem& item);

// The path for display: the words that the program supplies itself are translated.
[[nodiscard]] QString ShownPath(const cTemplateItem& item);

// The two halves of a path; the second one is empty for a main category itself.
[[nodiscard]] QString MainOf(const QString& path);
[[nodiscard]] QString SubOf(const QString& path);
[[nodiscard]] QString Join(const QString& main, const QString& sub);

// The path with another main category.
[[nodiscard]] QString WithMain(const QString& path, const QString& main);

// What an item stands below in lists: main category of its path, or the group of an account.
[[nodiscard]] QString GroupOf(const cTemplateItem& item);

// In the order that the user gave them, as every list should offer them: groups stay together and stand where their
// first item stands, the main category itself comes before its sub-categories, and equal positions go by name.
[[nodiscard]] cTemplateItemList InOrder(cTemplateItemList items);

// The highest position among the items of that type in that group, else of that type; 0 when there is none.
[[nodiscard]] int LastPriority(const cTemplateItemList& items, const QString& type, const QString& group);

// A category with these names, cleaned, at the end of its group. It happens once and is of the kind of its neighbours,
// else an expense, because most are. Without any name when nothing is left of the two.
[[nodiscard]] cTemplateItem NewCategory(const cTemplateItemList& items, const QString& main, const QString& sub);

} // namespace modTemplate
