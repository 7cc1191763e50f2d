#include "import/read/modStatementFile.h"

#include "base/cText.h"
#include "import/read/modStatementText.h"

#include <QByteArrayView>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr qint64 largestFile = qint64{256} * 1024 * 1024; // bytes; years of statements stay far below
// Bytes of a line, or of a tag with its text. A purpose has some hundred; readers hold a field several times over.
constexpr qsizetype longestField = qsizetype{1} << 20;
constexpr qsizetype headSize = 4096;

bool IsPacked(const QByteArray& bytes)
{
    return bytes.startsWith("PK") || bytes.startsWith("\xD0\xCF\x11\xE0") || modStatementText::IsBinary(bytes);
}

bool IsMarkup(const QByteArray& bytes)
{
    const QByteArray head = bytes.left(headSize);
    return head.startsWith('<') || head.startsWith("\xEF\xBB\xBF<") || head.trimmed().startsWith('<')
        || head.toUpper().contains("<OFX");
}

// Where the field that begins at `start` is too long; -1 when none is. Looks at one place in a megabyte and goes back
// from there, so it costs nothing.
template <typename tIsEnd>
qsizetype FindOverlong(QByteArrayView bytes, tIsEnd isEnd)
{
    qsizetype start = 0;
    while (bytes.size() - start > longestField) {
        const QByteArrayView window = bytes.sliced(start + 1, longestField);
        const auto last = std::find_if(window.rbegin(), window.rend(), isEnd);
        if (last == window.rend()) {
            return start;
        }
        start += window.rend() - last;
    }
    return -1;
}

} // namespace

QString modStatementFile::Overlong(const QByteArray& bytes)
{
    if (IsPacked(bytes)) {
        return {};
    }
    // Documents may be one line, so their tags count. Some banks write their SWIFT messages into one line as well, with
    // "@@" for its ends.
    const bool isMarkup = IsMarkup(bytes);
    const bool isSwift = bytes.left(headSize).contains(":20:");
    const qsizetype at = isMarkup
        ? FindOverlong(bytes, [](char c) { return c == '<'; })
        : FindOverlong(bytes, [isSwift](char c) { return c == '\n' || c == '\r' || (isSwift && c == '@'); });
    if (at < 0) {
        return {};
    }
    const qsizetype line = QByteArrayView(bytes).first(at + 1).count('\n') + 1;
    return cText::Tr("In Zeile {0} beginnt ein Feld, das länger ist als jeder Verwendungszweck (mehr als 1 MB). Die "
                     "Datei ist beschädigt oder kein Kontoauszug; es wurde nichts übernommen.",
                     {QString::number(line)});
}

modStatementFile::cContent modStatementFile::Read(const QString& path)
{
    const QString shownPath = QDir::toNativeSeparators(path);
    QFile file(path);
    if (const QFileInfo info(path); info.isDir() || !file.open(QIODevice::ReadOnly)) {
        const QString reason = !info.exists() ? cText::Tr("es gibt sie nicht")
            : info.isDir()                    ? cText::Tr("es ist ein Ordner, wählen Sie die Dateien darin")
            : !info.isReadable()              ? cText::Tr("Sie haben nicht das Recht, sie zu lesen")
                                              : file.errorString();
        return {{}, cText::Tr("Die Datei kann nicht geöffnet werden ({1}): {0}", {shownPath, reason})};
    }
    if (file.size() > largestFile) {
        return {{}, cText::Tr("Die Datei ist zu groß für einen Kontoauszug: {0}", {shownPath})};
    }
    cContent content{file.readAll(), {}};
    if (file.error() != QFileDevice::NoError) {
        content.Failure = cText::Tr("Die Datei kann nicht gelesen werden: {0}", {shownPath});
    } else if (content.Bytes.isEmpty()) {
        content.Failure = cText::Tr("Die Datei ist leer: {0}", {shownPath});
    } else if (content.Failure = Overlong(content.Bytes); !content.Failure.isEmpty()) {
        content.Bytes.clear();
    }
    return content;
}

QString modStatementFile::NoAccount()
{
    return cText::Tr("Es muss eine Kontonummer eingegeben werden, um die Daten einem Konto zuzuordnen.");
}

QString modStatementFile::OtherAccount(const QString& number)
{
    return cText::Tr(
        "Dateien mit diesem Aufbau waren bisher von Konto {0}. In dieser fehlen dessen Umsätze von denselben "
        "Tagen: Geben Sie an, von welchem Konto sie ist.",
        {number});
}

QString modStatementFile::OpenSign()
{
    return cText::Tr("Die Datei sagt nicht sicher, welche Beträge Ausgaben und welche Einnahmen sind.");
}

QString modStatementFile::CutOff(const QString& row, bool isCertain)
{
    return isCertain
        ? cText::Tr("Der letzte Umsatz ist unvollständig und wurde nicht übernommen. Vielleicht wurde die Datei beim "
                    "Herunterladen abgeschnitten; bitte laden Sie sie noch einmal herunter: {0}",
                    {row})
        : cText::Tr("Der letzte Umsatz ist vielleicht unvollständig und wurde nicht übernommen. Bitte laden Sie die "
                    "Datei noch einmal herunter. Endet sie wieder so, ist er vollständig und lässt sich trotzdem "
                    "übernehmen: {0}",
                    {row});
}

QString modStatementFile::GuessedColumns()
{
    return cText::Tr("Die Spalten sind aus dem Inhalt geraten. Bitte prüfen Sie die Umsätze.");
}
