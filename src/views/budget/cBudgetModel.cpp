#include "views/budget/cBudgetModel.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDayNames.h"
#include "base/modSum.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "store/cDataAccess.h"
#include "views/budget/modLimits.h"
#include "views/common/modUnread.h"
#include "views/common/modUnsaved.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString ShortName(QDate month)
{
    return modDayNames::Language().toString(month, u"MMM"_s);
}

QString MonthTitle(int year, int month)
{
    return modDayNames::MonthText(modBudget::MonthOf(year, month));
}

} // namespace

cBudgetModel::cBudgetModel(const cBookTools& tools, QObject* parent)
    : QAbstractTableModel(parent),
      m_tools(tools),
      m_edit(tools, tools.Clock.Today().year()),
      m_month(tools.Clock.Today().month())
{
    m_looks = cCategoryLooks::Read(m_tools.Data);
    m_lines = MakeLines();
}

QList<cBudgetModel::cLine> cBudgetModel::MakeLines() const
{
    QList<cLine> lines;
    cLine sum{cText::Tr("Summe")};
    const QList<cBudgetEdit::cRow>& rows = m_edit.Rows();
    qsizetype head = -1;
    for (int row = 0; row < rows.size(); ++row) {
        if (!m_edit.IsShown(row)) {
            continue;
        }
        const QString main = modTemplate::MainOf(rows.at(row).Path);
        if (head < 0 || lines.at(head).Label != main) {
            head = lines.size();
            lines.append({main});
        }
        const QString sub = modTemplate::SubOf(rows.at(row).Path);
        lines.append({sub.isEmpty() ? cText::Tr("Sonstiges ({0})", {main}) : sub, row});
        lines[head].Rows.append(row);
        sum.Rows.append(row);
    }
    if (!lines.isEmpty()) {
        lines.append(sum);
    }
    return lines;
}

bool cBudgetModel::ShowYear(int year)
{
    if (year == ShownYear()) {
        return true;
    }
    if (!IsFaultless()) {
        return false;
    }
    m_edit.ShowYear(year);
    // Other ones where a hidden category was spent on in one of the years.
    if (const QList<cLine> lines = MakeLines(); lines != m_lines) {
        beginResetModel();
        m_lines = lines;
        endResetModel();
    }
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, Year);
    Changed();
    return true;
}

void cBudgetModel::ShowMonth(int month)
{
    m_month = month;
    Q_EMIT headerDataChanged(Qt::Horizontal, Spent, Left);
    Changed();
}

void cBudgetModel::Changed()
{
    if (!m_lines.isEmpty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, Year));
    }
}

bool cBudgetModel::IsReadOnly() const
{
    return m_tools.Data.IsReadOnly() || !m_edit.IsRead();
}

QString cBudgetModel::Hint() const
{
    if (!m_edit.IsRead()) {
        return modUnread::Title() + u". "_s + modUnread::Hint();
    }
    return m_lines.isEmpty() ? cText::Tr("Das Buch hat noch keine Kategorien für Ausgaben. Sie legen sie unter "
                                         "„Extras“, „Kategorie/Konto bearbeiten“ an.")
                             : QString();
}

QString cBudgetModel::SumNote() const
{
    return m_lines.isEmpty() ? QString() : modLimits::SumNote();
}

int cBudgetModel::MonthOf(int column)
{
    return column >= FirstMonth && column <= LastMonth ? column - FirstMonth + 1 : 0;
}

int cBudgetModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

int cBudgetModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

bool cBudgetModel::CanType(const cLine& line, int column) const
{
    const bool isAmount = MonthOf(column) > 0 || column == Year || (column == Plain && line.Row >= 0);
    return line.Row >= 0 && isAmount && !IsReadOnly() && (column != Plain || m_edit.CanSetPlain(line.Row));
}

Qt::ItemFlags cBudgetModel::flags(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    const cLine& line = m_lines.at(index.row());
    flags.setFlag(Qt::ItemIsEditable, CanType(line, index.column()));
    flags.setFlag(Qt::ItemIsUserCheckable, line.Row >= 0 && index.column() == Carry && !IsReadOnly());
    return flags;
}

