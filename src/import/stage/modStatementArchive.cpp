#include "import/stage/modStatementArchive.h"

#include "base/cText.h"
#include "import/read/modStatementFile.h"
#include "import/stage/modStatementFormat.h"
#include "import/zip/modZip.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 largestArchive = qint64{512} * 1024 * 1024; // bytes of all its files together, unpacked

// Files in order, without those that only some systems put beside them.
QStringList NamesOf(const QByteArray& zip)
{
    QStringList names = modZip::Names(zip);
    names.removeIf(
        [](const QString& name) { return name.startsWith(u"__MACOSX/") || name.section(u'/', -1).startsWith(u'.'); });
    names.sort(); // they carry dates or numbers: the last one has the last balance
    return names;
}

class cArchiveReader
{
public:
    cArchiveReader(const QByteArray& zip, const cReadOptions& options) : m_zip(zip), m_options(options) {}

    [[nodiscard]] cStatementRead Run()
    {
        const QStringList names = NamesOf(m_zip);
        if (modZip::Names(m_zip).size() >= modZip::mostFiles) {
            return cStatementRead::Refused(cText::Tr("Das ZIP-Archiv enthält zu viele Dateien."));
        }
        for (const QString& name : names) {
            if (const QString refusal = Take(name); !refusal.isEmpty()) {
                cStatementRead read = cStatementRead::Refused(refusal);
                read.HasStrayDetails = m_hasStrayDetails;
                return read;
            }
            if (m_all.Entries.size() + m_all.Skipped.size() > cStatementRead::mostEntries) {
                return cStatementRead::TooMany();
            }
        }
        if (m_statements == 0) {
            return cStatementRead::Refused(cText::Tr("Im ZIP-Archiv ist kein Kontoauszug, der gelesen werden kann."));
        }
        if (m_nameless > 1) {
            return cStatementRead::Refused(
                cText::Tr("Mehrere Dateien im ZIP-Archiv nennen ihr Konto nicht. Entpacken Sie das Archiv, "
                          "und lesen Sie die Dateien einzeln ein."));
        }
        return std::move(m_all);
    }

private:
    // Why nothing of the archive may be taken; empty when the file was read or passed over.
    [[nodiscard]] QString Take(const QString& name)
    {
        const std::optional<QByteArray> bytes = modZip::Read(m_zip, name, std::min(m_rest, modZip::largestFile));
        if (!bytes) {
            return cText::Tr("Die Datei '{0}' im ZIP-Archiv ist beschädigt, verschlüsselt oder zu groß. Es wurde "
                             "nichts übernommen.",
                             {name});
        }
        m_rest -= bytes->size();
        if (const QString refusal = modStatementFile::Overlong(*bytes); !refusal.isEmpty()) {
            return cText::Tr("Die Datei '{0}' im ZIP-Archiv: {1}", {name, refusal});
        }
        const cStatementSource source = modStatementFormat::Source(name, *bytes, m_options.Table.Charset);
        const eStatementFormat format = modStatementFormat::Detect(source);
        const modStatementFormat::cReader reader =
            format == eStatementFormat::Archive ? nullptr : modStatementFormat::Reader(format);
        if (reader == nullptr) {
            Note(name, modStatementFormat::Refusal(format));
            return {};
        }
        const cStatementRead read = reader(source, m_options);
        if (read.Refusal.isEmpty()) {
            m_all.Formats.append(format);
            Add(name, read);
            return {};
        }
        if (format == eStatementFormat::Csv && !name.endsWith(u".xml", Qt::CaseInsensitive)) {
            Note(name, read.Refusal); // any text comes to this reader, also that of a letter
            return {};
        }
        m_hasStrayDetails = read.HasStrayDetails;
        return cText::Tr("Die Datei '{0}' im ZIP-Archiv: {1}", {name, read.Refusal});
    }

    void Note(const QString& name, const QString& text)
    {
        m_all.Problems.append({0, cText::Tr("{0}: {1}", {name, text})});
    }

    void Add(const QString& name, cStatementRead read)
    {
        ++m_statements;
        for (cReadProblem& problem : read.Problems) {
            problem.Text = cText::Tr("{0}: {1}", {name, problem.Text});
        }
        for (cSkippedRow& row : read.Skipped) {
            row.Reason.Text = cText::Tr("{0}: {1}", {name, row.Reason.Text});
        }
        m_all.WasNameless = m_all.WasNameless || read.WasNameless;
        m_all.Append(read);
        if (read.Doubt && m_all.Refusal.isEmpty()) {
            m_all.Refusal = cText::Tr("{0}: {1} Entpacken Sie das Archiv und lesen Sie diese Datei einzeln ein.",
                                      {name, modStatementFile::OpenSign()});
        }
        if (read.IsGuessed) {
            Note(name, modStatementFile::GuessedColumns());
        }
        if (read.NeedsAccount) {
            ++m_nameless;
            m_all.AccountKey = read.AccountKey;
        }
    }

    const QByteArray& m_zip;
    const cReadOptions& m_options;
    qint64 m_rest = largestArchive;
    int m_statements = 0;
    bool m_hasStrayDetails = false; // why the file at hand is refused
    int m_nameless = 0;             // of these: without an account
    cStatementRead m_all;
};

} // namespace

bool modStatementArchive::IsArchive(const cStatementSource& source)
{
    return modZip::IsZip(source.Bytes) && !modZip::Names(source.Bytes).contains(u"[Content_Types].xml"_s);
}

cStatementRead modStatementArchive::Read(const cStatementSource& source, const cReadOptions& options)
{
    return cArchiveReader(source.Bytes, options).Run();
}
