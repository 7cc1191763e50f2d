#include "views/ledger/cStatementListModel.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/modCount.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "core/modReceiptUse.h"
#include "import/read/modAccountNumber.h"
#include "import/stage/cAccountMap.h"
#include "model/modCutText.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/common/modUnread.h"
#include "views/ledger/modBalanceText.h"
#include "views/ledger/modImportText.h"
#include "views/list/cListFilter.h"
#include "views/look/modMoneyTone.h"
#include "views/report/modPeriodText.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iterator>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int typingPause = 120; // milliseconds: longer than between two letters, shorter than a person waits

constexpr std::array<const char*, cStatementListModel::ColumnCount> titles{
    QT_TRANSLATE_NOOP("cText", "Datum"),
    QT_TRANSLATE_NOOP("cText", "Empfänger / Auftraggeber"),
    QT_TRANSLATE_NOOP("cText", "Verwendungszweck"),
    QT_TRANSLATE_NOOP("cText", "Betrag"),
    QT_TRANSLATE_NOOP("cText", "Saldo"),
    QT_TRANSLATE_NOOP("cText", "Status"),
    QT_TRANSLATE_NOOP("cText", "Kategorie")};

bool IsMoney(int column)
{
    return column == cStatementListModel::Amount || column == cStatementListModel::Balance;
}

QString OneLine(const QString& text)
{
    return text.simplified();
}

} // namespace

cStatementListModel::cStatementListModel(const cBookTools& tools, QObject* parent)
    : QAbstractTableModel(parent),
      m_tools(tools),
      m_ledger(tools.Data, tools.Settings),
      m_differences(tools),
      m_period(modWord::AlleBuchungen)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(typingPause);
    connect(&m_timer, &QTimer::timeout, this, [this] { SetFilter(m_typed); });
    m_numbers = m_ledger.Numbers();
    TakeOtherNumbers();
    m_numbers.sort();
    m_ledger.LoadNewest();
    if (!m_numbers.isEmpty() && !m_numbers.contains(Number())) {
        m_ledger.Load(m_numbers.constFirst());
    }
    ShowAccount();
}

cStatementListModel::~cStatementListModel() = default;

// There is nothing to see of them yet, but their statements may be there on paper.
void cStatementListModel::TakeOtherNumbers()
{
    QStringList others = modReceiptUse::Papers(m_tools.Data).keys();
    const QList<std::pair<QString, QString>> mapping = cAccountMap(m_tools.Data, m_tools.Settings).Mapping();
    for (const auto& [number, account] : mapping) {
        others.append(number);
    }
    for (const QString& number : std::as_const(others)) {
        if (!m_numbers.contains(number)) {
            m_numbers.append(number);
        }
    }
}

QString cStatementListModel::PapersText() const
{
    const qsizetype count = modReceiptUse::PapersOf(m_tools.Settings, Number()).size();
    return count == 0 ? cText::Tr("&PDF-Auszüge…") : cText::Tr("&PDF-Auszüge ({0})…", {QString::number(count)});
}

QStringList cStatementListModel::NumbersMeant(const QString& text) const
{
    QStringList meant;
    std::copy_if(m_numbers.begin(), m_numbers.end(), std::back_inserter(meant), [&](const QString& number) {
        return modAccountNumber::IsSame(text, {}, number)
            || m_ledger.AccountOf(number).compare(text, Qt::CaseInsensitive) == 0;
    });
    return meant;
}

QStringList cStatementListModel::AccountTexts() const
{
    QStringList texts;
    for (const QString& number : m_numbers) {
        const QString account = m_ledger.AccountOf(number);
        const QString shown = number.isEmpty() ? cText::Tr("ohne Kontonummer") : number;
        texts.append(account.isEmpty() ? cText::Tr("{0} (kein Konto)", {shown}) : account + u" – " + shown);
    }
    return texts;
}

void cStatementListModel::ChooseAccount(const QString& number)
{
    m_ledger.Load(number);
    ShowAccount();
}

void cStatementListModel::ShowAccount()
{
    m_book = m_ledger.CompareWithBook();
    m_filter.reset();
    m_categories.clear();
    Show();
}

void cStatementListModel::Reload()
{
    ChooseAccount(Number());
}

void cStatementListModel::ChoosePeriod(const QString& period)
{
    const modPeriod::cRange before = Range();
    m_period = period;
    if (IsFreePeriod()) {
        m_free = before; // the days stay until others are typed
    }
    Show();
}

void cStatementListModel::ChooseFreeRange(const modPeriod::cRange& range)
{
    if (IsFreePeriod() && m_free != range) {
        m_free = modPeriod::Typed(range, m_free);
        Show();
    }
}

bool cStatementListModel::IsFreePeriod() const
{
    return m_period == modWord::FreierZeitraum;
}

modPeriod::cRange cStatementListModel::Range() const
{
    return modPeriod::Range(m_period, Today(), m_free);
}

QDate cStatementListModel::Today() const
{
    return m_tools.Clock.Today();
}

