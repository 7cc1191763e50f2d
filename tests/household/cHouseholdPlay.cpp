#include "household/cHouseholdPlay.h"

#include "household/modStatement.h"
#include "import/stage/cAccountMap.h"
#include "model/modBalance.h"
#include "views/statement/cStatementFiles.h"

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype shownTurns = 6;
constexpr int overlap = 10; // days that a statement repeats of the month before

QString Euros(qint64 cents)
{
    return QString::number(static_cast<double>(cents) / 100.0, 'f', 2);
}

} // namespace

eAnswer cEnterUser::Ask(const cQuestion& question)
{
    Asked.append(question.Text);
    return question.Default;
}

std::optional<QString> cEnterUser::Choose(const cChoice& choice)
{
    Asked.append(choice.Text);
    if (choice.Proposal.isEmpty()) {
        for (auto account = AccountOf.cbegin(); account != AccountOf.cend(); ++account) {
            if (choice.Text.contains(account.key())) {
                return *account;
            }
        }
    }
    return choice.Proposal;
}

int cEnterUser::Decide(const cDecision& decision)
{
    Asked.append(decision.Text);
    return decision.Default;
}

std::optional<QList<int>> cEnterUser::Tick(const cChecklist& list)
{
    Asked.append(list.Text + u'\n' + list.Items.join(u'\n'));
    QList<int> all(list.Items.size());
    std::iota(all.begin(), all.end(), 0);
    return all;
}

cHouseholdPlay::cHouseholdPlay(const cHousehold& household, QDate first, int months, bool isTrace)
    : m_household(household),
      m_first(first),
      m_months(months),
      m_isTrace(isTrace)
{
    for (const cHousehold::cAccount& account : household.Accounts()) {
        m_user.AccountOf.insert(account.Iban, account.Name);
    }
}

cHouseholdPlay::cFigures cHouseholdPlay::Play()
{
    for (int month = 0; month < m_months; ++month) {
        PlayMonth(month);
    }
    CheckRows();
    m_figures.Questions = static_cast<int>(m_user.Asked.size());
    if (m_isTrace) {
        m_figures.Faults.append(m_user.Asked + m_user.Shown);
    }
    return m_figures;
}

void cHouseholdPlay::PlayMonth(int month)
{
    const QDate until = m_first.addMonths(month + 1).addDays(-1);
    m_book.Clock.Day = until.addDays(1);
    TypeNotes(until);
    m_review.Files().ImportFiles(WriteStatements(month), m_progress);
    TakeAll();
    Check(month);
}

void cHouseholdPlay::TypeNotes(QDate until)
{
    for (; m_typed < m_household.Notes().size() && m_household.Notes().at(m_typed).TypedOn <= until; ++m_typed) {
        const cHousehold::cNote& note = m_household.Notes().at(m_typed);
        cEntryItem entry;
        entry.EntryDate = note.Day;
        entry.EntryDateEnd = modRecurrence::OpenEnd;
        entry.EntryType = note.Cents > 0 ? modWord::Einnahme : modWord::Ausgabe;
        entry.EntryInterval = note.IsMonthly ? u"Monatlich"_s : modWord::Einmalig;
        entry.EntryAccount = note.Account;
        entry.EntryCategory = note.Category;
        entry.EntryValue = qAbs(note.Cents);
        entry.EntryDescription = note.Text;
        if (!m_data.AddNewEntry(entry)) {
            qFatal("note not added");
        }
    }
}

QStringList cHouseholdPlay::WriteStatements(int month)
{
    const QDate from = m_first.addMonths(month).addDays(month == 0 ? 0 : -overlap);
    const QDate to = m_first.addMonths(month + 1).addDays(-1);
    QStringList paths;
    int number = 0;
    for (const cHousehold::cAccount& account : m_household.Accounts()) {
        const QByteArray text = modStatement::Text(account, from, to);
        const QString path =
            m_folder.filePath(u"auszug-%1-%2"_s.arg(month + 1).arg(++number) + modStatement::Ending(account.Format));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
            qFatal("statement not written");
        }
        if (!text.isEmpty()) {
            paths.append(path);
        }
    }
    return paths;
}

void cHouseholdPlay::TakeAll()
{
    const auto open = [this] {
        QSet<int> ids;
        for (const cImportEntry& row : m_data.GetImportEntries()) {
            if (!row.ImportAssigned) {
                ids.insert(row.ID);
            }
        }
        return ids;
    };
    const QSet<int> before = open();
    m_review.AcceptProposals(m_progress);
    const QSet<int> left = open();
    m_sure += before - left;
    LookThrough();
}

// What the proposals left open: the list leads from row to row, and Enter takes each as it is shown.
void cHouseholdPlay::LookThrough()
{
    cStagedGuide& guide = m_review.Guide();
    QList<int> rows = guide.After({}, {}).Rows;
    while (!rows.isEmpty()) {
        const cStagedGuide::cBefore before = guide.Before(rows);
        m_review.Book(rows, m_progress);
        const QList<int> open = m_review.Rows().OpenIds();
        rows.removeIf([&](int id) { return !open.contains(id); });
        rows = guide.After(before, rows).Rows;
    }
}

