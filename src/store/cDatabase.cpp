#include "store/cDatabase.h"

#include "base/cText.h"
#include "store/modSyncVfs.h"

#include <QFile>
#include <QScopedValueRollback>

// The driver's header leaves them out otherwise; Debian's library has them.
#define SQLITE_ENABLE_PREUPDATE_HOOK // NOLINT(cppcoreguidelines-macro-usage)
#include <fcntl.h>
#include <sqlite3.h>
#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <unordered_map>
#include <utility>

struct cDatabase::cConnection
{
    cConnection(const QString& path, int flags, int busyTimeout, const std::function<void()>& tellDamage)
        : Handle(path.toStdString(), flags, busyTimeout, modSyncVfs::Name()),
          TellDamage(tellDamage)
    {
    }

    void NoteDamage()
    {
        if (!std::exchange(IsDamaged, true) && TellDamage) {
            TellDamage();
        }
    }

    SQLite::Database Handle;
    const std::function<void()>& TellDamage; // of the database object
    bool IsDamaged = false;
    const cRowFilter* Filter = nullptr; // of the query that makes a step
    // Prepared statements that nobody is using at the moment, by their text
    std::unordered_map<std::string, std::unique_ptr<SQLite::Statement>> Idle;
};

struct cRows::cState
{
    cDatabase::cConnection& Connection;
    std::string Sql;
    std::unique_ptr<SQLite::Statement> Statement{};
    // Made once per query: they always read the current row, and making them is dearer than reading
    std::vector<SQLite::Column> Columns{};
    cRowFilter Filter{};
};

namespace {

constexpr qint64 portionTime = 1000;   // milliseconds
constexpr size_t idleLimit = 100;      // statements kept prepared; filters make new texts all the time
constexpr int longestValue = 64 << 20; // bytes of a value or a row, so that no default or check makes gigabytes of one

eDatabaseFault FaultOf(int code)
{
    switch (code) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL: return eDatabaseFault::Busy;
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT: return eDatabaseFault::Damaged;
    case SQLITE_READONLY: return eDatabaseFault::ReadOnly;
    case SQLITE_FULL: return eDatabaseFault::Full;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM: return eDatabaseFault::NoAccess;
    case SQLITE_IOERR: return eDatabaseFault::Device;
    default: return eDatabaseFault::Other;
    }
}

// Runs a call of the driver and turns its exceptions into ours.
template <typename tCall>
auto Translate(tCall call)
{
    try {
        return call();
    } catch (const SQLite::Exception& error) {
        throw cDatabaseError(FaultOf(error.getErrorCode()), error.what());
    }
}

// The same for a call that works on the open file, and notes when that turns out to be damaged.
template <typename tConnection, typename tCall>
auto TranslateOf(tConnection& connection, tCall call)
{
    try {
        return Translate(call);
    } catch (const cDatabaseError& error) {
        if (error.Fault() == eDatabaseFault::Damaged) {
            connection.NoteDamage();
        }
        throw;
    }
}

int FlagsOf(eOpenMode mode)
{
    // A connection belongs to one thread, so it needs no locks of its own: they cost a fifth of the time of a scan.
    switch (mode) {
    case eOpenMode::ReadOnly: return SQLite::OPEN_READONLY | SQLite::OPEN_NOMUTEX;
    case eOpenMode::Create: return SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE | SQLite::OPEN_NOMUTEX;
    case eOpenMode::ReadWrite: break;
    }
    return SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX;
}

// A book may come from strangers: what its schema says may use functions without side effects only, and nobody may
// write to the schema or to the insides of a table.
void Guard(const SQLite::Database& connection)
{
    sqlite3* handle = connection.getHandle();
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, longestValue);
}

constexpr int mostFiltered = 11; // values that a filter looks at

// What Taken is in a statement.
void Take(sqlite3_context* context, int count, sqlite3_value** values)
{
    const cRowFilter* filter = *static_cast<const cRowFilter* const*>(sqlite3_user_data(context));
    std::array<std::string_view, mostFiltered> bytes;
    const int used = std::min(count, mostFiltered);
    for (int i = 0; i < used; ++i) {
        const unsigned char* text = sqlite3_value_text(values[i]);
        bytes[static_cast<size_t>(i)] = {reinterpret_cast<const char*>(text), // the driver's texts are unsigned
                                         static_cast<size_t>(sqlite3_value_bytes(values[i]))};
    }
    const bool isTaken = filter == nullptr || !*filter || (*filter)(std::span(bytes).first(static_cast<size_t>(used)));
    sqlite3_result_int(context, isTaken ? 1 : 0);
}

