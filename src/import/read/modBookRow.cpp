#include "import/read/modBookRow.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto categoryMark = "Kategorie: "_L1;
constexpr auto transferMark = "Umbuchung: "_L1;
constexpr auto payerMark = "Bezahlt von: "_L1;

qsizetype PayerAt(const QString& text)
{
    const QString mark = u"; "_s + payerMark;
    const qsizetype at = text.lastIndexOf(mark);
    const bool isBook = text.startsWith(categoryMark) || text.startsWith(transferMark); // of a bank it is its word
    return text.startsWith(payerMark) ? 0 : isBook ? at : -1;
}

} // namespace

QString modBookRow::PathOf(const QString& category)
{
    QStringList levels;
    for (const QString& level : QString(category).replace(u';', u':').split(u':')) {
        levels.append(level.simplified());
    }
    levels.removeAll(QString());
    const QString main = levels.isEmpty() ? QString() : levels.takeFirst();
    return levels.isEmpty() ? main : main + u"; "_s + levels.join(u" - "_s);
}

QString modBookRow::CategoryText(const QString& path)
{
    return path.isEmpty() ? QString() : categoryMark + path;
}

void modBookRow::MakeTransfer(cImportEntry& row, const QString& other, const QString& path)
{
    row.ImportBeneficiaryAccount = other;
    row.ImportType = transferMark + other + (path.isEmpty() ? QString() : u"; "_s + CategoryText(path));
}

void modBookRow::AddPayer(cImportEntry& row, const QString& name)
{
    if (!name.isEmpty()) {
        row.ImportType += (row.ImportType.isEmpty() ? QString() : u"; "_s) + payerMark + name;
    }
}

QString modBookRow::PayerOf(const cImportEntry& row)
{
    const qsizetype at = PayerAt(row.ImportType);
    return at < 0 ? QString() : row.ImportType.mid(row.ImportType.indexOf(payerMark, at) + payerMark.size());
}

bool modBookRow::IsBook(const cImportEntry& row)
{
    return IsTransfer(row) || !CategoryOf(row).isEmpty() || !PayerOf(row).isEmpty();
}

bool modBookRow::IsTransfer(const cImportEntry& row)
{
    return !row.ImportBeneficiaryAccount.isEmpty() && row.ImportType.startsWith(transferMark)
        && QStringView(row.ImportType).mid(transferMark.size()).startsWith(row.ImportBeneficiaryAccount);
}

cImportEntry modBookRow::Bare(cImportEntry row)
{
    if (IsBook(row)) {
        row.ImportType.clear();
    }
    return row;
}

QString modBookRow::CategoryOf(const cImportEntry& row)
{
    const QString start = IsTransfer(row) ? transferMark + row.ImportBeneficiaryAccount + u"; "_s : QString();
    const QString mark = start + categoryMark;
    const QString text = row.ImportType.left(PayerAt(row.ImportType));
    return text.startsWith(mark) ? text.mid(mark.size()) : QString();
}
