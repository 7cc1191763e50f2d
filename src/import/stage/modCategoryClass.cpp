#include "import/stage/modCategoryClass.h"

#include "import/read/cStatementRead.h"
#include "import/read/modBookRow.h"
#include "import/stage/cBookCategories.h"
#include "import/stage/modStatementFormat.h"
#include "store/cDataAccess.h"

#include <algorithm>

void modCategoryClass::CutFrom(cStatementRead& read, eStatementFormat kind, cDataAccess& data)
{
    if (!read.IsBook) {
        return; // no row names a category
    }
    const cBookCategories known(data.GetTemplates());
    for (qsizetype i = 0; i < read.Entries.size(); ++i) {
        cImportEntry& row = read.Entries[i];
        const QString path = modBookRow::CategoryOf(row);
        const qsizetype slash = path.indexOf(u'/', std::max(qsizetype{0}, path.lastIndexOf(u';')));
        const bool isQif = read.FormatAt(i).value_or(kind) == eStatementFormat::Qif;
        if (slash > 0 && isQif && known.Find(path).isEmpty()) {
            row.ImportType = modBookRow::CategoryText(path.left(slash).trimmed());
        }
    }
}
