#include "views/receipt/cReceiptFolder.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modChar.h"
#include "base/modMD5.h"
#include "core/cBookTools.h"
#include "core/modReceiptFolder.h"
#include "model/modReceiptName.h"
#include "store/cDataAccess.h"
#include "views/common/modFileWrite.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString EndingOf(const QString& path)
{
    constexpr qsizetype most = 8;
    const QString ending = QFileInfo(path).suffix().toLower();
    const bool isPlain = std::all_of(ending.begin(), ending.end(), [](QChar letter) {
        return modChar::IsAscii(letter) && letter.isLetterOrNumber();
    });
    return ending.isEmpty() || ending.size() > most || !isPlain ? QString() : QString(u'.' + ending);
}

bool HasContent(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.size() == bytes.size() && file.open(QIODevice::ReadOnly) && file.readAll() == bytes;
}

} // namespace

QString cReceiptFolder::Path() const
{
    return modReceiptFolder::Of(m_tools.Data.BookPath());
}

cReceiptFolder::cFile cReceiptFolder::File(const QString& name) const
{
    const QFileInfo file(QDir(Path()), name);
    return {name, file.filePath(), file.isFile() ? file.size() : -1};
}

bool cReceiptFolder::Holds(const QString& path) const
{
    const QFileInfo file(path);
    return !path.isEmpty() && file.isFile() && file.absoluteDir() == QDir(Path())
        && modReceiptName::IsSafe(file.fileName());
}

bool cReceiptFolder::Refuse(const QString& text) const
{
    m_tools.User.Show(eTone::Exclamation, text);
    return false;
}

QString cReceiptFolder::NameOf(const cReceiptSource& source)
{
    return QFileInfo(source.Path).fileName();
}

QList<cReceiptSource> cReceiptFolder::Sources(const QStringList& paths)
{
    QList<cReceiptSource> sources;
    for (const QString& path : paths) {
        sources.append({QDir::cleanPath(QDir().absoluteFilePath(path))});
    }
    return sources;
}

bool cReceiptFolder::MayWrite() const
{
    if (m_tools.Data.IsReadOnly()) {
        return Refuse(cText::Tr("Diese Datenbank kann nur gelesen werden; Belege können nicht geändert werden."));
    }
    const QString folder = Path();
    return QDir().mkpath(folder)
        || Refuse(cText::Tr("Der Ordner '{0}' kann nicht angelegt werden.", {QDir::toNativeSeparators(folder)}));
}

std::optional<QByteArray> cReceiptFolder::Read(const cReceiptSource& source) const
{
    if (source.Path.isEmpty()) {
        return source.Bytes;
    }
    const QString name = NameOf(source);
    QFile file(source.Path);
    QByteArray bytes;
    QString problem;
    if (!QFileInfo(source.Path).isFile()) {
        problem = cText::Tr("'{0}' ist keine Datei.", {name});
    } else if (file.size() > MostBytes) {
        problem = cText::Tr("Die Datei '{0}' ist größer als {1} MB. Bitte verkleinern Sie sie.",
                            {name, QString::number(MostBytes / 1'000'000)});
    } else if (!file.open(QIODevice::ReadOnly)) {
        problem = cText::Tr("Die Datei '{0}' kann nicht gelesen werden.", {name});
    } else {
        bytes = file.readAll();
        if (file.error() != QFileDevice::NoError || bytes.isEmpty()) {
            problem = cText::Tr("Die Datei '{0}' ist leer oder kann nicht gelesen werden.", {name});
        }
    }
    return problem.isEmpty() || Refuse(problem) ? std::optional(bytes) : std::nullopt;
}

// A file of the wanted name has these bytes, unless somebody changed it by hand: then the name gets more digits.
QString cReceiptFolder::Keep(const QString& stem, const QString& ending, const QByteArray& bytes)
{
    constexpr int fewDigits = 6;
    const QString digits = modMD5::HexOfBytes(bytes);
    for (const QString& part : {digits.left(fewDigits), digits}) {
        const QString name = stem + u' ' + part + ending;
        const QString path = QDir(Path()).filePath(name);
        if (HasContent(path, bytes)) {
            return name;
        }
        if (!QFileInfo::exists(path)) {
            const QString problem = modFileWrite::Replace(path, bytes);
            QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner); // as private as the book
            if (!problem.isEmpty()) {
                (void)Refuse(cText::Tr("Der Beleg konnte nicht kopiert werden:\n{0}", {problem}));
                return {};
            }
            m_copied.append(path);
            return name;
        }
    }
    (void)Refuse(cText::Tr("Der Beleg konnte nicht kopiert werden:\n{0}",
                           {cText::Tr("Die Datei '{0}' gibt es schon mit anderem Inhalt.", {stem + ending})}));
    return {};
}

QString cReceiptFolder::Take(const QString& stem, const cReceiptSource& source)
{
    if (Holds(source.Path)) {
        return NameOf(source);
    }
    const std::optional<QByteArray> bytes = Read(source);
    return bytes ? Keep(stem, source.Path.isEmpty() ? u".png"_s : EndingOf(source.Path), *bytes) : QString();
}

void cReceiptFolder::TellUnchanged() const
{
    m_tools.User.Show(eTone::Information,
                      m_copied.isEmpty() ? cText::Tr("Diese Datei hängt hier schon.")
                                         : cText::Tr("Die fehlende Datei ist wieder da."));
}

void cReceiptFolder::TakeBack()
{
    for (const QString& path : std::as_const(m_copied)) {
        QFile::remove(path); // a copy made just now; where it came from is untouched
    }
    m_copied.clear();
}
