#include "views/statement/cStatementWorks.h"

#include "core/cBookTools.h"

cStatementWorks::cStatementWorks(const cBookTools& tools)
    : Hive(tools.Data),
      Accounts(tools.Data, tools.Settings),
      Booking(tools.Data, Hive, Accounts),
      Runs(tools.Settings),
      Proposals({tools.Data, Hive, Accounts, Runs, tools.Format}),
      Matching(tools, {Hive, Accounts, Booking, Proposals}),
      Plan(tools, {Booking, Matching, Proposals}),
      Files(tools, Hive, Accounts)
{
    QObject::connect(&Files, &cStatementFiles::FileStaged, &Files,
                     [this](const QList<int>& ids, eStatementFormat format) { Runs.NoteFile(ids, format); });
    QObject::connect(&Files, &cStatementFiles::RowsStaged, &Files,
                     [this](const QList<int>& ids) { Runs.NoteImport(ids); });
    QObject::connect(&Files, &cStatementFiles::MoreStaged, &Files,
                     [this](const QList<int>& ids) { Runs.NoteMore(ids); });
}