std::optional<qint64> cBudgetModel::Value(int row, int column) const
{
    const int month = MonthOf(column);
    const std::optional<cLimit> shown = m_edit.Available(row, m_month);
    switch (column) {
    case Plain: {
        const qint64 cents = modTemplate::LimitCents(m_edit.Rows().at(row).Item, 1);
        return cents == 0 ? std::nullopt : std::optional(cents);
    }
    case Spent: {
        const qint64 cents = m_edit.Spent(row, m_month);
        return shown || cents != 0 ? std::optional(cents) : std::nullopt;
    }
    case Left: return shown ? std::optional(shown->Total() - m_edit.Spent(row, m_month)) : std::nullopt;
    case Carry: return std::nullopt;
    case Year: {
        const qint64 cents = m_edit.YearLimit(row);
        return cents == 0 && !m_edit.Available(row, modBudget::MonthsOfYear) ? std::nullopt : std::optional(cents);
    }
    default:
        return m_edit.Own(row, month) || m_edit.Limit(row, month) != 0 ? std::optional(m_edit.Limit(row, month))
                                                                       : std::nullopt;
    }
}

// Spending counts where there is a limit to compare it with, as in the reports: then what is left is the difference.
std::optional<qint64> cBudgetModel::Sum(const cLine& line, int column) const
{
    if (column == Carry) {
        return std::nullopt;
    }
    qint64 sum = 0;
    for (const int row : line.Rows) {
        if (column != Spent || m_edit.Available(row, m_month)) {
            sum += Value(row, column).value_or(0);
        }
    }
    return sum;
}

QString cBudgetModel::Text(const cLine& line, int column) const
{
    const auto faulty = m_faulty.constFind({line.Row, column});
    if (faulty != m_faulty.constEnd()) {
        return *faulty;
    }
    const std::optional<qint64> cents = line.Row < 0 ? Sum(line, column) : Value(line.Row, column);
    return cents ? m_tools.Format.Cents(*cents) : QString();
}

QString cBudgetModel::EditText(int row, int column) const
{
    const auto faulty = m_faulty.constFind({row, column});
    if (faulty != m_faulty.constEnd()) {
        return *faulty;
    }
    const int month = MonthOf(column);
    const std::optional<qint64> cents = month > 0 ? m_edit.Own(row, month) : Value(row, column);
    return cents ? modSum::ToText(*cents, m_tools.Format.Decimal()) : QString();
}

cBudgetModel::eCellTone cBudgetModel::Tone(const cLine& line, int column) const
{
    if (m_faulty.contains({line.Row, column})) {
        return Bad;
    }
    if (column == Left) {
        const std::optional<qint64> left = line.Row < 0 ? Sum(line, Left) : Value(line.Row, Left);
        return left.value_or(0) < 0 ? Bad : Normal;
    }
    if (line.Row < 0) {
        return Normal;
    }
    const bool isOwn = MonthOf(column) > 0 && m_edit.Own(line.Row, MonthOf(column));
    const bool isCompared = column == Spent && m_edit.Available(line.Row, m_month);
    const bool isTyped = column == Year || (column == Plain && m_edit.CanSetPlain(line.Row));
    return isOwn || isCompared || isTyped ? Normal : Quiet;
}

QString cBudgetModel::Available(int row, int month) const
{
    const std::optional<cLimit> limit = m_edit.Available(row, month);
    const qint64 spent = m_edit.Spent(row, month);
    const auto money = [this](qint64 cents) { return m_tools.Format.Cents(cents); };
    if (!limit) {
        return cText::Tr("kein Limit, ausgegeben {0}", {money(spent)});
    }
    const QString left = money(limit->Total() - spent);
    return m_edit.CarriesOver(row)
        ? cText::Tr("Budget {0}, Übertrag {1}, ausgegeben {2}, übrig {3}",
                    {money(limit->Own), money(limit->Carried), money(spent), left})
        : cText::Tr("Budget {0}, ausgegeben {1}, übrig {2}", {money(limit->Own), money(spent), left});
}

QString cBudgetModel::Explanation(const cLine& line, int column) const
{
    const auto faulty = m_faulty.constFind({line.Row, column});
    if (faulty != m_faulty.constEnd()) {
        return Fault(*faulty);
    }
    if (line.Row < 0) {
        return column == Spent ? modLimits::SumNote() : QString();
    }
    const int month = MonthOf(column);
    if (month > 0) {
        return MonthTitle(ShownYear(), month) + u": "_s + Available(line.Row, month);
    }
    switch (column) {
    case Plain:
        return m_edit.CanSetPlain(line.Row) ? cText::Tr("Gilt in jedem Monat, der kein eigenes Limit hat.")
                                            : cText::Tr("Ergibt sich aus Betrag und Intervall der Kategorie.");
    case Carry: {
        const QDate from = m_edit.CarriesFrom(line.Row);
        if (!m_edit.CarriesOver(line.Row)) {
            return cText::Tr("Was übrig bleibt, verfällt am Monatsende.");
        }
        return from.isValid()
            ? cText::Tr("Was übrig bleibt, geht seit {0} in den nächsten Monat.", {modDayNames::MonthText(from)})
            : cText::Tr("Was übrig bleibt, geht in den nächsten Monat.");
    }
    case Year: return cText::Tr("Ein Betrag hier wird auf zwölf Monate verteilt.");
    default: return MonthTitle(ShownYear(), m_month) + u": "_s + Available(line.Row, m_month);
    }
}

