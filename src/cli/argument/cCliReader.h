#pragma once

#include "cli/call/modCliCommands.h"
#include "model/cImportEntry.h"
#include "model/modPeriod.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// Which names are understood.
enum class eCliNames {
    Defined, // what the book defines, and entries can be given
    Used,    // also those that only entries have; of categories also main categories as a whole
};

// Which occurrence of a series a day means: the one in whose period it lies, that of the very day, or the first one
// that does not lie before it.
enum class eOccurrence { OfPeriod, Exact, From };

// Reads arguments as people type them. The first one that cannot be understood is kept with its exit code; what the
// others then give does not matter.
class cCliReader
{
public:
    explicit cCliReader(const cCliContext& context) : m_context(context) {}

    [[nodiscard]] static QString Compact(QString number);  // without blanks, as numbers are typed and shown
    [[nodiscard]] static bool IsNone(const QString& text); // "ohne"

    // An empty text gives the empty value and is no problem.
    [[nodiscard]] QDate Day(const QString& text);
    [[nodiscard]] qint64 Cents(const QString& text); // sums too; with sign
    [[nodiscard]] int Id(const QString& text);
    [[nodiscard]] QList<int> Ids(const QStringList& texts);
    [[nodiscard]] std::optional<cImportEntry> StagedRow(const QString& text); // empty is a problem too
    [[nodiscard]] QString Kind(const QString& text);                          // stored words
    [[nodiscard]] QString Interval(const QString& text);                      //
    // Names in any letter case; of a category its sub-category alone is enough when there is only one of that name.
    [[nodiscard]] QString Account(const QString& text, eCliNames names = eCliNames::Defined);
    [[nodiscard]] QString Category(const QString& text, eCliNames names = eCliNames::Defined);
    // A choice of modPeople; "ohne" is nobody, an empty text anybody.
    [[nodiscard]] QString Payer(const QString& text);
    [[nodiscard]] QString Person(const QString& text); // none is meant by an empty text
    // True when a whole path is meant by the text.
    [[nodiscard]] bool IsCategoryPath(const QString& text, eCliNames names) const;
    // The day of the occurrence of a series whose period holds the day named.
    [[nodiscard]] QDate Occurrence(int id, const QString& text, eOccurrence which = eOccurrence::OfPeriod);
    // Of the options --period, --from and --to; `name` where none of them is given.
    [[nodiscard]] modPeriod::cRange Period(const QString& name);

    [[nodiscard]] modPeriod::cRange PeriodNamed(const QString& text); // but the free one

    // A file that is going to be written must not be the book itself.
    void CheckTarget(const QString& path);
    // The option, where it is given, names a file that the caller has opened.
    void CheckOpenFile(const QString& option);

    // Says that the call itself is wrong, or that the book does not have what it names.
    void Misused(const QString& problem) { Keep(modExit::Usage, problem); }
    void Missing(const QString& problem) { Keep(modExit::Failed, problem); }

    [[nodiscard]] bool IsGood() const { return m_code == modExit::Done; }
    // Shows the problem; the exit code.
    [[nodiscard]] int Report() const;

private:
    void Keep(int code, const QString& problem);
    [[nodiscard]] QString Word(const QString& text, const QStringList& stored, const QString& problem);
    [[nodiscard]] QStringList Categories(eCliNames names) const;
    [[nodiscard]] QString NoCategory(const QString& text, const QStringList& paths) const;

    const cCliContext& m_context;
    int m_code = modExit::Done;
    QString m_problem;
};