// Only for statements of the program: nothing that a schema says may call it.
void AddFilter(sqlite3* handle, const cRowFilter** active)
{
    sqlite3_create_function(handle, "Taken", -1, SQLITE_UTF8 | SQLITE_DIRECTONLY, active, &Take, nullptr, nullptr);
}

// Makes an empty file that only its owner can read, through no link and in the place of nothing.
void MakeOwnFile(const QString& path)
{
    const int file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file >= 0) {
        ::close(file);
        return;
    }
    switch (errno) {
    case EEXIST:
        throw cDatabaseError(eDatabaseFault::Other, cText::Tr("Die Datei '{0}' gibt es schon.", {path}).toStdString());
    case ENOSPC:
    case EDQUOT: throw cDatabaseError(eDatabaseFault::Full, "database or disk is full");
    case EIO: throw cDatabaseError(eDatabaseFault::Device, "disk I/O error");
    default: throw cDatabaseError(eDatabaseFault::NoAccess, "unable to open database file");
    }
}

void BindStored(SQLite::Statement& statement, int index, const cStoredBytes& stored)
{
    if (stored.IsText) {
        statement.bind(index, stored.Bytes.toStdString());
    } else {
        statement.bind(index, stored.Bytes.constData(), static_cast<int>(stored.Bytes.size()));
    }
}

void Bind(SQLite::Statement& statement, const cBoundList& values)
{
    int index = 0;
    for (const cBound& value : values) {
        ++index;
        if (const auto* text = std::get_if<QString>(&value)) {
            statement.bind(index, text->toStdString());
        } else if (const auto* number = std::get_if<qint64>(&value)) {
            statement.bind(index, int64_t{*number});
        } else if (const auto* real = std::get_if<double>(&value)) {
            statement.bind(index, *real);
        } else if (const auto* stored = std::get_if<cStoredBytes>(&value)) {
            BindStored(statement, index, *stored);
        } else {
            statement.bind(index);
        }
    }
}

cBound ValueOf(sqlite3_value* value)
{
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER: return qint64{sqlite3_value_int64(value)};
    case SQLITE_FLOAT: return sqlite3_value_double(value);
    case SQLITE_NULL: return std::monostate();
    default: break;
    }
    const bool isText = sqlite3_value_type(value) == SQLITE_TEXT;
    const void* bytes = sqlite3_value_blob(value); // of a text: its bytes as they are
    return cStoredBytes{QByteArray(static_cast<const char*>(bytes), sqlite3_value_bytes(value)), isText};
}

// Called by SQLite before it writes a row. A changed row ID is a row that goes and another that comes.
// NOLINTNEXTLINE(readability-function-size): SQLite says what it hands over
void TellWatcher(void* watcher, sqlite3* connection, int operation, const char* database, const char* table,
                 sqlite3_int64 oldId, sqlite3_int64 newId)
{
    if (std::string_view(database) != "main") {
        return; // tables that only live as long as the connection
    }
    const auto& tell = *static_cast<const std::function<void(const cRowBefore&)>*>(watcher);
    if (operation != SQLITE_INSERT) {
        tell(cRowBefore(connection, table, oldId, true));
    }
    if (operation == SQLITE_INSERT || newId != oldId) {
        tell(cRowBefore(connection, table, newId, false));
    }
}

} // namespace

cBoundList cRowBefore::Values() const
{
    cBoundList values;
    const int columns = sqlite3_preupdate_count(m_connection);
    values.reserve(static_cast<size_t>(columns));
    for (int i = 0; i < columns; ++i) {
        sqlite3_value* value = nullptr;
        const bool isRead = sqlite3_preupdate_old(m_connection, i, &value) == SQLITE_OK && value != nullptr;
        values.push_back(isRead ? ValueOf(value) : std::monostate());
    }
    return values;
}

cDatabase::cDatabase(int busyTimeout) : m_busyTimeout(busyTimeout)
{
}

cDatabase::~cDatabase()
{
    EndGathering();
}

void cDatabase::Open(const QString& path, eOpenMode mode)
{
    Close();
    m_connection =
        Translate([&] { return std::make_unique<cConnection>(path, FlagsOf(mode), m_busyTimeout, m_damageWatcher); });
    Guard(m_connection->Handle);
    AddFilter(m_connection->Handle.getHandle(), &m_connection->Filter);
    ++m_opened;
    m_path = path;
    m_isReadOnly = mode == eOpenMode::ReadOnly || sqlite3_db_readonly(m_connection->Handle.getHandle(), "main") == 1;
    InstallWatcher();
}

