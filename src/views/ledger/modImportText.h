#pragma once

#include "model/cRowPlan.h"

#include <QString>
#include <QStringList>

class cAmountFormat;
struct cBookingResult;
struct cEntryItem;
struct cImportEntry;
struct cImportResult;
struct cMatchCandidate;
struct cReadProblem;
struct cTableDoubt;

// Rows of a bank, and what came of reading and booking them, in words: for the page of bank statements, the rules and
// the account statement.
namespace modImportText {

// "ein Umsatz", "3 Umsätze"
[[nodiscard]] QString Count(int rows);

// A line of a file that could not be read, with the reason.
[[nodiscard]] QString Problem(const cReadProblem& problem);

// "7 gelesen, 5 neu, 2 schon vorhanden": what came of a file
[[nodiscard]] QString Numbers(const cImportResult& result, const cAmountFormat& format);

// The same with the name of the file, and the lines of it that could not be read.
[[nodiscard]] QStringList Summary(const cImportResult& result, const cAmountFormat& format);

// A booking of a table that leaves open which way its amounts count, in both readings: as the file has it, then the
// other way round.
[[nodiscard]] QStringList Readings(const cTableDoubt& doubt, const cAmountFormat& format);

// Both in one question: "01.02.2026 · Miete · -500,00 € oder +500,00 €?"
[[nodiscard]] QString Question(const cTableDoubt& doubt, const cAmountFormat& format);

// A transaction in one line.
[[nodiscard]] QString Row(const cImportEntry& row, const cAmountFormat& format);

// All that a transaction says beside day and amount, in lines
[[nodiscard]] QString Details(const cImportEntry& row);

// "3 Umsätze gebucht, 2 neue Einträge.": without the numbers that have no account
[[nodiscard]] QString Booked(const cBookingResult& result);

// How many of the new entries stand under the category that says nothing
[[nodiscard]] QString WithoutCategory(int bare, int entries);

// Rows of a number that still has no account
[[nodiscard]] QString NoAccount(const QString& number);

// The same where such rows are compared with entries
[[nodiscard]] QString NoAccountToMatch(const QString& number);

// An entry or an occurrence by its text, else by its category: "'Miete' vom 03.03."
[[nodiscard]] QString EntryName(const cEntryItem& entry);

// With how well it fits: "'Miete' vom 03.03. (85 %)"
[[nodiscard]] QString Candidate(const cMatchCandidate& candidate);

// A share from 0 to 1: "85 %"
[[nodiscard]] QString Percent(double share);

// Why a row is to become what was planned: the entry that is there, or what speaks for the new one
[[nodiscard]] QString Reason(const cRowPlan& plan);

// "sicher"
[[nodiscard]] QString Group(eRowGroup group);

// Why two transactions may be the same one
[[nodiscard]] QString TwinReason(const cRowTwin& twin);

} // namespace modImportText
