#pragma once

#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/modSchema.h"
#include "support/cTestEntry.h"
#include "support/cTestFile.h"
#include "support/fakes.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>

// A new book in a temporary folder, made from the shipped template.
class cTestBook
{
    QTemporaryDir m_folder;

public:
    cTestBook() { Configuration.SetDatabase(Settings.get()); }
    ~cTestBook() { modDate::UseForm({}); } // a test may have chosen another
    Q_DISABLE_COPY_MOVE(cTestBook)

    // Adds the usual entry as `change` makes it; the stored entry.
    template <typename tChange>
    cEntryItem Add(tChange change)
    {
        cEntryItem entry = cTestEntry().Make();
        change(entry);
        if (!Data.AddNewEntry(entry)) {
            qFatal("entry not added");
        }
        return entry;
    }

    cEntryItem Add(const cTestEntry& wanted)
    {
        return Add([&](cEntryItem& entry) { entry = wanted.Make(); });
    }

    // Adds an expense as Add does, which comes again and again where an interval is named; the stored entry.
    cEntryItem Spend(QDate day, qint64 cents, const QString& text = {}, const QString& interval = modWord::Einmalig)
    {
        return Add({.Day = day, .Cents = cents, .Text = text, .Interval = interval});
    }

    // Adds a transfer; the stored entry.
    cEntryItem Move(const QString& from, const QString& to, qint64 cents = 1000, QDate day = QDate(2026, 3, 10))
    {
        return Add({.Day = day, .Cents = cents, .Type = modWord::Umbuchung, .Account = from, .Target = to});
    }

    // Another amount for the occurrences of a series between two days.
    void Correct(int id, QDate start, QDate end, qint64 cents)
    {
        if (!Data.AddNewEntryMod({0, id, modWord::Betrag, start, end, cents, {}})) {
            qFatal("correction not added");
        }
    }

    // Adds a row of the bank, which pays the entry with this ID and may name the other account; the stored row.
    cImportEntry Stage(const QString& number, QDate day, qint64 cents, const QString& name = {}, int entry = -1,
                       const QString& otherNumber = {})
    {
        cImportEntry row;
        row.ImportAccount = number;
        row.ImportDate = day;
        row.ImportValue = cents;
        row.ImportBeneficiary = name;
        row.ImportBeneficiaryAccount = otherNumber;
        row.ImportAssigned = entry > 0;
        row.ImportAssignedEntry = entry;
        if (!Data.AddNewImportEntry(row)) {
            qFatal("row not added");
        }
        return row;
    }

    // Adds a category as `change` makes it; its path.
    template <typename tChange>
    QString AddCategory(const QString& path, tChange change)
    {
        cTemplateItem item;
        item.TemplateType = modWord::Kategorie;
        item.TemplateCategory = modTemplate::MainOf(path);
        item.TemplateName = modTemplate::SubOf(path);
        change(item);
        if (!Data.AddNewTemplate(item)) {
            qFatal("category not added");
        }
        return path;
    }

    // Puts a file beside the book; its path.
    [[nodiscard]] QString WriteFile(const QString& name, const QByteArray& bytes) const
    {
        cTestFile::Write(m_folder.filePath(name), bytes);
        return m_folder.filePath(name);
    }

    // Makes a table unreadable and opens the book again.
    void Damage(const std::string& table)
    {
        const QString path = Path();
        cTestFile::Damage(path, table);
        Database.Open(path, eOpenMode::ReadWrite);
    }

    QString Path() const { return Database.Path(); }

    cFakeUser User;
    cFakeClock Clock;
    cFakeShell Shell;
    cFakeRegistry Registry;
    cDatabase Database;
    cDataAccess Data{Database, User};
    std::unique_ptr<cSettings> Settings{OpenSettings()};
    cConfiguration Configuration{Registry};
    cAmountFormat Format{Configuration}; // German, unless a test says otherwise
    const cBookTools Tools{Data, *Settings, Format, User, Clock};

private:
    std::unique_ptr<cSettings> OpenSettings()
    {
        Database.Open(m_folder.filePath(QStringLiteral("buch.db")), eOpenMode::Create);
        QFile sql(QStringLiteral(TEST_DATA "/../../data/template.sql"));
        if (!sql.open(QIODevice::ReadOnly)) {
            qFatal("data/template.sql is missing");
        }
        Database.ExecuteScript(sql.readAll().toStdString());
        modSchema::Upgrade(Database);
        return std::make_unique<cSettings>(Data);
    }
};