QStringList cDatabase::ShutOut()
{
    sqlite3* handle = Connection().Handle.getHandle();
    m_shutOut.clear();
    {
        // By the statement: the columns beside it are the file's word only. SQLite writes these three beginnings
        // itself.
        cRows rows(*this,
                   "SELECT name FROM main.sqlite_master WHERE sql NOT LIKE 'CREATE TABLE %'"
                   " AND sql NOT LIKE 'CREATE INDEX %' AND sql NOT LIKE 'CREATE UNIQUE INDEX %' ORDER BY name");
        while (rows.Next()) {
            m_shutOut.append(rows.Text(0));
        }
    }
    const int isAllowed = m_shutOut.isEmpty() ? 1 : 0;
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, isAllowed, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_VIEW, isAllowed, nullptr);
    return m_shutOut;
}

bool cDatabase::IsDamaged() const noexcept
{
    return m_connection && m_connection->IsDamaged;
}

void cDatabase::WatchRows(std::function<void(const cRowBefore&)> watcher)
{
    m_watcher = std::move(watcher);
    InstallWatcher();
}

void cDatabase::InstallWatcher()
{
    if (m_connection) {
        sqlite3_preupdate_hook(m_connection->Handle.getHandle(), m_watcher ? TellWatcher : nullptr, &m_watcher);
    }
}

void cDatabase::Close() noexcept
{
    EndGathering();
    m_connection.reset();
    m_shutOut.clear();
    m_isReadOnly = false;
    m_dataVersion = 0;
    ++m_importVersion; // another file may follow
}

void cDatabase::Gather(eGathering gathering)
{
    m_gathering = gathering;
    m_hasBegun = false;
}

void cDatabase::BeginGathered()
{
    if (m_hasBegun && sqlite3_get_autocommit(Connection().Handle.getHandle()) != 0) {
        // After some failures SQLite takes the whole transaction back. What follows must not be written without what
        // was before it.
        throw cDatabaseError(eDatabaseFault::RolledBack, "transaction was rolled back");
    }
    if (m_hasBegun && m_gathering == eGathering::InPortions && m_sinceBegin.hasExpired(portionTime)) {
        CommitGathered();
    }
    if (!m_hasBegun) {
        ExecuteScript("BEGIN IMMEDIATE");
        m_hasBegun = true;
        m_sinceBegin.start();
    }
}

void cDatabase::CommitGathered()
{
    if (!m_hasBegun) {
        return;
    }
    try {
        if (sqlite3_get_autocommit(Connection().Handle.getHandle()) != 0) {
            throw cDatabaseError(eDatabaseFault::RolledBack, "transaction was rolled back");
        }
        ExecuteScript("COMMIT");
        m_hasBegun = false;
    } catch (const std::exception&) {
        DropGathered();
        throw;
    }
}

