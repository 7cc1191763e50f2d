#include "store/modSchema.h"

#include "base/cShell.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modLog.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "store/modAccountColumns.h"
#include "store/modRow.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cTable
{
    const char* Name;
    QStringList Columns; // as in its CREATE statement
};

// The tables that do not come with the template.
std::vector<cTable> OwnTables()
{
    QStringList account{u"ID INTEGER PRIMARY KEY"_s};
    for (const char* name : std::span(modAccountColumns::Names).first<modAccountColumns::CreatedCount>()) {
        account.append(QString::fromUtf8(name) + u" TEXT"_s);
    }
    return {
        {"account", account},
        {"setting",
         {u"ID INTEGER PRIMARY KEY"_s, u"SettingName TEXT UNIQUE"_s, u"SettingValue TEXT"_s, u"SettingDefault TEXT"_s}},
        {"datamod",
         {u"ID INTEGER PRIMARY KEY"_s, u"EntryRelation NUMERIC"_s, u"EntryModType TEXT"_s, u"EntryStartDate TEXT"_s,
          u"EntryEndDate TEXT"_s, u"EntryValue TEXT"_s, u"EntryComment TEXT"_s}},
    };
}

std::string CreateStatement(const cTable& table, const char* create)
{
    return std::string(create).append(table.Name).append(" (" + table.Columns.join(u", "_s).toStdString() + ")");
}

struct cColumn
{
    const char* Table;
    const char* Name;
};

// The columns that older files lack.
std::vector<cColumn> AddedColumns()
{
    std::vector<cColumn> columns{{"data", "EntryFlags"}};
    for (const char* name : std::span(modAccountColumns::Names).subspan<modAccountColumns::CreatedCount>()) {
        columns.push_back({"account", name});
    }
    return columns;
}

constexpr std::array<cColumn, 4> indexes{
    {{"import", "importID"}, {"data", "dataID"}, {"template", "templateID"}, {"import", "importAssignedID"}}};

// Old files hold list positions instead of words. Their list of intervals had no "Alle 4 Wochen", and the filter words
// among them are what the user saw at those positions.
constexpr std::array typeWords{"Alle Buchungsarten", "Einnahme", "Ausgabe", "Umbuchung"};
constexpr std::array intervalWords{"Alle",          "Einmalig",      "Alle Intervalle", "Täglich",
                                   "Wöchentlich",   "Alle 2 Wochen", "Monatlich",       "Alle 2 Monate",
                                   "Alle 3 Monate", "Alle 6 Monate", "Jährlich"};

void ConvertCodes(cDatabase& database, const std::string& column, std::span<const char* const> words)
{
    const std::string sql =
        "UPDATE template SET " + column + " = ? WHERE TemplateType = 'Kategorie' AND " + column + " = ?";
    int code = 0;
    for (const char* word : words) {
        database.TryExecute(sql, {QString::fromUtf8(word), QString::number(code)});
        ++code;
    }
}

bool Exists(cDatabase& database, const char* kind, const char* name)
{
    cRows rows(database, "SELECT COUNT(*) FROM main.sqlite_master WHERE type = ? AND name = ? COLLATE NOCASE",
               {QString::fromUtf8(kind), QString::fromUtf8(name)});
    return rows.Next() && rows.Integer(0) > 0;
}

// The columns of a table in lower case, because their names do not differ by case. Read at once: asked for one by one
// they would be a noticeable part of the start.
QStringList ColumnsOf(cDatabase& database, const char* table)
{
    QStringList names;
    cRows rows(database, "SELECT name FROM pragma_table_info(?, 'main')", {QString::fromUtf8(table)});
    while (rows.Next()) {
        names.append(rows.Text(0).toLower());
    }
    return names;
}

std::vector<cColumn> AbsentColumns(cDatabase& database)
{
    std::map<std::string_view, QStringList> present;
    std::vector<cColumn> absent;
    for (const cColumn& column : AddedColumns()) {
        const auto [columns, isNew] = present.try_emplace(column.Table);
        if (isNew) {
            columns->second = ColumnsOf(database, column.Table);
        }
        if (!columns->second.contains(QString::fromUtf8(column.Name).toLower())) {
            absent.push_back(column);
        }
    }
    return absent;
}

// Tables and columns that belong to a current database and are not there.
QStringList AbsentParts(cDatabase& database)
{
    QStringList parts;
    for (const cTable& table : OwnTables()) {
        if (!Exists(database, "table", table.Name)) {
            parts.append(cText::Tr("Tabelle {0}", {QString::fromUtf8(table.Name)}));
        }
    }
    for (const cColumn& column : AbsentColumns(database)) {
        parts.append(cText::Tr("Spalte {0}.{1}", {QString::fromUtf8(column.Table), QString::fromUtf8(column.Name)}));
    }
    return parts;
}