QVariant cBudgetModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const cLine& line = m_lines.at(index.row());
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole: return column == Carry ? QVariant() : Text(line, column);
    case Qt::EditRole: return line.Row < 0 ? Text(line, column) : EditText(line.Row, column);
    case Qt::TextAlignmentRole: return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::CheckStateRole:
        return column == Carry && line.Row >= 0 ? QVariant(m_edit.CarriesOver(line.Row) ? Qt::Checked : Qt::Unchecked)
                                                : QVariant();
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole: return Explanation(line, column);
    case Qt::AccessibleTextRole:
        return column == Carry && line.Row >= 0
            ? (m_edit.CarriesOver(line.Row) ? cText::Tr("wird übertragen") : cText::Tr("wird nicht übertragen"))
            : Text(line, column);
    case ToneRole: return Tone(line, column);
    case IsHeadRole: return line.Row < 0;
    default: return {};
    }
}

QVariant cBudgetModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        const bool isOne = section >= 0 && section < m_lines.size();
        switch (isOne ? role : -1) {
        case Qt::DisplayRole:
            return QString((m_lines.at(section).Row < 0 ? u""_s : u"    "_s) + m_lines.at(section).Label);
        case Qt::ToolTipRole: return m_lines.at(section).Label;
        case IsHeadRole: return m_lines.at(section).Row < 0;
        // The last line is the sum of all.
        case cCategoryLooks::Role:
            return section < m_lines.size() - 1 && m_lines.at(section).Row < 0
                ? m_looks.Shown(m_lines.at(section).Label)
                : QVariant();
        default: return {};
        }
    }
    if (role == Qt::ToolTipRole && (section == Spent || section == Left)) {
        return cText::Tr("Im {0}, Geplantes zählt mit", {MonthTitle(ShownYear(), m_month)});
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Plain: return cText::Tr("Monatslimit");
    case Carry: return cText::Tr("Übertragen");
    case Spent: return cText::Tr("Ist {0}", {ShortName(modBudget::MonthOf(ShownYear(), m_month))});
    case Left: return cText::Tr("Übrig");
    case Year: return cText::Tr("Jahr {0}", {QString::number(ShownYear())});
    default: return ShortName(modBudget::MonthOf(ShownYear(), MonthOf(section)));
    }
}

QString cBudgetModel::Fault(const QString& text) const
{
    const std::optional<qint64> cents = modSum::Evaluate(text, m_tools.Format.Decimal());
    if (cents && *cents < 0) {
        return cText::Tr("Ein Limit kann nicht unter null liegen. Bitte geben Sie den Betrag ohne Minus ein.");
    }
    return cents ? QString() : modSum::Fault(text, m_tools.Format.Decimal());
}

void cBudgetModel::Store(int row, int column, std::optional<qint64> cents)
{
    if (column == Plain) {
        m_edit.SetPlain(row, cents);
    } else if (column == Year) {
        m_edit.SpreadYear(row, cents);
    } else {
        m_edit.SetMonth(row, MonthOf(column), cents);
    }
}

void cBudgetModel::Type(int row, int column, const QString& text)
{
    m_faulty.remove({row, column});
    if (text.trimmed().isEmpty()) {
        Store(row, column, std::nullopt);
    } else if (!Fault(text).isEmpty()) {
        m_faulty.insert({row, column}, text);
    } else {
        Store(row, column, modSum::Evaluate(text, m_tools.Format.Decimal()));
    }
}

bool cBudgetModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid()) {
        return false;
    }
    const cLine& line = m_lines.at(index.row());
    if (role == Qt::CheckStateRole && flags(index).testFlag(Qt::ItemIsUserCheckable)) {
        m_edit.SetCarriesOver(line.Row, value.toInt() == Qt::Checked);
    } else if (role != Qt::EditRole || !CanType(line, index.column())) {
        return false;
    } else if (value.toString() != EditText(line.Row, index.column())) {
        Type(line.Row, index.column(), value.toString());
    }
    Changed();
    return true;
}