void cDatabase::DropGathered() noexcept
{
    if (std::exchange(m_hasBegun, false)) {
        ++m_importVersion;
        // Fails where SQLite has taken it back already.
        sqlite3_exec(m_connection->Handle.getHandle(), "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

void cDatabase::EndGathering() noexcept
{
    DropGathered();
    m_gathering.reset();
}

int cDatabase::Execute(const std::string& sql, const cBoundList& values)
{
    if (IsDamaged()) {
        throw cDatabaseError(eDatabaseFault::Damaged, "database disk image is malformed");
    }
    if (m_gathering) {
        BeginGathered();
    }
    cRows rows(*this, sql, values);
    while (rows.Next()) {}
    return rows.Changes();
}

bool cDatabase::TryExecute(const std::string& sql, const cBoundList& values) noexcept
{
    try {
        Execute(sql, values);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

void cDatabase::ExecuteScript(const std::string& sql)
{
    TranslateOf(Connection(), [&] { return Connection().Handle.exec(sql); });
}

qint64 cDatabase::LastInsertId() const
{
    return Connection().Handle.getLastInsertRowid();
}

eDatabaseFault cDatabase::ProbeWrite() noexcept
{
    if (m_isReadOnly) {
        return eDatabaseFault::ReadOnly;
    }
    try {
        // Only a changed page makes SQLite create its journal, which a folder without write permission refuses.
        ExecuteScript("BEGIN IMMEDIATE");
        ExecuteScript("CREATE TABLE probe_of_write (ID INTEGER)");
        ExecuteScript("ROLLBACK");
        return eDatabaseFault::None;
    } catch (const cDatabaseError& error) {
        if (m_connection) {
            sqlite3_exec(m_connection->Handle.getHandle(), "ROLLBACK", nullptr, nullptr, nullptr);
        }
        return error.Fault() == eDatabaseFault::NoAccess ? eDatabaseFault::ReadOnly : error.Fault();
    } catch (const std::exception&) {
        return eDatabaseFault::Other;
    }
}

void cDatabase::BackupTo(const QString& path)
{
    MakeOwnFile(path); // beforehand, so that nobody else can read the copy at any moment
    try {
        Translate([&] {
            SQLite::Database target(path.toStdString(), FlagsOf(eOpenMode::ReadWrite), m_busyTimeout,
                                    modSyncVfs::Name());
            Guard(target);
            const int result = SQLite::Backup(target, Connection().Handle).executeStep();
            if (result != SQLITE_DONE) {
                throw SQLite::Exception(sqlite3_errstr(result), result);
            }
            target.exec("PRAGMA journal_mode=DELETE"); // a book in WAL mode would get companions when it is read
        });
    } catch (...) {
        QFile::remove(path + QStringLiteral("-journal")); // which stays where the disk was full
        QFile::remove(path);
        throw;
    }
}

QStringList cDatabase::IntegrityCheck()
{
    QStringList problems;
    cRows rows(*this, "PRAGMA integrity_check");
    while (rows.Next()) {
        if (rows.Bytes(0) != "ok") {
            problems.append(rows.Text(0));
        }
    }
    return problems;
}

quint64 cDatabase::ImportVersion()
{
    cRows rows(*this, "PRAGMA data_version");
    if (rows.Next() && rows.Integer(0) != m_dataVersion) {
        m_dataVersion = rows.Integer(0);
        ++m_importVersion;
    }
    return m_importVersion;
}

cDatabase::cChangeMark cDatabase::ChangeMark()
{
    cRows rows(*this, "PRAGMA data_version");
    const qint64 others = rows.Next() ? rows.Integer(0) : 0;
    return {m_opened, sqlite3_total_changes64(Connection().Handle.getHandle()), others};
}

cDatabase::cConnection& cDatabase::Connection() const
{
    if (!m_connection) {
        throw cDatabaseError(eDatabaseFault::Other, "no database is open");
    }
    return *m_connection;
}

cRows::cRows(cDatabase& database, const std::string& sql, const cBoundList& values, cRowFilter filter)
    : m_state(new cState{database.Connection(), sql})
{
    m_state->Filter = std::move(filter);
    auto& idle = m_state->Connection.Idle;
    if (const auto found = idle.find(sql); found != idle.end()) {
        m_state->Statement = std::move(found->second);
        idle.erase(found);
    }
    TranslateOf(m_state->Connection, [&] {
        if (!m_state->Statement) {
            m_state->Statement = std::make_unique<SQLite::Statement>(m_state->Connection.Handle, sql);
        }
        Bind(*m_state->Statement, values);
    });
}

cRows::~cRows()
{
    m_state->Columns.clear();
    m_state->Statement->tryReset();
    try {
        m_state->Statement->clearBindings();
        auto& idle = m_state->Connection.Idle;
        if (idle.size() >= idleLimit) {
            idle.clear();
        }
        idle.insert_or_assign(m_state->Sql, std::move(m_state->Statement));
    } catch (const std::exception&) {
        m_state->Statement.reset(); // prepared anew next time
    }
}

bool cRows::Next()
{
    const QScopedValueRollback<const cRowFilter*> filter(m_state->Connection.Filter, &m_state->Filter);
    return TranslateOf(m_state->Connection, [&] {
        const bool hasRow = m_state->Statement->executeStep();
        if (hasRow && m_state->Columns.empty()) {
            for (int i = 0; i < m_state->Statement->getColumnCount(); ++i) {
                m_state->Columns.push_back(m_state->Statement->getColumn(i));
            }
        }
        return hasRow;
    });
}

std::string_view cRows::Bytes(int column) const
{
    const SQLite::Column& source = m_state->Columns[static_cast<size_t>(column)];
    const char* text = source.getText();
    return {text, static_cast<size_t>(source.getBytes())};
}

QString cRows::Text(int column) const
{
    const std::string_view bytes = Bytes(column);
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

qint64 cRows::Integer(int column) const
{
    return m_state->Columns[static_cast<size_t>(column)].getInt64();
}

double cRows::Real(int column) const
{
    return m_state->Columns[static_cast<size_t>(column)].getDouble();
}

int cRows::Changes() const
{
    return m_state->Statement->getChanges();
}
