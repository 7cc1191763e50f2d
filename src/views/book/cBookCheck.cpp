#include "views/book/cBookCheck.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "model/modBalance.h"
#include "model/modRecurrence.h"
#include "store/cDataAccess.h"
#include "views/receipt/cReceipts.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array<const char*, cBookCheck::ColumnCount> titles{
    QT_TRANSLATE_NOOP("cText", "Was nicht stimmt"), QT_TRANSLATE_NOOP("cText", "Datum"),
    QT_TRANSLATE_NOOP("cText", "Beschreibung"), QT_TRANSLATE_NOOP("cText", "Konto"),
    QT_TRANSLATE_NOOP("cText", "Betrag")};

QString TextOf(eEntryFault fault, const cFaultyEntry& entry)
{
    switch (fault) {
    case eEntryFault::Day:
        return entry.DayText.isEmpty() ? cText::Tr("kein Tag") : cText::Tr("Tag '{0}' nicht lesbar", {entry.DayText});
    case eEntryFault::Kind:
        return entry.Entry.EntryType.isEmpty() ? cText::Tr("keine Buchungsart")
                                               : cText::Tr("Buchungsart '{0}' unbekannt", {entry.Entry.EntryType});
    case eEntryFault::Interval:
        return entry.Entry.EntryInterval.isEmpty()
            ? cText::Tr("kein Intervall")
            : cText::Tr("Intervall '{0}' unbekannt", {entry.Entry.EntryInterval});
    case eEntryFault::End:
        return cText::Tr("endet am {0}, vor dem ersten Tag",
                         {modDate::ToText(modRecurrence::EffectiveEnd(entry.Entry.EntryDateEnd))});
    case eEntryFault::Length:
        return cText::Tr("zählt nur bis zum {0}, es sind zu viele Vorkommen; \"Ab hier\" an diesem Tag setzt sie fort",
                         {modDate::ToText(modRecurrence::CutOffAt(entry.Entry))});
    case eEntryFault::Amount:
        return entry.AmountText.isEmpty() ? cText::Tr("kein Betrag")
                                          : cText::Tr("Betrag '{0}' nicht lesbar", {entry.AmountText});
    case eEntryFault::Account: return cText::Tr("kein Konto");
    case eEntryFault::Target: return cText::Tr("kein Zielkonto");
    }
    return {};
}

} // namespace

cBookCheck::cBookCheck(cDataAccess& data, const cAmountFormat& format, QDate today, QObject* parent)
    : QAbstractTableModel(parent),
      m_data(data),
      m_format(format),
      m_today(today)
{
    Reload();
}

void cBookCheck::Reload()
{
    beginResetModel();
    m_problems = m_data.GetFileProblems();
    m_missing = m_data.GetMissingParts();
    const std::optional<QList<cFaultyEntry>> entries = m_data.GetFaultyEntries(m_today);
    m_isRead = entries.has_value();
    m_entries = entries.value_or(QList<cFaultyEntry>());
    m_receipts = cReceipts::CheckText(m_data);
    endResetModel();
}

bool cBookCheck::IsSound() const
{
    return IsFileSound() && m_isRead && m_entries.isEmpty();
}

QString cBookCheck::FileText() const
{
    if (!m_problems.isEmpty()) {
        return cText::Tr("Die Datei ist beschädigt. Bitte spielen Sie eine Datensicherung zurück.");
    }
    return m_missing.isEmpty() ? cText::Tr("Die Datei ist unbeschädigt.")
                               : cText::Tr("Die Datei ist unvollständig. Bitte spielen Sie eine Datensicherung zurück. "
                                           "Es fehlt: {0}",
                                           {m_missing.join(u", "_s)});
}

QString cBookCheck::EntriesText() const
{
    if (!m_isRead) {
        return cText::Tr("Die Einträge konnten nicht gelesen werden.");
    }
    if (m_entries.isEmpty()) {
        return cText::Tr("Alle Einträge sind zu sehen und zählen mit.");
    }
    return m_entries.size() == 1 ? cText::Tr("1 Eintrag ist nicht überall zu sehen oder zählt nicht richtig mit:")
                                 : cText::Tr("{0} Einträge sind nicht überall zu sehen oder zählen nicht richtig mit:",
                                             {QString::number(m_entries.size())});
}

bool cBookCheck::CanDelete() const
{
    return !m_data.IsReadOnly();
}

int cBookCheck::EntryAt(int row) const
{
    return row >= 0 && row < m_entries.size() ? m_entries.at(row).Entry.ID : 0;
}

QString cBookCheck::FaultText(const cFaultyEntry& entry)
{
    QStringList texts;
    for (const eEntryFault fault : entry.Faults) {
        texts.append(TextOf(fault, entry));
    }
    return texts.join(u"; "_s);
}

int cBookCheck::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

int cBookCheck::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString cBookCheck::CellText(const cFaultyEntry& entry, int column) const
{
    switch (column) {
    case Fault: return FaultText(entry);
    case Day: return modDate::ToText(entry.Entry.EntryDate);
    case Text: return entry.Entry.Name();
    case Account: return entry.Entry.EntryAccount;
    case Amount:
        return entry.Faults.contains(eEntryFault::Amount) ? entry.AmountText
                                                          : m_format.Cents(modBalance::Effect(entry.Entry, {}));
    default: return {};
    }
}

QVariant cBookCheck::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    if (role == Qt::TextAlignmentRole && index.column() == Amount) {
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    }
    return role == Qt::DisplayRole || role == Qt::ToolTipRole ? CellText(m_entries.at(index.row()), index.column())
                                                              : QVariant();
}

QVariant cBookCheck::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) {
        return {};
    }
    if (role == Qt::TextAlignmentRole && section == Amount) {
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    }
    return role == Qt::DisplayRole ? cText::Tr(titles.at(static_cast<std::size_t>(section))) : QVariant();
}