// The tables that come with the template, and columns that every statement names.
const std::vector<cTable>& ShippedTables()
{
    static const std::vector<cTable> tables{
        {"data",
         {u"ID"_s, u"EntryDate"_s, u"EntryDateEnd"_s, u"EntryType"_s, u"EntryInterval"_s, u"EntryAccount"_s,
          u"EntryAccountMove"_s, u"EntryCategory"_s, u"EntryValue"_s, u"EntryDescription"_s}},
        {"template",
         {u"ID"_s, u"EntryType"_s, u"EntryInterval"_s, u"TemplateType"_s, u"TemplateVisible"_s, u"TemplateCategory"_s,
          u"TemplateName"_s, u"TemplateComment"_s, u"TemplatePriority"_s, u"TemplateVAT"_s, u"TemplateDefaultValue"_s}},
        {"import",
         {u"ID"_s, u"ImportAccount"_s, u"ImportDate"_s, u"ImportType"_s, u"ImportPurpose"_s, u"ImportBeneficiary"_s,
          u"ImportBeneficiaryAccount"_s, u"ImportBeneficiaryBLZ"_s, u"ImportValue"_s, u"ImportCurrency"_s,
          u"ImportAssigned"_s, u"ImportAssignedEntry"_s}}};
    return tables;
}

// A table of which something is gone that the upgrade does not bring: it adds whole tables of its own and columns of
// later versions only.
struct cGap
{
    cTable Table;
    QStringList Columns; // that are gone; none: the whole table is
};

std::vector<cGap> Gaps(cDatabase& database)
{
    std::vector<cGap> gaps;
    const auto look = [&](const cTable& table, bool isShipped) {
        const QStringList present = ColumnsOf(database, table.Name);
        QStringList gone;
        for (const QString& column : table.Columns) {
            if (const QString name = column.section(u' ', 0, 0); !present.contains(name.toLower())) {
                gone.append(name);
            }
        }
        if (present.isEmpty() ? isShipped : !gone.isEmpty()) {
            gaps.push_back({table, present.isEmpty() ? QStringList() : gone});
        }
    };
    for (const cTable& table : ShippedTables()) {
        look(table, true);
    }
    for (const cTable& table : OwnTables()) {
        look(table, false);
    }
    return gaps;
}

QStringList AbsentIndexes(cDatabase& database)
{
    QStringList parts;
    for (const cColumn& index : indexes) {
        if (!Exists(database, "index", index.Name)) {
            parts.append(cText::Tr("Index {0}", {QString::fromUtf8(index.Name)}));
        }
    }
    return parts;
}

// None when the database does not tell.
std::optional<QStringList> Absent(cDatabase& database)
{
    try {
        return AbsentParts(database) + AbsentIndexes(database);
    } catch (const cDatabaseError&) {
        return std::nullopt;
    }
}

// The first account's name as entries hold it; empty when there is none.
QString FirstAccount(cDatabase& database)
{
    try {
        cRows rows(database, "SELECT TemplateName FROM template WHERE TemplateType = 'Konto' LIMIT 1");
        return rows.Next() ? modRow::Doubled(rows.Text(0)) : QString{};
    } catch (const cDatabaseError&) {
        return {};
    }
}

void CompleteAccounts(cDatabase& database)
{
    const QString account = FirstAccount(database);
    database.TryExecute("UPDATE data SET EntryAccount = ? WHERE EntryAccount = ''", {account});
    // The AND between the conditions is missing, so SQLite refuses this and transfers without a target stay as they
    // are. That is on purpose: guessing the target would turn money round that the user has to look at.
    database.TryExecute("UPDATE data SET EntryAccountMove = ? WHERE EntryType = 'Umbuchung' EntryAccountMove = ''",
                        {account});
}

void AddTablesAndColumns(cDatabase& database)
{
    for (const cTable& table : OwnTables()) {
        database.TryExecute(CreateStatement(table, "CREATE TABLE "));
    }
    for (const cColumn& column : AddedColumns()) {
        database.TryExecute(std::string("ALTER TABLE ") + column.Table + " ADD " + column.Name + " TEXT");
    }
}

void CreateIndexes(cDatabase& database)
{
    for (const cColumn& index : indexes) {
        const char* column = std::string_view(index.Name) == "importAssignedID" ? "ImportAssignedEntry" : "ID";
        database.TryExecute(std::string("CREATE INDEX '") + index.Name + "' ON '" + index.Table + "' (" + column + ")");
    }
}

// Setting what is set already would write the file, and wait for the disk, at every start.
void VacuumInSteps(cDatabase& database)
{
    constexpr int incremental = 2;
    try {
        cRows rows(database, "PRAGMA auto_vacuum");
        if (rows.Next() && rows.Integer(0) == incremental) {
            return;
        }
    } catch (const cDatabaseError&) {
        // It is tried all the same.
    }
    database.TryExecute("PRAGMA auto_vacuum=2");
}

