#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

struct sqlite3;

enum class eOpenMode { ReadWrite, ReadOnly, Create };

// Why the database refused. `Other` is a fault of the statement itself, such as a missing table.
// `Device`: the system could not read or write. `RolledBack`: an earlier failure has undone the writes before.
// `Unread`: something that the write may depend on could not be read.
enum class eDatabaseFault { None, Busy, Damaged, ReadOnly, Full, NoAccess, Device, RolledBack, Unread, Other };

// Thrown by the classes of this floor and caught at its border.
class cDatabaseError final : public std::runtime_error
{
public:
    cDatabaseError(eDatabaseFault fault, const std::string& text) : std::runtime_error(text), m_fault(fault) {}

    [[nodiscard]] eDatabaseFault Fault() const noexcept { return m_fault; }
    [[nodiscard]] QString Text() const { return QString::fromUtf8(what()); }

private:
    eDatabaseFault m_fault;
};

// A text or BLOB as the file holds it: what is no valid text, too, comes back byte by byte.
struct cStoredBytes
{
    QByteArray Bytes;
    bool IsText = true;
};

// Values for the "?" of a statement, in their order; the last alternative is NULL.
using cBound = std::variant<qint64, double, QString, cStoredBytes, std::monostate>;
using cBoundList = std::vector<cBound>;

// Looks at values of a row while a statement reads it; false passes the row over. It must not throw and must not use
// the database. The values live as long as the call.
using cRowFilter = std::function<bool(std::span<const std::string_view>)>;

// A row that is about to be added, changed or removed. It lives as long as the call that hands it over.
class cRowBefore
{
public:
    cRowBefore(sqlite3* connection, std::string_view table, qint64 rowId, bool isThere)
        : Table(table),
          RowId(rowId),
          IsThere(isThere),
          m_connection(connection)
    {
    }

    std::string_view Table;
    qint64 RowId;
    bool IsThere; // false: it is about to be added

    // All columns as they are before the write.
    [[nodiscard]] cBoundList Values() const;

private:
    sqlite3* m_connection;
};

// A connection to the database file. All failures are thrown as cDatabaseError unless a comment says otherwise.
class cDatabase
{
public:
    static constexpr int BusyTimeout = 2000; // milliseconds to wait for a lock of somebody else

    explicit cDatabase(int busyTimeout = BusyTimeout);
    cDatabase(const cDatabase&) = delete;
    cDatabase& operator=(const cDatabase&) = delete;
    ~cDatabase();

    // Opens an existing file; only `Create` makes a new one. A file that the system protects against writing is opened
    // for reading, see IsReadOnly. The content is not looked at yet.
    void Open(const QString& path, eOpenMode mode);
    void Close() noexcept;

    // Switches off what the schema of the file could run: triggers and views, if there are any. The names of these, and
    // of what else is neither a table nor an index; a book of this program has none.
    QStringList ShutOut();
    // What ShutOut has found.
    [[nodiscard]] const QStringList& ShutOutNames() const noexcept { return m_shutOut; }

    [[nodiscard]] bool IsOpen() const noexcept { return m_connection != nullptr; }
    [[nodiscard]] bool IsReadOnly() const noexcept { return m_isReadOnly; }
    // SQLite has come upon damage in the open file. Nothing is written to it any more.
    [[nodiscard]] bool IsDamaged() const noexcept;
    [[nodiscard]] const QString& Path() const noexcept { return m_path; }

    // Runs one statement; the number of rows it changed.
    int Execute(const std::string& sql, const cBoundList& values = {});
    // The same; false instead of an exception.
    bool TryExecute(const std::string& sql, const cBoundList& values = {}) noexcept;
    // Runs several statements without values.
    void ExecuteScript(const std::string& sql);
    [[nodiscard]] qint64 LastInsertId() const;

    // From Gather on, all writes by Execute are one transaction, which the first of them begins: for a kill or a full
    // disk they are all there or none is. `InPortions`: what was written for a second is in the file, for writes that
    // may take long and of which every part counts. Only reading needs no transaction and takes no lock.
    enum class eGathering { Whole, InPortions };
    void Gather(eGathering gathering);
    [[nodiscard]] bool IsGathering() const noexcept { return m_gathering.has_value(); }
    // Puts what was gathered into the file; gathering goes on. After a failure nothing of it is there.
    void CommitGathered();
    // Takes back what was gathered since the last portion.
    void DropGathered() noexcept;
    void EndGathering() noexcept; // drops what was not committed

    // Takes the write lock and lets go of it again: None when the file can be written now. Does not throw.
    [[nodiscard]] eDatabaseFault ProbeWrite() noexcept;

    // Copies the whole database into a new file, also while others read it. Only the file's owner can read it. A file
    // half written is removed; one that is there already, or a link, is left alone and is a failure.
    void BackupTo(const QString& path);

    // What SQLite finds wrong with the file; empty when it is sound.
    [[nodiscard]] QStringList IntegrityCheck();

    // Called for each row of the file that a statement of this connection writes, just before it does. It must not
    // throw and must not use the database.
    void WatchRows(std::function<void(const cRowBefore&)> watcher);

    // Called once for each file that turns out to be damaged, in the middle of the operation that came upon it.
    void WatchDamage(std::function<void()> watcher) { m_damageWatcher = std::move(watcher); }

    // Whoever writes to table `import` says so here.
    void NoteImportWrite() noexcept { ++m_importVersion; }
    // Differs from every earlier value once table `import` may have changed, by this connection or by another.
    [[nodiscard]] quint64 ImportVersion();
    [[nodiscard]] quint64 KnownImportVersion() const noexcept { return m_importVersion; } // does not ask the file

    // Equal marks: the book holds the same as before. Worth nothing while writes are gathered, which may be taken back.
    using cChangeMark = std::array<qint64, 3>;
    [[nodiscard]] cChangeMark ChangeMark();

private:
    friend class cRows;
    struct cConnection;

    [[nodiscard]] cConnection& Connection() const;
    void InstallWatcher();
    void BeginGathered();

    std::function<void(const cRowBefore&)> m_watcher;
    std::function<void()> m_damageWatcher;
    std::unique_ptr<cConnection> m_connection;
    QString m_path;
    QStringList m_shutOut;
    int m_busyTimeout;
    bool m_isReadOnly = false;
    std::optional<eGathering> m_gathering;
    bool m_hasBegun = false; // the transaction of what is gathered
    QElapsedTimer m_sinceBegin;
    quint64 m_importVersion = 0;
    qint64 m_opened = 0;      // files so far
    qint64 m_dataVersion = 0; // last one seen of other connections
};

// The rows of one query. Takes the prepared statement from the connection's stock and gives it back at the end.
class cRows
{
public:
    // The statement asks `filter` by Taken(column, …). To be passed over costs a row a third of being handed over.
    cRows(cDatabase& database, const std::string& sql, const cBoundList& values = {}, cRowFilter filter = {});
    cRows(const cRows&) = delete;
    cRows& operator=(const cRows&) = delete;
    ~cRows();

    // Steps to the next row; false behind the last one.
    bool Next();

    // A column of the current row, counted from 0. The bytes live until the next step; NULL is empty or 0.
    [[nodiscard]] std::string_view Bytes(int column) const;
    [[nodiscard]] QString Text(int column) const;
    [[nodiscard]] qint64 Integer(int column) const;
    [[nodiscard]] double Real(int column) const;

    // Rows changed by the statement.
    [[nodiscard]] int Changes() const;

private:
    struct cState;

    std::unique_ptr<cState> m_state;
};
