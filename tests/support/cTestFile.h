#pragma once

#include "store/cDatabase.h"

#include <QFile>
#include <QTemporaryDir>

// Database files as older programs left them: the tables of the template and nothing else.
class cTestFile
{
public:
    static constexpr const char* Tables =
        "CREATE TABLE data (ID INTEGER PRIMARY KEY, EntryDate TEXT, EntryDateEnd TEXT, EntryType TEXT, EntryInterval "
        "TEXT,"
        " EntryAccount TEXT, EntryAccountMove TEXT, EntryCategory TEXT, EntryValue TEXT, EntryDescription TEXT);"
        "CREATE TABLE template (ID INTEGER PRIMARY KEY, EntryType TEXT, EntryInterval TEXT, TemplateType TEXT,"
        " TemplateVisible TEXT, TemplateCategory TEXT, TemplateName TEXT, TemplateComment TEXT, TemplatePriority TEXT,"
        " TemplateVAT TEXT, TemplateDefaultValue TEXT);"
        "CREATE TABLE import (ID INTEGER PRIMARY KEY, ImportAccount TEXT, ImportDate TEXT, ImportType TEXT, "
        "ImportPurpose TEXT,"
        " ImportBeneficiary TEXT, ImportBeneficiaryAccount TEXT, ImportBeneficiaryBLZ TEXT, ImportValue TEXT,"
        " ImportCurrency TEXT, ImportAssigned TEXT, ImportAssignedEntry TEXT);"
        "INSERT INTO template (TemplateType, TemplateName) VALUES ('Konto', 'Girokonto');";

    [[nodiscard]] QString Path(const QString& name = QStringLiteral("data.db")) const
    {
        return m_folder.filePath(name);
    }
    [[nodiscard]] QString Folder() const { return m_folder.path(); }

    // Runs statements on a file, which is made when missing.
    static void Run(const QString& path, const std::string& sql)
    {
        cDatabase database;
        database.Open(path, eOpenMode::Create);
        database.Execute("PRAGMA synchronous=OFF");
        database.ExecuteScript(sql);
    }

    // A file with the tables and what `more` puts into them; its path, which not everybody needs.
    // NOLINTNEXTLINE(modernize-use-nodiscard)
    QString Make(const std::string& more = {}, const QString& name = QStringLiteral("data.db")) const
    {
        Run(Path(name), Tables + more);
        return Path(name);
    }

    static void Write(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("cannot write a test file");
        }
    }

    [[nodiscard]] static QByteArray Bytes(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // The first column of the first row.
    [[nodiscard]] static QString Value(cDatabase& database, const std::string& sql)
    {
        cRows rows(database, sql);
        return rows.Next() ? rows.Text(0) : QStringLiteral("(no row)");
    }

    // Overwrites the page where a table begins: the file opens, and only who reads the table comes upon it.
    static void Damage(const QString& path, const std::string& table)
    {
        cDatabase database;
        database.Open(path, eOpenMode::ReadOnly);
        const int root = Value(database, "SELECT rootpage FROM sqlite_master WHERE name = '" + table + "'").toInt();
        const int size = Value(database, "PRAGMA page_size").toInt();
        database.Close();
        if (root < 1) {
            qFatal("no table %s in %s", table.c_str(), qPrintable(path));
        }
        QByteArray bytes = Bytes(path);
        bytes.replace(qsizetype{root - 1} * size, size, QByteArray(size, 'x'));
        Write(path, bytes);
    }

private:
    QTemporaryDir m_folder;
};
