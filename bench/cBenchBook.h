#pragma once

#include "core/cAmountFormat.h"
#include "core/cBook.h"
#include "core/cBookTools.h"
#include "core/cConfiguration.h"
#include "support/fakes.h"

#include <QDate>
#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <optional>

// A book of the example household in a temporary folder.
class cBenchBook
{
public:
    // Without entries it is a new book.
    explicit cBenchBook(int entries);

    [[nodiscard]] cBook& Book() { return *m_book; }
    [[nodiscard]] const cBookTools& Tools() const { return *m_tools; }
    [[nodiscard]] cConfiguration& Configuration() { return m_configuration; }
    [[nodiscard]] QString Path() const { return m_folder.filePath(QStringLiteral("book.db")); }

    // The same 100,000 entries for all measurements of a run.
    [[nodiscard]] static cBenchBook& Large();

    static constexpr QDate Today = QDate::fromJulianDay(2461115); // 2026-03-15

private:
    QTemporaryDir m_folder;
    cFakeUser m_user;
    cFakeClock m_clock{Today};
    cFakeRegistry m_registry;
    cConfiguration m_configuration{m_registry};
    cAmountFormat m_format{m_configuration};
    std::unique_ptr<cBook> m_book;
    std::optional<cBookTools> m_tools;
};
