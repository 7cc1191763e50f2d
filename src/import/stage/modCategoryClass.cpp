#include "import/stage/modCategoryClass.h"

#include "import/read/cStatementRead.h"
#include "import/read/modBookRow.h"
#include "import/stage/cBookCategories.h"
#include "import/stage/modStatementFormat.h"
#include "store/cDataAccess.h"

#include <QSet>
#include <QString>

#include <algorithm>
#include <utility>

namespace {

// Takes it off the row's own category, and returns this.
QString CutOff(cImportEntry& row, const cBookCategories& known)
{
    const QString path = modBookRow::CategoryOf(row);
    const qsizetype slash = path.indexOf(u'/', std::max(qsizetype{0}, path.lastIndexOf(u';')));
    if (slash <= 0 || !known.Find(path).isEmpty()) {
        return path;
    }
    const QString category = path.left(slash).trimmed();
    row.ImportType = modBookRow::CategoryText(category);
    return category;
}

} // namespace

void modCategoryClass::CutFrom(cStatementRead& read, eStatementFormat kind, cDataAccess& data)
{
    if (!read.IsBook) {
        return; // no row names a category
    }
    const cBookCategories known(data.GetTemplates());
    QSet<QString> named;
    QList<cImportEntry*> transfers;
    for (qsizetype i = 0; i < read.Entries.size(); ++i) {
        cImportEntry& row = read.Entries[i];
        if (read.FormatAt(i).value_or(kind) != eStatementFormat::Qif) {
            continue;
        }
        if (modBookRow::IsTransfer(row)) {
            transfers.append(&row);
        } else {
            const QString path = CutOff(row, known);
            named << path << path.section(u';', 0, 0);
        }
    }
    for (cImportEntry* const row : std::as_const(transfers)) {
        const QString path = modBookRow::CategoryOf(*row);
        if (!path.contains(u';') && !named.contains(path) && known.Find(path).isEmpty()) {
            modBookRow::MakeTransfer(*row, row->ImportBeneficiaryAccount, {});
        }
    }
}
