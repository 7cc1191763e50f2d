#include "import/stage/modNamelessRows.h"

#include "import/read/cStatementRead.h"
#include "import/stage/cStaging.h"

#include <QStringList>

#include <map>
#include <tuple>

namespace {

// What told two rows apart when nobody knew the counterparty.
using cKey = std::tuple<QString, QDate, qint64, QString>;

struct cGroup
{
    int Free = 0;      // staged rows that stand for no row of the file yet
    QStringList Known; // counterparties of the rows that they stand for
};

cKey KeyOf(const cImportEntry& row)
{
    return {row.ImportAccount, row.ImportDate, row.ImportValue, row.ImportPurpose};
}

bool IsNameless(const cImportEntry& row)
{
    return row.ImportBeneficiary.isEmpty() && row.ImportBeneficiaryAccount.isEmpty()
        && row.ImportBeneficiaryBLZ.isEmpty();
}

// False when the row is another one than those staged without counterparty.
bool Claim(const cImportEntry& row, cGroup& group)
{
    const QString name = row.ImportBeneficiary + u'\n' + row.ImportBeneficiaryAccount;
    const bool isKnown = group.Known.contains(name);
    if (!isKnown && group.Free <= 0) {
        return false;
    }
    --group.Free;
    group.Known.append(isKnown ? QStringList() : QStringList(name));
    return true;
}

} // namespace

void modNamelessRows::UseIn(cStatementRead& read, cStaging& staging)
{
    std::map<cKey, cGroup> groups;
    const cImportEntryList staged = read.WasNameless ? staging.Rows() : cImportEntryList();
    for (const cImportEntry& row : staged) {
        if (IsNameless(row)) {
            ++groups[KeyOf(row)].Free;
        }
    }
    if (groups.empty()) {
        return;
    }
    for (const cImportEntry& row : std::as_const(read.Entries)) {
        if (const auto group = groups.find(KeyOf(row)); group != groups.end() && IsNameless(row)) {
            --group->second.Free; // the file names nobody in this one, then as now
        }
    }
    for (cImportEntry& row : read.Entries) {
        const auto group = groups.find(KeyOf(row));
        if (group == groups.end() || IsNameless(row)) {
            continue;
        }
        row.Validate();
        if (staging.Find(row) == eKnown::No && Claim(row, group->second)) {
            row.ImportBeneficiary.clear();
            row.ImportBeneficiaryAccount.clear();
            row.ImportBeneficiaryBLZ.clear();
        }
    }
}
