#pragma once

#include "base/cUser.h"
#include "base/modSum.h"
#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"

#include <QDate>
#include <QString>

#include <functional>
#include <optional>

class cDataAccess;
struct cBookTools;

// What can be done to one occurrence of a series from the entry list. `day` is the day that the series plans for it,
// also where it was moved. Every writing
// call is one step that can be undone, and false when nothing was changed.
class cSeriesChange
{
public:
    // What the user wants to change. Entry: the entry as a whole (cEntryEditor::Load). FromHere:
    // cEntryEditor::LoadFrom. Period: amount and day of this occurrence only (StartPeriod and SavePeriod).
    enum class eEdit { Nothing, Period, FromHere, Entry };

    // The small form for the amount of one period.
    struct cPeriodFields
    {
        int EntryId = 0;
        QDate Day;       // of the occurrence
        QString Title;   // "'Miete' vom 01.03.2026 bis 31.03.2026"
        QDate Today;     // valid: the form asks for the day, and this is what "heute" means
        QString DayText; // as typed; the day on which the occurrence lies now. Empty is the planned one
        QString Amount;  // as typed, sums too; the amount that counts now
        QString Comment;
        eDecimal Decimal = eDecimal::Comma;
        bool IsCorrected = false; // there is a correction that can be removed
        bool IsDayFirst = false;  // what the user wants to type: the day, else the amount
    };

    enum class eSaved { Saved, BadAmount, BadDay, Refused };

    // Whether the user is asked before days change that agree with the bank; else the caller asks.
    enum class eReconciled { Ask, Leave };

    explicit cSeriesChange(const cBookTools& tools, eReconciled reconciled = eReconciled::Ask);

    // Asks what is meant when an occurrence is edited. One-off entries are Entry without question; the first occurrence
    // is not offered FromHere, which would be the whole series.
    [[nodiscard]] eEdit AskWhatToEdit(int entryId, QDate day);

    // True when the entry is a series with an occurrence on this day.
    [[nodiscard]] bool IsOccurrence(int entryId, QDate day);

    // The day on which lists show the occurrence, and behind it the planned one where that is another.
    [[nodiscard]] QString DayText(int entryId, QDate day);

    // A sentence that names what is planned behind the occurrence of `from` and was moved before it; empty without any.
    // A series that is divided or ends there takes it along.
    [[nodiscard]] QString EarlierText(int entryId, QDate from);

    [[nodiscard]] std::optional<cPeriodFields> StartPeriod(int entryId, QDate day, QDate today = {});
    [[nodiscard]] eSaved SavePeriod(const cPeriodFields& fields);
    [[nodiscard]] eAnswer AskToSave() const; // see modUnsaved

    // `moveTo` is the day to which the occurrence moves, the planned one for an invalid day; without it, it stays where
    // it is.
    [[nodiscard]] bool CorrectPeriod(int entryId, QDate day, qint64 cents, const QString& comment,
                                     const std::optional<QDate>& moveTo = std::nullopt);
    [[nodiscard]] bool SkipPeriod(int entryId, QDate day); // amount 0, comment "Ausgelassen"; it stays where it is
    [[nodiscard]] bool RemoveCorrection(int entryId, QDate day);
    [[nodiscard]] std::optional<cEntryItemFixMod> Correction(int entryId, QDate day);

private:
    // `write` as one step of this name.
    [[nodiscard]] bool Step(const QString& name, const std::function<bool()>& write);
    [[nodiscard]] std::optional<cEntryItem> Occurrence(int entryId, QDate day);
    [[nodiscard]] bool Store(const cEntryItemFixMod& fixMod, const QString& step);

    const cBookTools& m_tools;
    cDataAccess& m_data;
    eReconciled m_reconciled;
};