void cStatementListModel::TypeFilter(const QString& text)
{
    m_typed = text;
    m_timer.start();
}

void cStatementListModel::SetFilter(const QString& text)
{
    m_timer.stop();
    m_typed = text;
    const QList<modFold::cFolded> words = modFold::Words(text);
    if (words == m_words) {
        return;
    }
    // What was left out while fewer letters stood there stays out.
    const bool isNarrower = cListFilter::IsNarrower(words, m_words);
    m_words = words;
    beginResetModel();
    if (!isNarrower) {
        m_shown = m_inPeriod;
    }
    Filter();
    endResetModel();
    Q_EMIT Changed();
}

void cStatementListModel::Show()
{
    const modPeriod::cRange range = Range();
    const cImportEntryList& rows = m_ledger.Rows();
    const auto first = !range.Start.isValid()
        ? rows.begin()
        : std::lower_bound(rows.begin(), rows.end(), range.Start,
                           [](const cImportEntry& row, QDate day) { return row.ImportDate < day; });
    const auto last = !range.End.isValid()
        ? rows.end()
        : std::upper_bound(rows.begin(), rows.end(), range.End,
                           [](QDate day, const cImportEntry& row) { return day < row.ImportDate; });
    beginResetModel();
    m_inPeriod.resize(static_cast<std::size_t>(qMax<qsizetype>(0, last - first)));
    std::iota(m_inPeriod.begin(), m_inPeriod.end(), static_cast<int>(first - rows.begin()));
    m_shown = m_inPeriod;
    Filter();
    endResetModel();
    m_differences.Show(Number(), range.End);
    Q_EMIT Changed();
}

void cStatementListModel::Filter()
{
    if (!m_words.isEmpty()) {
        m_shown = Texts().Find(m_words, m_shown, [this](int row) { return m_ledger.CentsOf(row); });
    }
    m_income = 0;
    m_expense = 0;
    for (const int row : m_shown) {
        const qint64 cents = m_ledger.CentsOf(row);
        (cents < 0 ? m_expense : m_income) += cents;
    }
}

cListFilter& cStatementListModel::Texts()
{
    if (!m_filter) {
        m_filter = std::make_unique<cListFilter>(m_tools.Format);
        for (const cImportEntry& row : m_ledger.Rows()) {
            const QStringList texts{modCutText::Name(row.ImportBeneficiary), modCutText::Purpose(row.ImportPurpose),
                                    row.ImportType, row.ImportBeneficiaryAccount};
            const int text = m_filter->AddText(OneLine(texts.join(u' ')));
            m_filter->AddRow(text, text, row.ImportDate);
        }
    }
    return *m_filter;
}

QStringList cStatementListModel::Findings() const
{
    if (m_ledger.Rows().isEmpty()) {
        return {};
    }
    QStringList lines = modBalanceText::Bank(m_ledger, m_tools.Format);
    lines.append(modBalanceText::Book(m_book, m_ledger.AccountOf(Number()), m_tools.Format));
    lines.removeAll(QString());
    return lines;
}

cStatementListModel::eFinding cStatementListModel::Finding() const
{
    using eState = cBookComparison::eState;
    if (!m_ledger.Check().Faults.isEmpty() || m_book.State == eState::Differs) {
        return eFinding::Bad;
    }
    return m_ledger.Check().Points.size() > 1 && m_book.State == eState::Agrees ? eFinding::Good : eFinding::Unknown;
}

cSumTexts cStatementListModel::SumTexts() const
{
    return modEntrySums::Texts({m_income, -m_expense}, modCount::Rows(static_cast<qsizetype>(m_shown.size())),
                               m_tools.Format, IsUnread());
}

bool cStatementListModel::IsUnread() const
{
    return modUnread::IsMissing(m_tools.Data, m_ledger.Rows().size());
}

QString cStatementListModel::EmptyTitle() const
{
    if (IsUnread()) {
        return modUnread::Title();
    }
    return m_ledger.Rows().isEmpty() ? cText::Tr("Es ist noch kein Kontoauszug eingelesen.")
                                     : cText::Tr("Kein Umsatz gefunden");
}

QString cStatementListModel::EmptyHint() const
{
    if (IsUnread()) {
        return modUnread::Hint();
    }
    if (m_ledger.Rows().isEmpty()) {
        return cText::Tr("Lesen Sie mit „Kontoauszug importieren“ (Strg+I) eine Datei Ihrer Bank ein.");
    }
    return cText::Tr("Wählen Sie einen anderen Zeitraum, oder ändern Sie den Suchtext.");
}

std::pair<qsizetype, qsizetype> cStatementListModel::Places() const
{
    return m_inPeriod.empty() ? std::pair<qsizetype, qsizetype>()
                              : std::pair<qsizetype, qsizetype>(m_inPeriod.front(), m_inPeriod.back() + 1);
}

