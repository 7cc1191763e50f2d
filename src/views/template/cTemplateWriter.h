#pragma once

#include "model/cTemplateItem.h"
#include "views/look/cCategoryLooks.h"
#include "views/template/cTemplateTreeModel.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

struct cBookTools;

// The fields of a line in the trees of categories and accounts; which of them count depends on the kind of the line.
struct cTemplateFields
{
    QString Name;
    QString Group;    // main category of a sub-category, or group of an account
    QString Type;     // stored word; empty for none
    QString Interval; // stored word; empty for none
    QString Amount;   // as typed: value of a category (see modTemplate::LimitCents), or start balance; empty for none
    QString Vat;      // of a category, as typed: percent; empty for none
    QString Limit;    // of an account, as typed: below it there is a warning; empty for none
    QDate Date;       // of the start balance; invalid when none or none that can be read stands there
    QString Numbers;  // the bank's numbers of the account, one a line
    QString Comment;
    cCategoryLook Look{};    // of a main category
    bool IsVisible = true;   // for a main category: of everything below it
    bool IsBookable = false; // a main category that entries can have themselves: only then it has defaults

    bool operator==(const cTemplateFields&) const = default;
};

// Reads and writes the fields of one line, with the checks and questions that go with them.
class cTemplateWriter
{
public:
    explicit cTemplateWriter(const cBookTools& tools) : m_tools(tools) {}

    // Empty for a line without fields: a group, or what only entries know.
    [[nodiscard]] std::optional<cTemplateFields> Load(const cTemplateNode& node, QDate today) const;

    // Writes what differs from `old`, as it was loaded, in one step. The path or name that the line has afterwards; an
    // empty one when something was refused, and then nothing is written.
    [[nodiscard]] std::optional<QString> Save(const cTemplateNode& node, const cTemplateFields& old,
                                              const cTemplateFields& fields);

private:
    using fnWrite = std::function<bool()>;

    [[nodiscard]] cTemplateFields LoadMain(const QString& main) const;
    [[nodiscard]] cTemplateFields LoadAccount(const cTemplateItem& item, QDate today) const;
    [[nodiscard]] std::optional<QString> SaveCategory(const cTemplateItem& item, const cTemplateFields& fields);
    [[nodiscard]] std::optional<QString> SaveMain(const cTemplateNode& node, const cTemplateFields& old,
                                                  const cTemplateFields& fields);
    [[nodiscard]] std::optional<QString> SaveAccount(const cTemplateItem& item, const cTemplateFields& old,
                                                     const cTemplateFields& fields);
    [[nodiscard]] bool WriteCategory(const cTemplateItem& item, const cTemplateFields& fields);
    [[nodiscard]] bool WriteMain(const cTemplateNode& node, const QString& main, const cTemplateFields& old,
                                 const cTemplateFields& fields);
    [[nodiscard]] bool WriteOwn(const cTemplateNode& node, const QString& main, const cTemplateFields& fields);
    [[nodiscard]] bool WriteVisible(const QString& main, bool isVisible);
    [[nodiscard]] bool WriteAccount(const cTemplateItem& item, const cTemplateFields& old,
                                    const cTemplateFields& fields);
    [[nodiscard]] bool WriteStartBalance(const QString& account, const cTemplateFields& fields);
    [[nodiscard]] bool WriteNumbers(const QString& account, const QString& text);
    [[nodiscard]] bool CanSaveMain(const QString& main, const cTemplateFields& fields);
    [[nodiscard]] bool HasDay(const cTemplateFields& old, const cTemplateFields& fields);
    [[nodiscard]] bool StaysOpen(const cTemplateItem& account, const cTemplateFields& fields);
    [[nodiscard]] bool ConfirmNumbers(const QString& account, const QString& text);
    [[nodiscard]] bool IsAmount(const QString& text);                  // says so when it is none
    [[nodiscard]] bool IsVat(const QString& old, const QString& text); // says so when it is no rate
    // One step, taken back when `write` fails.
    [[nodiscard]] bool Step(const QString& name, const fnWrite& write);

    const cBookTools& m_tools;
};