// What the upgrade does to the tables and their rows. In the file it is one transaction, so that a program that is
// killed meanwhile leaves no half upgraded book; what fails in it is passed over. Where nothing is absent, thirty
// statements are saved that could only fail.
void BringUpToDate(cDatabase& database, const std::optional<QStringList>& absent)
{
    const bool isComplete = absent && absent->isEmpty();
    database.Gather(cDatabase::eGathering::Whole);
    if (!isComplete) {
        AddTablesAndColumns(database);
    }
    ConvertCodes(database, "EntryType", typeWords);
    ConvertCodes(database, "EntryInterval", intervalWords);
    CompleteAccounts(database);
    if (!isComplete) {
        CreateIndexes(database);
    }
    try {
        database.CommitGathered();
    } catch (const cDatabaseError&) {
        // The book stays as old as it is; whoever misses a part says so.
    }
    database.EndGathering();
}

// What cannot be looked at is passed over, as the upgrade does. Whoever reads it next is told why.
bool HasRows(cDatabase& database, const std::string& table, const std::string& condition)
{
    try {
        cRows rows(database, "SELECT 1 FROM main." + table + " WHERE " + condition + " LIMIT 1");
        return rows.Next();
    } catch (const cDatabaseError&) {
        return false;
    }
}

// The tables of the file with columns or rows that the upgrade would change.
std::set<std::string> OutdatedTables(cDatabase& database)
{
    std::set<std::string> tables;
    for (const cColumn& column : AbsentColumns(database)) {
        if (Exists(database, "table", column.Table)) {
            tables.insert(column.Table);
        }
    }
    if (HasRows(database, "data", "EntryAccount = ''")) {
        tables.insert("data");
    }
    if (HasRows(database, "template", "EntryType GLOB '[0-9]*' OR EntryInterval GLOB '[0-9]*'")) {
        tables.insert("template");
    }
    return tables;
}

// Statements that name no schema find temporary tables before those of the file, so the upgrade works on the copies.
// Afterwards nothing can be written, lest a change went into a copy and was lost without a word.
void PutStandIns(cDatabase& database)
{
    constexpr const char* create = "CREATE TEMP TABLE ";
    const std::optional<QStringList> absent = Absent(database);
    database.Execute("PRAGMA temp_store=MEMORY"); // a household's figures belong into no other file
    for (const cTable& table : OwnTables()) {
        if (!Exists(database, "table", table.Name)) {
            database.Execute(CreateStatement(table, create));
        }
    }
    const std::vector<cGap> gaps = Gaps(database);
    std::set<std::string> copied = OutdatedTables(database);
    for (const cGap& gap : gaps) {
        if (gap.Columns.isEmpty()) {
            database.Execute(CreateStatement(gap.Table, create));
        } else {
            copied.insert(gap.Table.Name);
        }
    }
    for (const std::string& table : copied) {
        database.Execute(std::string(create).append(table).append(" AS SELECT * FROM main.").append(table));
    }
    for (const cGap& gap : gaps) {
        for (const QString& column : gap.Columns) {
            database.Execute(
                std::string("ALTER TABLE temp.").append(gap.Table.Name).append(" ADD " + column.toStdString()));
        }
    }
    BringUpToDate(database, absent);
    database.Execute("PRAGMA query_only=ON");
}

// What passes for a table of this program and is none could do anything when it is read.
void CheckShutOut(const QStringList& names)
{
    std::vector<const char*> tables;
    for (const cTable& table : OwnTables()) {
        tables.push_back(table.Name);
    }
    for (const cTable& table : ShippedTables()) {
        tables.push_back(table.Name);
    }
    for (const char* table : tables) {
        if (names.contains(QLatin1StringView(table), Qt::CaseInsensitive)) {
            throw cDatabaseError(eDatabaseFault::Damaged, std::string(table) + " is no table");
        }
    }
}

// The switch for the password is among them: a book whose settings are lost would be open to everybody. A table that is
// missing comes with the upgrade.
void CheckSettings(cDatabase& database)
{
    try {
        cRows rows(database, "SELECT SettingName, SettingValue FROM setting");
        while (rows.Next()) {
            (void)rows.Text(1);
        }
    } catch (const cDatabaseError& error) {
        if (error.Fault() != eDatabaseFault::Other || Exists(database, "table", "setting")) {
            throw;
        }
    }
}

eDatabaseFault TryOpen(cDatabase& database, const QString& path, eOpenMode mode)
{
    try {
        database.Open(path, mode);
        CheckShutOut(database.ShutOut());
        database.Execute("SELECT COUNT(*) FROM data LIMIT 1");
        CheckSettings(database);
        return eDatabaseFault::None;
    } catch (const cDatabaseError& error) {
        database.Close();
        const bool isReachable = error.Fault() == eDatabaseFault::Other || error.Fault() == eDatabaseFault::Full;
        return isReachable ? eDatabaseFault::Damaged : error.Fault();
    }
}

} // namespace

