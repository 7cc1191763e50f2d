#include "import/xml/modCamt.h"

#include "base/cText.h"
#include "import/modStatementText.h"
#include "import/xml/modCamtDocument.h"
#include "import/xml/modZip.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype headSize = 8000;                         // bytes in which the message must name itself
constexpr qint64 largestArchive = qint64{512} * 1024 * 1024; // bytes of all its files together, unpacked

bool IsXmlName(const QString& name)
{
    return name.endsWith(u".xml", Qt::CaseInsensitive) && !name.startsWith(u"[Content_Types]");
}

QStringList XmlNames(const QByteArray& zip)
{
    QStringList names = modZip::Names(zip);
    const bool isSpreadsheet = names.contains(u"[Content_Types].xml"_s);
    names.removeIf([&](const QString& name) { return isSpreadsheet || !IsXmlName(name); });
    names.sort(); // they carry dates or numbers: the last one has the last balance
    return names;
}

cStatementRead Refused(const QString& reason)
{
    cStatementRead read;
    read.Refusal = reason;
    return read;
}

void Add(cStatementRead& all, const cStatementRead& read)
{
    all.Entries += read.Entries;
    all.Problems += read.Problems;
    all.Skipped += read.Skipped;
    all.Balances += read.Balances;
    all.NeedsAccount = all.NeedsAccount || read.NeedsAccount;
    all.ClosingBalance = read.ClosingBalance ? read.ClosingBalance : all.ClosingBalance;
}

// One file of the archive that cannot be read spoils it all: nobody would notice the gap.
cStatementRead ReadArchive(const QByteArray& zip, const cReadOptions& options)
{
    cStatementRead all;
    qint64 rest = largestArchive;
    const QStringList names = XmlNames(zip);
    for (const QString& name : names) {
        const std::optional<QByteArray> xml = modZip::Read(zip, name, std::min(rest, modZip::largestFile));
        if (!xml) {
            return Refused(cText::Tr("Die Datei '{0}' im ZIP-Archiv ist beschädigt, verschlüsselt oder zu groß. "
                                     "Es wurde nichts übernommen.",
                                     {name}));
        }
        rest -= xml->size();
        const cStatementRead read = modCamtDocument::Read(*xml, options);
        if (!read.Refusal.isEmpty()) {
            return Refused(cText::Tr("Die Datei '{0}' im ZIP-Archiv: {1}", {name, read.Refusal}));
        }
        Add(all, read);
    }
    return all;
}

} // namespace

bool modCamt::IsCamt(const cStatementSource& source)
{
    if (modZip::IsZip(source.Bytes)) {
        return !XmlNames(source.Bytes).isEmpty();
    }
    return modCamtDocument::IsCamt(source.Bytes.isEmpty() ? source.Text
                                                          : modStatementText::Decode(source.Bytes.left(headSize)));
}

cStatementRead modCamt::Read(const cStatementSource& source, const cReadOptions& options)
{
    if (modZip::IsZip(source.Bytes)) {
        return ReadArchive(source.Bytes, options);
    }
    return modCamtDocument::Read(source.Bytes.isEmpty() ? source.Text.toUtf8() : source.Bytes, options);
}
