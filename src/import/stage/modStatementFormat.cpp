#include "import/stage/modStatementFormat.h"

#include "base/cText.h"
#include "import/mt940/modMT940File.h"
#include "import/qif/modQif.h"
#include "import/read/modStatementText.h"
#include "import/sheet/modSpreadsheet.h"
#include "import/stage/modStatementArchive.h"
#include "import/xml/modCamt.h"
#include "import/xml/modOfx.h"

#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

bool EndsIn(const QString& name, const QStringList& ends)
{
    return std::any_of(ends.begin(), ends.end(), [&](const QString& end) { return name.endsWith(end); });
}

bool IsSpreadsheet(const QString& name, const cStatementSource& source)
{
    return EndsIn(name, {u".XLSX"_s, u".XLS"_s}) || modSpreadsheet::IsWorkbook(source);
}

bool IsPdf(const QString& name, const cStatementSource& /*source*/)
{
    return EndsIn(name, {u".PDF"_s});
}

bool IsRefused(const QString& name, const cStatementSource& /*source*/)
{
    return EndsIn(name, {u".LNK"_s, u".SHS"_s});
}

// The tags of a statement that have been met in a text.
struct cTags
{
    bool Opening = false;
    bool Closing = false;
    bool Start = false;
    bool Transaction = false;
    bool Details = false;

    void Meet(QStringView tag)
    {
        Opening = Opening || tag == u":60F:" || tag == u":60M:";
        Closing = Closing || tag == u":62F:" || tag == u":62M:";
        Start = Start || tag.startsWith(u":20:");
        Transaction = Transaction || tag.startsWith(u":61:");
        Details = Details || tag.startsWith(u":86:");
    }

    [[nodiscard]] bool AreEnough() const { return (Opening && Closing) || (Start && Transaction && Details); }
};

bool IsMt940(const QString& name, const cStatementSource& source)
{
    cTags tags;
    // A file that already calls itself so need not have details to every transaction.
    tags.Details = EndsIn(name, {u".MT940"_s, u".MT942"_s, u".MT9"_s, u".STA"_s});
    const QStringView text = source.Text;
    // A long text that is none is gone through once.
    for (qsizetype at = text.indexOf(u':'); at >= 0 && !tags.AreEnough(); at = text.indexOf(u':', at + 1)) {
        const QStringView tag = text.sliced(at).first(qMin<qsizetype>(5, text.size() - at));
        if (tag.size() >= 4 && (tag[1] == u'2' || tag[1] == u'6' || tag[1] == u'8')) {
            tags.Meet(tag);
        }
    }
    return tags.AreEnough();
}

bool IsOfx(const QString& /*name*/, const cStatementSource& source)
{
    return modOfx::IsOfx(source.Text);
}

bool IsQif(const QString& /*name*/, const cStatementSource& source)
{
    return modQif::IsQif(source.Text);
}

bool IsCamt(const QString& /*name*/, const cStatementSource& source)
{
    return modCamt::IsCamt(source);
}

bool IsArchive(const QString& /*name*/, const cStatementSource& source)
{
    return modStatementArchive::IsArchive(source);
}

bool IsText(const QString& /*name*/, const cStatementSource& source)
{
    return source.Bytes.isEmpty() || !source.Text.isEmpty();
}

cStatementRead ReadMt940(const cStatementSource& source, const cReadOptions& options)
{
    return modMT940File::Read(source.Text, options.Account, options.StrayDetails);
}

struct cFormat
{
    eStatementFormat Format;
    const char* Name; // display name
    bool (*IsOfFormat)(const QString& upperName, const cStatementSource& source);
    modStatementFormat::cReader Read; // null: known, but not read
};