QString modSchema::JoinPath(const QString& folder, const QString& name)
{
    const bool isClosed = folder.endsWith(u'/') || folder.endsWith(u'\\');
    return (isClosed ? folder : QString(folder + u'/')) + name;
}

QString modSchema::DefaultDatabasePath(cShell& shell)
{
    return JoinPath(shell.DataFolder(), u"data.db"_s);
}

QString modSchema::GetDefaultDatabase(cShell& shell, cUser& user)
{
    const QString folder = shell.DataFolder();
    if (folder.isEmpty()) {
        user.Show(eTone::Critical,
                  cText::Tr("FEHLER: GetDefaultDatabase\n {0}",
                            {cText::Tr("Der Datenordner konnte nicht angelegt werden.")}));
        return {};
    }
    const QString path = JoinPath(folder, u"data.db"_s);
    if (shell.FileExists(path)) {
        return path;
    }
    // Another program may have made it meanwhile.
    if (const QString problem = FromTemplate(shell, path); !problem.isEmpty() && !shell.FileExists(path)) {
        user.Show(eTone::Critical, problem);
    }
    return path;
}

QString modSchema::FromTemplate(cShell& shell, const QString& path)
{
    const QString source = shell.InstalledFile(u"template.dat"_s);
    if (!shell.FileExists(source)) {
        return cText::Tr("Die Installation ist beschädigt. Eine Neuinstallation könnte das Problem beheben.\nDie Datei "
                         "'template.dat' konnte nicht gefunden werden!");
    }
    return shell.CopyFile(source, path) ? QString() : CannotCreate(path);
}

QString modSchema::CannotCreate(const QString& path)
{
    return cText::Tr("Die Datenbank konnte nicht erstellt werden. Bitte prüfen Sie die Zugriffsrechte und den "
                     "Speicherplatz: \n{0}",
                     {QDir::toNativeSeparators(QFileInfo(path).absolutePath())});
}

eDatabaseFault modSchema::OpenValid(cDatabase& database, const QString& path, eOpenMode mode)
{
    QElapsedTimer time;
    time.start();
    const eDatabaseFault fault = TryOpen(database, path, mode);
    qCInfo(modLog::Open) << (mode == eOpenMode::ReadOnly ? "for reading" : "for writing") << "fault"
                         << static_cast<int>(fault) << "ms" << time.elapsed();
    return fault;
}

QStringList modSchema::Upgrade(cDatabase& database)
{
    QElapsedTimer time;
    time.start();
    const std::optional<QStringList> before = Absent(database);
    database.TryExecute("PRAGMA synchronous=OFF");
    VacuumInSteps(database);
    BringUpToDate(database, before);
    const QStringList absent = before.value_or(QStringList());
    const QStringList after = absent.isEmpty() ? QStringList() : Absent(database).value_or(absent);
    QStringList added;
    std::copy_if(absent.begin(), absent.end(), std::back_inserter(added),
                 [&](const QString& part) { return !after.contains(part); });
    qCInfo(modLog::Upgrade) << "missing" << absent.size() << "added" << added.size() << "ms" << time.elapsed();
    return added;
}

QStringList modSchema::Missing(cDatabase& database)
{
    try {
        return AbsentParts(database);
    } catch (const cDatabaseError&) {
        return {};
    }
}

QStringList modSchema::Lost(cDatabase& database)
{
    try {
        QStringList parts;
        for (const cGap& gap : Gaps(database)) {
            const QString table = QString::fromUtf8(gap.Table.Name);
            if (gap.Columns.isEmpty()) {
                parts.append(cText::Tr("Tabelle {0}", {table}));
            }
            for (const QString& column : gap.Columns) {
                parts.append(cText::Tr("Spalte {0}.{1}", {table, column}));
            }
        }
        return parts;
    } catch (const cDatabaseError&) {
        return {};
    }
}

eDatabaseFault modSchema::StandIn(cDatabase& database)
{
    try {
        PutStandIns(database);
        return eDatabaseFault::None;
    } catch (const cDatabaseError& error) {
        return error.Fault() == eDatabaseFault::Other ? eDatabaseFault::Damaged : error.Fault();
    }
}

bool modSchema::WasOpenedBy(cDatabase& database, const QString& version)
{
    try {
        cRows rows(database, "SELECT 1 FROM setting WHERE SettingName IN (?, ?) AND SettingValue = ?",
                   {modSettingKey::LastVersion.Name(), modSettingKey::LastCommandLineVersion.Name(), version});
        return rows.Next();
    } catch (const cDatabaseError&) {
        return false;
    }
}