QModelIndexList cBudgetModel::Editable(const QModelIndexList& cells) const
{
    QModelIndexList found;
    std::copy_if(cells.begin(), cells.end(), std::back_inserter(found),
                 [this](const QModelIndex& cell) { return CanType(m_lines.at(cell.row()), cell.column()); });
    return found;
}

bool cBudgetModel::HasYear(const QModelIndex& cell)
{
    const cLine line = cell.isValid() ? m_lines.at(cell.row()) : cLine();
    const bool hasYear = CanType(line, Year) && m_edit.YearLimit(line.Row) > 0;
    if (!hasYear) {
        m_tools.User.Show(eTone::Objection,
                          cText::Tr("Bitte wählen Sie die Zeile einer Kategorie, die im Jahr {0} ein Limit hat.",
                                    {QString::number(ShownYear())}));
    }
    return hasYear;
}

void cBudgetModel::Spread(const QModelIndex& cell)
{
    if (HasYear(cell)) {
        const int row = m_lines.at(cell.row()).Row;
        m_edit.SpreadYear(row, m_edit.YearLimit(row));
        Changed();
    }
}

void cBudgetModel::KeepInMonth(const QModelIndex& cell)
{
    if (HasYear(cell)) {
        const int month = MonthOf(cell.column());
        m_edit.KeepYearIn(m_lines.at(cell.row()).Row, month > 0 ? month : m_month);
        Changed();
    }
}

void cBudgetModel::TakeLastYear()
{
    if (IsReadOnly()) {
        return;
    }
    const int count = m_edit.TakeLastYear();
    m_faulty.clear();
    Changed();
    if (count == 0) {
        m_tools.User.Show(eTone::Objection,
                          cText::Tr("Im Jahr {0} wurde in keiner dieser Kategorien etwas ausgegeben.",
                                    {QString::number(ShownYear() - 1)}));
    }
}

void cBudgetModel::Clear(const QModelIndexList& cells)
{
    const QModelIndexList editable = Editable(cells);
    for (const QModelIndex& cell : editable) {
        Type(m_lines.at(cell.row()).Row, cell.column(), {});
    }
    Changed();
}

QString cBudgetModel::Copy(const QModelIndexList& cells) const
{
    QMap<int, QMap<int, QString>> table; // by row and column, both in order
    for (const QModelIndex& cell : cells) {
        const cLine& line = m_lines.at(cell.row());
        const std::optional<qint64> cents = line.Row < 0 ? Sum(line, cell.column()) : Value(line.Row, cell.column());
        table[cell.row()][cell.column()] = cents ? modSum::ToText(*cents, m_tools.Format.Decimal()) : QString();
    }
    QStringList lines;
    for (const QMap<int, QString>& row : std::as_const(table)) {
        lines.append(row.values().join(u'\t'));
    }
    return lines.join(u'\n');
}

// What would fall on cells that cannot be typed in is passed over.
void cBudgetModel::Paste(const QModelIndex& first, const QString& text)
{
    if (!first.isValid()) {
        return;
    }
    QStringList lines = QString(text).remove(u'\r').split(u'\n');
    if (lines.constLast().isEmpty()) {
        lines.removeLast();
    }
    for (qsizetype y = 0; y < lines.size() && first.row() + y < m_lines.size(); ++y) {
        const QStringList texts = lines.at(y).split(u'\t');
        const cLine& line = m_lines.at(first.row() + y);
        for (qsizetype x = 0; x < texts.size() && first.column() + x < ColumnCount; ++x) {
            const int column = first.column() + static_cast<int>(x);
            const bool isTold = column == Year && x > 0; // by its months, which the year would make equal
            if (CanType(line, column) && !isTold) {
                Type(line.Row, column, texts.at(x));
            }
        }
    }
    Changed();
}

bool cBudgetModel::IsFaultless()
{
    if (!m_faulty.isEmpty()) {
        const QString path = m_edit.Rows().at(m_faulty.firstKey().first).Path;
        m_tools.User.Show(eTone::Objection, path + u": "_s + Fault(m_faulty.first()));
    }
    return m_faulty.isEmpty();
}

bool cBudgetModel::Save()
{
    const bool isChanged = m_edit.IsChanged();
    if (!IsFaultless() || !m_edit.Save()) {
        return false;
    }
    if (isChanged) {
        Q_EMIT Saved();
    }
    return true;
}

bool cBudgetModel::MayClose()
{
    if (!m_edit.IsChanged() && m_faulty.isEmpty()) {
        return true;
    }
    const eAnswer answer = modUnsaved::Ask(m_tools.User);
    return answer == eAnswer::No || (answer == eAnswer::Yes && Save());
}