// Asked from top to bottom, the first recogniser that agrees decides. A new format is one line here.
constexpr std::array formats = {
    cFormat{eStatementFormat::Spreadsheet, QT_TRANSLATE_NOOP("cText", "Tabellenkalkulation (XLS/XLSX-Datei)"),
            IsSpreadsheet, modSpreadsheet::Read},
    cFormat{eStatementFormat::Pdf, QT_TRANSLATE_NOOP("cText", "Portable Document Format (PDF-Datei)"), IsPdf, nullptr},
    cFormat{eStatementFormat::Unknown, QT_TRANSLATE_NOOP("cText", "Unbekanntes Dateiformat"), IsRefused, nullptr},
    // Looks at the head of the text only, so it is asked before those that search all of it.
    cFormat{eStatementFormat::Camt, QT_TRANSLATE_NOOP("cText", "SEPA-Kontoauszug (camt-Datei)"), IsCamt, modCamt::Read},
    cFormat{eStatementFormat::Archive, QT_TRANSLATE_NOOP("cText", "ZIP-Archiv mit Kontoauszügen"), IsArchive,
            modStatementArchive::Read},
    cFormat{eStatementFormat::Mt940, QT_TRANSLATE_NOOP("cText", "SWIFT-Kontoauszug (MT940/MT942-Datei)"), IsMt940,
            ReadMt940},
    cFormat{eStatementFormat::Ofx, QT_TRANSLATE_NOOP("cText", "Open Financial Exchange (OFX-Datei)"), IsOfx,
            modOfx::Read},
    cFormat{eStatementFormat::Qif, QT_TRANSLATE_NOOP("cText", "Quicken Interchange Format (QIF-Datei)"), IsQif,
            modQif::Read},
    cFormat{eStatementFormat::Csv, QT_TRANSLATE_NOOP("cText", "Character Separated Values (CSV-Datei)"), IsText,
            modSpreadsheet::ReadText},
};

const cFormat* Find(eStatementFormat format)
{
    const auto* const found =
        std::find_if(formats.begin(), formats.end(), [&](const cFormat& known) { return known.Format == format; });
    return found == formats.end() ? nullptr : found;
}

} // namespace

eStatementFormat DetectStatementFormat(const QString& fileName, const QString& text)
{
    return modStatementFormat::Detect({fileName, {}, text});
}

cStatementSource modStatementFormat::Source(const QString& fileName, const QByteArray& bytes, eCharset charset)
{
    const cStatementSource packed{fileName, bytes, {}};
    if (modCamt::IsCamt(packed)) {
        return packed; // its reader takes the bytes, which are many
    }
    const bool isText = charset != eCharset::Detect || !modStatementText::IsBinary(bytes);
    return {fileName, bytes, isText ? modStatementText::Decode(bytes, charset) : QString()};
}

eStatementFormat modStatementFormat::Detect(const cStatementSource& source)
{
    const QString upperName = source.Name.toUpper();
    const auto* const found = std::find_if(formats.begin(), formats.end(),
                                           [&](const cFormat& format) { return format.IsOfFormat(upperName, source); });
    return found == formats.end() ? eStatementFormat::Unknown : found->Format;
}

QString modStatementFormat::Name(eStatementFormat format)
{
    const cFormat* const known = Find(format);
    return known == nullptr ? QString() : cText::Tr(known->Name);
}

bool modStatementFormat::IsTable(eStatementFormat format)
{
    return format == eStatementFormat::Csv || format == eStatementFormat::Spreadsheet;
}

modStatementFormat::cReader modStatementFormat::Reader(eStatementFormat format)
{
    const cFormat* const known = Find(format);
    return known == nullptr ? nullptr : known->Read;
}

QString modStatementFormat::WayOut(eStatementFormat format)
{
    return u'\n'
        + (format == eStatementFormat::Pdf
               ? cText::Tr(
                   "Laden Sie die Umsätze bei der Bank als CAMT-, MT940- oder CSV-Datei herunter. Den PDF-Auszug "
                   "selbst können Sie aufheben: unter „Extras“, „Kontoauszug anzeigen“, „PDF-Auszüge…“. Eine "
                   "Rechnung hängen Sie als Beleg an ihren Eintrag.")
               : cText::Tr("Laden Sie die Umsätze bei der Bank als CAMT-, MT940- oder CSV-Datei herunter."));
}

QString modStatementFormat::Refusal(eStatementFormat format)
{
    return cText::Tr("Dieses Format kann nicht eingelesen werden: {0}", {Name(format)});
}