void cHouseholdPlay::Check(int month)
{
    for (const cHousehold::cAccount& account : m_household.Accounts()) {
        CheckAccount(account, m_first.addMonths(month + 1).addDays(-1));
    }
}

void cHouseholdPlay::CheckAccount(const cHousehold::cAccount& account, QDate until)
{
    const auto isCovered = [&](const cHousehold::cBooking& booking) { return booking.Day <= until; };
    const auto covered = std::count_if(account.Bookings.begin(), account.Bookings.end(), isCovered);
    if (covered == 0) {
        return;
    }
    const QDate last = account.Bookings.at(covered - 1).Day;
    QMap<QDate, qint64> byDay;
    cEntryQuery query;
    query.End = last;
    query.Account = cAccountMap(m_data, m_settings).AccountOf(account.Iban);
    const cEntryItemList entries = m_data.GetEntries(query);
    for (const cEntryItem& entry : entries) {
        byDay[entry.EntryDate] += modBalance::Effect(entry, query.Account);
    }
    for (qsizetype i = 0; i < covered; ++i) {
        byDay[account.Bookings.at(i).Day] -= account.Bookings.at(i).Cents;
    }
    qint64 difference = -account.Opening;
    qint64 told = 0;
    QStringList turns; // days on which the difference becomes another one
    for (QDate day = account.Bookings.first().Day; day <= last; day = day.addDays(1)) {
        while (!byDay.isEmpty() && byDay.firstKey() <= day) {
            difference += byDay.take(byDay.firstKey());
        }
        ++m_figures.Days;
        m_figures.WrongDays += difference == 0 ? 0 : 1;
        if (difference != told) {
            told = difference;
            turns.append(day.toString(Qt::ISODate) + u": "_s + Euros(difference));
        }
    }
    if (!turns.isEmpty()) {
        m_figures.Faults.append(u"%1 up to %2, book less bank: %3"_s.arg(
            account.Name, until.toString(Qt::ISODate), turns.first(qMin(turns.size(), shownTurns)).join(u", "_s)));
    }
}

void cHouseholdPlay::CheckRows()
{
    const cImportEntryList rows = m_data.GetImportEntries();
    const QDate end = m_first.addMonths(m_months);
    for (const cHousehold::cAccount& account : m_household.Accounts()) {
        cWanted wanted;
        for (const cHousehold::cBooking& booking : account.Bookings) {
            if (booking.Day < end) {
                wanted.insert({booking.Day, booking.Cents}, &booking);
                ++m_figures.Rows;
            }
        }
        for (const cImportEntry& row : rows) {
            if (row.ImportAccount == account.Iban) {
                CheckRow(row, wanted);
            }
        }
        m_figures.Lost += static_cast<int>(wanted.size());
        for (const cHousehold::cBooking* booking : std::as_const(wanted)) {
            m_figures.Mistakes.append(
                u"lost: %1 %2 %3"_s.arg(booking->Day.toString(Qt::ISODate), Euros(booking->Cents), booking->Name));
        }
    }
}

// Takes what the row stands for out of what is wanted.
void cHouseholdPlay::CheckRow(const cImportEntry& row, cWanted& wanted)
{
    const std::pair key(row.ImportDate, row.ImportValue);
    QList<const cHousehold::cBooking*> bookings = wanted.values(key);
    std::stable_sort(bookings.begin(), bookings.end(), [&](const auto* a, const auto* b) {
        return (a->Iban == row.ImportBeneficiaryAccount) > (b->Iban == row.ImportBeneficiaryAccount);
    });
    m_figures.Open += row.ImportAssigned ? 0 : 1;
    if (bookings.isEmpty()) {
        ++m_figures.Lost;
        m_figures.Mistakes.append(u"twice: %1 %2 %3"_s.arg(row.ImportDate.toString(Qt::ISODate), Euros(row.ImportValue),
                                                           row.ImportBeneficiary));
        return;
    }
    wanted.remove(key, bookings.constFirst());
    m_figures.Sure += m_sure.contains(row.ID) ? 1 : 0;
    if (!bookings.constFirst()->Category.isEmpty() && row.ImportAssigned) {
        CheckCategory(row, *bookings.constFirst());
    }
}

void cHouseholdPlay::CheckCategory(const cImportEntry& row, const cHousehold::cBooking& booking)
{
    const QString category = m_data.LoadEntry(row.ImportAssignedEntry).value_or(cEntryItem()).EntryCategory;
    ++m_figures.Known;
    if (booking.Category == category) {
        ++m_figures.Right;
        return;
    }
    m_figures.SureWrong += m_sure.contains(row.ID) ? 1 : 0;
    m_figures.Mistakes.append(u"%1 %2 as %3%4"_s.arg(booking.Name, booking.Purpose, category,
                                                     m_sure.contains(row.ID) ? u" (sure)"_s : QString()));
}
