#pragma once

#include "store/cDataAccess.h"
#include "store/modSchema.h"
#include "support/cTestFile.h"
#include "support/fakes.h"

// An upgraded file with its operations, which wait for nobody.
struct cOpenedFile
{
    explicit cOpenedFile(const std::string& sql = {})
    {
        Database.Open(File.Make(sql), eOpenMode::ReadWrite);
        modSchema::Upgrade(Database);
    }

    [[nodiscard]] QString Value(const std::string& sql) { return cTestFile::Value(Database, sql); }

    cTestFile File;
    cFakeUser User;
    cDatabase Database{0};
    cDataAccess Data{Database, User};
};
