#pragma once

#include "core/cSettings.h"
#include "import/cAccountMap.h"
#include "import/cImportHiveCache.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/modSchema.h"
#include "support/fakes.h"

#include <QFile>
#include <QTemporaryDir>

#include <string>

// A fresh book in a temporary file, with the accounts and categories of the template.
struct cTestBook
{
    [[nodiscard]] QString Path() const { return m_folder.filePath(QStringLiteral("data.db")); }

    // What another program would do to the file.
    void WriteBehind(const std::string& sql) const
    {
        cDatabase other;
        other.Open(Path(), eOpenMode::ReadWrite);
        other.Execute(sql);
    }

private:
    // Runs between the members below: the settings read the open database.
    bool Make()
    {
        Database.Open(Path(), eOpenMode::Create);
        QFile script(QStringLiteral(TEST_DATA "/../../data/template.sql"));
        if (!script.open(QIODevice::ReadOnly)) {
            return false;
        }
        Database.ExecuteScript(script.readAll().toStdString());
        modSchema::Upgrade(Database);
        return true;
    }

    QTemporaryDir m_folder;

public:
    cFakeUser User;
    cDatabase Database;
    bool IsMade = Make();
    cDataAccess Data{Database, User};
    cSettings Settings{Data};
    cImportHiveCache Hive{Data};
    cAccountMap Accounts{Data, Settings};
};
