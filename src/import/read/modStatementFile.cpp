#include "import/read/modStatementFile.h"

#include "base/cText.h"

#include <QDir>
#include <QFile>

namespace {

constexpr qint64 largestFile = qint64{256} * 1024 * 1024; // bytes; years of statements stay far below

} // namespace

modStatementFile::cContent modStatementFile::Read(const QString& path)
{
    const QString shownPath = QDir::toNativeSeparators(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {{}, cText::Tr("Die Datei kann nicht geöffnet werden: {0}", {shownPath})};
    }
    if (file.size() > largestFile) {
        return {{}, cText::Tr("Die Datei ist zu groß für einen Kontoauszug: {0}", {shownPath})};
    }
    cContent content{file.readAll(), {}};
    if (file.error() != QFileDevice::NoError) {
        content.Failure = cText::Tr("Die Datei kann nicht gelesen werden: {0}", {shownPath});
    } else if (content.Bytes.isEmpty()) {
        content.Failure = cText::Tr("Die Datei ist leer: {0}", {shownPath});
    }
    return content;
}

QString modStatementFile::NoAccount()
{
    return cText::Tr("Es muss eine Kontonummer eingegeben werden, um die Daten einem Konto zuzuordnen.");
}

QString modStatementFile::GuessedColumns()
{
    return cText::Tr("Die Spalten sind aus dem Inhalt geraten. Bitte prüfen Sie die Umsätze.");
}
