#include "bench/cBenchBook.h"

#include "core/modDemo.h"

#include <QFile>

cBenchBook::cBenchBook(int entries)
{
    const bool isCopied = QFile::copy(QStringLiteral(TEMPLATE), Path());
    m_book = std::make_unique<cBook>(m_user);
    if (!isCopied || !m_book->Open(Path())) {
        qFatal("no book to measure");
    }
    m_tools.emplace(cBookTools{m_book->Data(), m_book->Settings(), m_format, m_user, m_clock});
    if (entries > 0 && !modDemo::Write(m_book->Data(), modDemo::OfSize(entries, Today))) {
        qFatal("the book could not be filled");
    }
}

cBenchBook& cBenchBook::Large()
{
    static cBenchBook book(100000);
    return book;
}
