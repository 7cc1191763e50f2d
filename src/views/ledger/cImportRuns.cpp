#include "views/ledger/cImportRuns.h"

#include "core/cSettings.h"
#include "import/stage/modStatementFormat.h"
#include "model/modSettingKey.h"

#include <QStringList>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

using cRange = cImportRuns::cRange;

constexpr qsizetype mostImports = 1000; // ten years of two files a week: of older ones nobody knows the format

cRange RangeOf(const QList<int>& ids, QChar kind = {})
{
    const auto [first, last] = std::minmax_element(ids.begin(), ids.end());
    return {*first, *last, kind};
}

cRange Whole(const QList<cRange>& files)
{
    return files.isEmpty() ? cRange() : cRange{files.constFirst().First, files.constLast().Last};
}

// Formats of one kind name the same day of a booking: a bank packs its camt files into archives.
QChar KindOf(eStatementFormat format)
{
    switch (format) {
    case eStatementFormat::Mt940: return u'm';
    case eStatementFormat::Camt:
    case eStatementFormat::Archive: return u'c';
    case eStatementFormat::Ofx: return u'o';
    case eStatementFormat::Qif: return u'q';
    case eStatementFormat::Csv:
    case eStatementFormat::Spreadsheet: return u't';
    case eStatementFormat::Pdf:
    case eStatementFormat::Unknown: break;
    }
    return {};
}

// "1-5m,6-17t": the files of an import, each with the kind of its format where that is known
QList<cRange> FilesIn(const QString& text)
{
    QList<cRange> files;
    const QStringList parts = text.split(u',', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        const QChar kind = part.back().isLetter() ? part.back() : QChar();
        const QString last = part.section(u'-', 1).chopped(kind.isNull() ? 0 : 1);
        const cRange file{part.section(u'-', 0, 0).toInt(), last.toInt(), kind};
        if (file.First > 0 && file.Last >= file.First) {
            files.append(file);
        }
    }
    return files;
}

QString TextOf(const QList<cRange>& files)
{
    QStringList parts;
    for (const cRange& file : files) {
        const QString kind = file.Kind.isNull() ? QString() : QString(file.Kind);
        parts.append(u"%1-%2%3"_s.arg(QString::number(file.First), QString::number(file.Last), kind));
    }
    return parts.join(u',');
}

// Leaves the rows below the ID.
void CutAt(QList<cRange>& files, int id)
{
    files.removeIf([&](const cRange& file) { return file.First >= id; });
    if (!files.isEmpty()) {
        files.last().Last = qMin(files.constLast().Last, id - 1);
    }
}

} // namespace

QList<QList<cRange>> cImportRuns::Imports() const
{
    QList<QList<cRange>> imports;
    const QStringList texts = m_settings.Get(modSettingKey::ImportRuns).split(u';', Qt::SkipEmptyParts);
    for (const QString& text : texts) {
        const QList<cRange> files = FilesIn(text);
        if (!files.isEmpty()) {
            imports.append(files);
        }
    }
    return imports;
}

void cImportRuns::NoteFile(const QList<int>& ids, eStatementFormat format)
{
    if (!ids.isEmpty()) {
        m_files.append(RangeOf(ids, KindOf(format)));
        Keep(m_files);
    }
}

void cImportRuns::NoteImport(const QList<int>& ids)
{
    const QList<cRange> files = std::exchange(m_files, {});
    if (!ids.isEmpty()) {
        Keep(files.isEmpty() ? QList<cRange>{RangeOf(ids)} : files);
    }
}

// Instead of what was kept of it while it was under way.
void cImportRuns::Keep(const QList<cRange>& import)
{
    QList<QList<cRange>> imports = Imports();
    for (QList<cRange>& other : imports) {
        CutAt(other, import.constFirst().First);
    }
    imports.removeIf([](const QList<cRange>& other) { return other.isEmpty(); });
    imports.append(import);
    Store(imports);
}

void cImportRuns::NoteMore(const QList<int>& ids)
{
    QList<QList<cRange>> imports = Imports();
    if (ids.isEmpty() || imports.isEmpty()) {
        NoteImport(ids);
        return;
    }
    imports.last().last().Last = RangeOf(ids).Last;
    Store(imports);
}

void cImportRuns::Store(const QList<QList<cRange>>& imports)
{
    QStringList texts;
    for (const QList<cRange>& import : imports.last(qMin(imports.size(), mostImports))) {
        texts.append(TextOf(import));
    }
    m_settings.Set(modSettingKey::ImportRuns, texts.join(u';'));
}

cRange cImportRuns::ImportOf(int id) const
{
    const QList<QList<cRange>> imports = Imports();
    for (const QList<cRange>& import : imports) {
        const cRange whole = Whole(import);
        if (id >= whole.First && id <= whole.Last) {
            return whole;
        }
    }
    return {};
}

cRange cImportRuns::Latest() const
{
    const QList<QList<cRange>> imports = Imports();
    return imports.isEmpty() ? cRange() : Whole(imports.constLast());
}

QList<cRange> cImportRuns::Files() const
{
    QList<cRange> files;
    const QList<QList<cRange>> imports = Imports();
    for (const QList<cRange>& import : imports) {
        files.append(import);
    }
    return files;
}

cRange cImportRuns::FileOf(const QList<cRange>& files, int id)
{
    const auto file = std::lower_bound(files.begin(), files.end(), id,
                                       [](const cRange& each, int wanted) { return each.Last < wanted; });
    return file == files.end() || file->First > id ? cRange() : *file;
}
