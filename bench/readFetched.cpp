// A statement that comes as a bank's answer beside the same one as a file, each into a book of its own, the first and
// the second time.
//   readFetched FILE   MT940, or camt with the ending .xml; bench/fetching.sh writes both and runs it
#include "base/cProgress.h"
#include "bench/cBenchBook.h"
#include "fints/cBankAnswer.h"
#include "import/stage/cBankBalances.h"
#include "import/stage/cFetchedStatement.h"
#include "import/stage/cFetchMemory.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cStatementImport.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>

namespace {

// The message as it comes out of its envelope for the transport.
QByteArray Answer(const QByteArray& statement, bool isCamt)
{
    const QByteArray block = '@' + QByteArray::number(statement.size()) + '@' + statement;
    const QByteArray head = isCamt ? "HICAZ:4:1:3+DE02100200300001234567+urn?:camt+" : "HIKAZ:4:5:3+";
    const QByteArray rest = "+300+D1+2+D1:2'HIRMG:2:2+0010::ok.'" + head + block + "'HNHBS:5:1+2'";
    constexpr qsizetype before = 22; // "HNHBK:1:3+" and the size
    return "HNHBK:1:3+" + QByteArray::number(before + rest.size()).rightJustified(12, '0') + rest;
}

class cRun
{
public:
    explicit cRun(const QByteArray& bytes, const QString& name)
        : m_bytes(bytes),
          m_name(name),
          m_answer(Answer(bytes, name.endsWith(QStringLiteral(".xml"))))
    {
    }

    // Both in milliseconds of the processor, which do not depend on what else the machine does.
    double File()
    {
        return Measure([this] { return ReadFile(); });
    }
    double Fetched()
    {
        return Measure([this] { return Fetch(); });
    }

private:
    template <typename tWork>
    double Measure(const tWork& work)
    {
        const std::clock_t start = std::clock();
        const cImportResult result = work();
        const double milliseconds = 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
        if (result.IsRefused || result.Read == 0) {
            qFatal("not read: %s", qUtf8Printable(result.Message));
        }
        return milliseconds;
    }

    cImportResult ReadFile()
    {
        return m_import.ImportSource(modStatementFormat::Source(m_name, m_bytes), {}, m_progress);
    }

    cImportResult Fetch()
    {
        const std::optional<cBankAnswer> answer = cBankAnswer::Read(m_answer);
        if (!answer) {
            qFatal("no answer");
        }
        cFetchMemory memory(m_book.Book().Settings(), QStringLiteral("10020030:1234567"));
        return m_import.ImportFetched({.Name = {},
                                       .Account = QStringLiteral("1234567"),
                                       .Mt940 = QString::fromUtf8(answer->BookedMT940()),
                                       .Camt = answer->BookedCamt(),
                                       .LastDay = QDate(2025, 11, 30),
                                       .Memory = &memory},
                                      {}, m_progress);
    }

    QByteArray m_bytes;
    QString m_name;
    QByteArray m_answer;
    cBenchBook m_book{0};
    cImportHiveCache m_hive{m_book.Book().Data()};
    cBankBalances m_balances{m_book.Book().Settings()};
    cStatementImport m_import{m_book.Book().Data(), m_hive, nullptr, &m_balances};
    cNoProgress m_progress;
};

} // namespace

int main(int argc, char** argv)
{
    QFile file(argc == 2 ? QString::fromLocal8Bit(argv[1]) : QString());
    if (!file.open(QIODevice::ReadOnly)) {
        std::fputs("no file\n", stderr);
        return 2;
    }
    const QByteArray bytes = file.readAll();
    constexpr int rounds = 3; // the quickest of them counts
    std::array<double, 4> best{1e9, 1e9, 1e9, 1e9};
    for (int i = 0; i < rounds; ++i) {
        cRun read(bytes, file.fileName());
        cRun fetched(bytes, file.fileName());
        const std::array<double, 4> times{read.File(), fetched.Fetched(), read.File(), fetched.Fetched()};
        std::transform(times.begin(), times.end(), best.begin(), best.begin(),
                       [](double a, double b) { return std::min(a, b); });
    }
    std::printf("first time   file %8.1f ms   answer %8.1f ms   %4.2f\n", best[0], best[1], best[1] / best[0]);
    std::printf("second time  file %8.1f ms   answer %8.1f ms   %4.2f\n", best[2], best[3], best[3] / best[2]);
    return 0;
}
