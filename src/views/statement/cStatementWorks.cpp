#include "views/statement/cStatementWorks.h"

#include "core/cBookTools.h"
#include "import/propose/cBooking.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"

struct cStatementWorks::cImport
{
    explicit cImport(const cBookTools& tools)
        : Hive(tools.Data),
          Accounts(tools.Data, tools.Settings),
          Booking(tools.Data, Hive, Accounts)
    {
    }

    cImportHiveCache Hive;
    cAccountMap Accounts;
    cBooking Booking;
};

cStatementWorks::cStatementWorks(const cBookTools& tools)
    : m_import(std::make_unique<cImport>(tools)),
      Hive(m_import->Hive),
      Accounts(m_import->Accounts),
      Booking(m_import->Booking),
      Runs(tools.Settings),
      Proposals({tools.Data, Hive, tools.Settings, Accounts, Runs, tools.Format}),
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

cStatementWorks::~cStatementWorks() = default;
