#pragma once

#include "base/cProgress.h"
#include "household/cHousehold.h"
#include "support/testBook.h"
#include "views/statement/cImportReview.h"

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <utility>

// Somebody who always presses Enter. What has no default is answered by what the person knows: which account is which.
class cEnterUser final : public cUser
{
public:
    void Show(eTone /*tone*/, const QString& text, const QString& /*title*/ = {}) override { Shown.append(text); }
    eAnswer Ask(const cQuestion& question) override;
    std::optional<QString> Choose(const cChoice& choice) override;
    int Decide(const cDecision& decision) override;
    std::optional<QList<int>> Tick(const cChecklist& list) override;
    QStringList ChooseFiles(const QString& /*title*/, const QString& /*filter*/, ePurpose /*purpose*/) override
    {
        return {};
    }
    QString ChooseSavePath(const QString& /*title*/, const QString& /*filter*/, const QString& /*proposal*/,
                           ePurpose /*purpose*/ = ePurpose::Export) override
    {
        return {};
    }
    QString ChooseFolder(const QString& /*title*/, const QString& /*current*/) override { return {}; }

    QStringList Asked;
    QStringList Shown;
    QHash<QString, QString> AccountOf; // by number
};

// A household that keeps a book: month by month it types its notes, reads the statements of its banks, takes all
// proposals and books the rest row by row, always with Enter.
class cHouseholdPlay
{
public:
    // What came of all months.
    struct cFigures
    {
        int Rows = 0;         // that the banks booked and the statements told
        int Lost = 0;         // of them: not staged, or staged twice
        int Open = 0;         // of them: not assigned
        int Days = 0;         // covered by statements, of all accounts, checked after each month
        int WrongDays = 0;    // on which the book holds another balance
        int Known = 0;        // rows whose category somebody could know
        int Right = 0;        // of them: booked so
        int SureWrong = 0;    // of them: taken with "Vorschläge annehmen" and wrong
        int Sure = 0;         // rows that were taken so
        int Questions = 0;    // in all months
        QStringList Faults;   // the first of each month and account, in words
        QStringList Mistakes; // categories that are wrong, in words
    };

    // `isTrace` keeps every question in Faults too.
    cHouseholdPlay(const cHousehold& household, QDate first, int months, bool isTrace = false);

    [[nodiscard]] cFigures Play();

private:
    void PlayMonth(int month);
    void TypeNotes(QDate until);
    [[nodiscard]] QStringList WriteStatements(int month);
    void TakeAll();
    void LookThrough();
    void Check(int month);
    void CheckAccount(const cHousehold::cAccount& account, QDate until);
    using cWanted = QMultiMap<std::pair<QDate, qint64>, const cHousehold::cBooking*>; // by day and cents

    void CheckRows();
    void CheckRow(const cImportEntry& row, cWanted& wanted);
    void CheckCategory(const cImportEntry& row, const cHousehold::cBooking& booking);

    const cHousehold& m_household;
    QDate m_first;
    int m_months;
    bool m_isTrace;
    cTestBook m_book;
    cEnterUser m_user;
    cDataAccess m_data{m_book.Database, m_user};
    cSettings m_settings{m_data};
    const cBookTools m_tools{m_data, m_settings, m_book.Format, m_user, m_book.Clock};
    cImportReview m_review{m_tools};
    cNoProgress m_progress;
    QTemporaryDir m_folder;
    qsizetype m_typed = 0;
    QSet<int> m_sure; // rows taken with all proposals
    cFigures m_figures;
};
