#include "import/table/modTable.h"

#include "import/cReadOptions.h"
#include "import/cStatementSource.h"
#include "import/table/cTable.h"

modTable::cOpened modTable::Open(const cStatementSource& /*source*/, const cReadOptions& /*options*/)
{
    return {};
}

cTableLayout modTable::Detect(const cTable& /*table*/, const cReadOptions& /*options*/)
{
    return {};
}

cStatementRead modTable::ReadRows(const cTable& /*table*/, const cTableLayout& /*layout*/,
                                  const cReadOptions& /*options*/)
{
    return {};
}

cStatementRead modTable::ReadTable(const cTable& table, const cReadOptions& options)
{
    return ReadRows(table, Detect(table, options), options);
}

cStatementRead modTable::Read(const cStatementSource& source, const cReadOptions& options)
{
    const cOpened opened = Open(source, options);
    return ReadRows(*opened.Table, opened.Layout, options);
}
