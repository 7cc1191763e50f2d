#include "views/statement/cAssignListModel.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "import/match/cMatcher.h"
#include "import/match/modMatchScore.h"
#include "import/stage/cAccountMap.h"
#include "views/ledger/modImportText.h"
#include "views/look/modMoneyTone.h"

#include <algorithm>

namespace {

bool IsNumber(int column)
{
    return column == cAssignListModel::Amount || column == cAssignListModel::Score;
}

} // namespace

cAssignListModel::cAssignListModel(cMatchFlow& flow, const cImportEntry& row, QObject* parent)
    : QAbstractTableModel(parent),
      m_flow(flow),
      m_row(row)
{
    Read();
}

cAssignListModel::~cAssignListModel() = default;

void cAssignListModel::Read()
{
    const cMatchFlow::cParts& parts = m_flow.Parts();
    const eCandidates which = m_scope == eScope::All ? eCandidates::All : eCandidates::Likely;
    const QList<cMatchCandidate> found =
        cMatcher(m_flow.Tools().Data, parts.Hive, parts.Accounts).Candidates(m_row.ID, which);
    m_candidates.assign(found.begin(), found.end());
}

void cAssignListModel::SetScope(eScope scope)
{
    beginResetModel();
    m_scope = scope;
    Read();
    endResetModel();
}

QString cAssignListModel::RowText() const
{
    return modImportText::Row(m_row, m_flow.Tools().Format);
}

int cAssignListModel::Proposed() const
{
    const auto free = std::find_if(m_candidates.begin(), m_candidates.end(),
                                   [](const cMatchCandidate& candidate) { return !candidate.IsTaken; });
    if (free != m_candidates.end()) {
        return static_cast<int>(free - m_candidates.begin());
    }
    return m_candidates.empty() ? -1 : 0;
}

bool cAssignListModel::Assign(int place)
{
    if (place < 0 || place >= rowCount()) {
        return false;
    }
    const cMatchFlow::cOutcome outcome = m_flow.Assign(m_row.ID, m_candidates.at(static_cast<std::size_t>(place)));
    if (!outcome.Lines.isEmpty()) {
        Q_EMIT Tried(outcome);
    }
    return outcome.IsDone;
}

QString cAssignListModel::EmptyTitle() const
{
    return cText::Tr("Kein passender Eintrag");
}

QString cAssignListModel::EmptyHint() const
{
    const QString account = m_flow.Parts().Accounts.AccountOf(m_row.ImportAccount);
    if (account.isEmpty()) {
        return modImportText::NoAccountToMatch(m_row.ImportAccount);
    }
    const QStringList values{account, QString::number(modMatchScore::FarthestDays), modDate::ToText(m_row.ImportDate)};
    if (m_scope == eScope::All) {
        return cText::Tr("Im Konto {0} gibt es bis {1} Tage vor und nach dem {2} keinen Eintrag in dieser Richtung. "
                         "„Buchen“ macht aus dem Umsatz einen neuen.",
                         values);
    }
    return cText::Tr("Gesucht wurde im Konto {0} nach Einträgen mit ähnlichem Betrag, bis {1} Tage vor und nach dem "
                     "{2}. „Buchen“ macht aus dem Umsatz einen neuen Eintrag.",
                     values);
}

int cAssignListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_candidates.size());
}

int cAssignListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString cAssignListModel::Text(const cMatchCandidate& candidate, int column) const
{
    switch (column) {
    case Date: return modDate::ToText(candidate.Entry.EntryDate);
    case Description: return candidate.Entry.EntryDescription;
    case Category: return candidate.Entry.EntryCategory;
    case Amount: return m_flow.Tools().Format.Cents(candidate.Cents);
    case Score: return modImportText::Percent(candidate.Score);
    case Reason:
        return candidate.IsTaken ? cText::Tr("hat schon einen Umsatz; {0}", {candidate.Reason}) : candidate.Reason;
    default: return {};
    }
}

QVariant cAssignListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const cMatchCandidate& candidate = m_candidates.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: return Text(candidate, index.column());
    case Qt::TextAlignmentRole:
        return IsNumber(index.column()) ? QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case ToneRole: return QVariant::fromValue(modMoneyTone::Of(candidate.Cents));
    case TakenRole: return candidate.IsTaken;
    default: return {};
    }
}

QVariant cAssignListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::Alignment(IsNumber(section) ? Qt::AlignRight : Qt::AlignLeft)
                                   | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Date: return cText::Tr("Datum");
    case Description: return cText::Tr("Beschreibung");
    case Category: return cText::Tr("Kategorie");
    case Amount: return cText::Tr("Betrag");
    case Score: return cText::Tr("Passt zu");
    case Reason: return cText::Tr("Grund");
    default: return {};
    }
}