std::optional<std::pair<int, QDate>> cStatementListModel::EntryOf(int row) const
{
    if (row < 0 || row >= rowCount()) {
        return std::nullopt;
    }
    const cImportEntry& entry = m_ledger.Rows().at(RowAt(row));
    return entry.ImportAssigned && entry.ImportAssignedEntry > -1
        ? std::optional(std::pair(entry.ImportAssignedEntry, entry.ImportDate))
        : std::nullopt;
}

QString cStatementListModel::TextOf(const std::vector<int>& rows) const
{
    QStringList lines;
    const auto add = [&](const auto& cell) {
        QStringList cells;
        for (int column = 0; column < ColumnCount; ++column) {
            cells.append(cell(column));
        }
        lines.append(cells.join(u'\t'));
    };
    add([](int column) { return cText::Tr(titles.at(static_cast<std::size_t>(column))); });
    for (const int row : rows) {
        add([&](int column) { return Text(RowAt(row), column); });
    }
    return lines.join(u'\n') + u'\n';
}

QString cStatementListModel::Title() const
{
    const QString account = m_ledger.AccountOf(Number());
    return cText::Tr("Kontoauszug {0}", {account.isEmpty() ? Number() : account});
}

QStringList cStatementListModel::Lines() const
{
    QStringList lines{cText::Tr("Kontonummer: {0}", {Number()}), modPeriodText::Named(m_period, Range())};
    if (!m_words.isEmpty()) {
        lines.append(cText::Tr("Suchtext: {0}", {m_typed}));
    }
    return lines;
}

cEntryExtract cStatementListModel::Extract() const
{
    cEntryExtract extract;
    extract.Title = Title();
    extract.View = Lines();
    const QString account = m_ledger.AccountOf(Number());
    extract.Account = account.isEmpty() ? Number() : account;
    extract.Income = m_income;
    extract.Expense = -m_expense;
    for (const int place : m_shown) {
        const cImportEntry& row = m_ledger.Rows().at(place);
        cEntryExtract::cRow out;
        out.Cents = m_ledger.CentsOf(place);
        out.Effect = out.Cents;
        out.Balance = m_ledger.BalanceAfter(place + 1);
        out.Entry.EntryDate = row.ImportDate;
        out.Entry.EntryDateEnd = row.ImportDate;
        out.Entry.EntryType = out.Cents < 0 ? modWord::Ausgabe : modWord::Einnahme;
        out.Entry.EntryInterval = modWord::Einmalig;
        out.Entry.EntryAccount = extract.Account;
        out.Entry.EntryCategory = CategoryOf(row);
        out.Entry.EntryValue = std::abs(out.Cents);
        QStringList texts{Text(place, Counterparty), Text(place, Purpose)};
        texts.removeAll(QString());
        out.Entry.EntryDescription = texts.join(u", "_s);
        extract.Rows.push_back(out);
    }
    return extract;
}

int cStatementListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

int cStatementListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

const QString& cStatementListModel::CategoryOf(const cImportEntry& row) const
{
    const int id = row.ImportAssigned ? row.ImportAssignedEntry : -1;
    auto found = m_categories.find(id);
    if (found == m_categories.end()) {
        const std::optional<cEntryItem> entry = id > -1 ? m_tools.Data.LoadEntry(id) : std::nullopt;
        found = m_categories.insert(id, entry ? entry->EntryCategory : QString());
    }
    return *found;
}

QString cStatementListModel::Text(qsizetype row, int column) const
{
    const cImportEntry& entry = m_ledger.Rows().at(row);
    switch (column) {
    case Day: return modDate::ToText(entry.ImportDate);
    case Counterparty: return OneLine(modCutText::Name(entry.ImportBeneficiary));
    case Purpose:
        return OneLine(entry.ImportPurpose.isEmpty() ? entry.ImportType : modCutText::Purpose(entry.ImportPurpose));
    case Amount: return m_tools.Format.Cents(m_ledger.CentsOf(row));
    case Balance: return m_tools.Format.Cents(m_ledger.BalanceAfter(row + 1));
    case State: return entry.ImportAssigned ? cText::Tr("gebucht") : cText::Tr("offen");
    case Category: return CategoryOf(entry);
    default: return {};
    }
}

QVariant cStatementListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const qsizetype row = RowAt(index.row());
    const int column = index.column();
    const qint64 cents = column == Balance ? m_ledger.BalanceAfter(row + 1) : m_ledger.CentsOf(row);
    switch (role) {
    case Qt::DisplayRole: return Text(row, column);
    case Qt::ToolTipRole:
        return column == Counterparty || column == Purpose ? modImportText::Details(m_ledger.Rows().at(row))
                                                           : Text(row, column);
    case Qt::TextAlignmentRole:
        return IsMoney(column) ? QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case ToneRole:
        return QVariant::fromValue(column == Balance ? modMoneyTone::OfBalance(cents) : modMoneyTone::Of(cents));
    case BookedRole: return m_ledger.Rows().at(row).ImportAssigned;
    default: return {};
    }
}

QVariant cStatementListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::Alignment(IsMoney(section) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    return role == Qt::DisplayRole ? QVariant(cText::Tr(titles.at(static_cast<std::size_t>(section)))) : QVariant();
}
