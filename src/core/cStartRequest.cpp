#include "core/cStartRequest.h"

#include "base/cText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace {

// A damaged book may not begin like one any more; its name still says what it was.
bool HasBookName(const QString& path)
{
    const QStringList endings{u"db"_s, u"dat"_s, u"sqlite"_s, u"neu"_s};
    return endings.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
}

} // namespace

QByteArray cStartRequest::ToLine() const
{
    const QJsonObject object{{u"book"_s, Book},
                             {u"statements"_s, QJsonArray::fromStringList(Statements)},
                             {u"import"_s, IsImport},
                             {u"new-entry"_s, IsNewEntry},
                             {u"activation"_s, QString::fromUtf8(Activation)}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<cStartRequest> cStartRequest::FromLine(const QByteArray& line)
{
    const QJsonDocument document = QJsonDocument::fromJson(line);
    if (!document.isObject()) {
        return std::nullopt;
    }
    const QJsonObject object = document.object();
    cStartRequest request;
    request.Book = object.value(u"book"_s).toString();
    const QJsonArray statements = object.value(u"statements"_s).toArray();
    for (const auto& statement : statements) {
        request.Statements.append(statement.toString());
    }
    request.IsImport = object.value(u"import"_s).toBool();
    request.IsNewEntry = object.value(u"new-entry"_s).toBool();
    request.Activation = object.value(u"activation"_s).toString().toUtf8();
    return request;
}

bool cStartRequest::IsBook(const QString& path)
{
    return IsDatabase(path) || HasBookName(path);
}

bool cStartRequest::IsDatabase(const QString& path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly)
        && file.peek(15) == QByteArrayLiteral("SQLite format 3");
}

QString cStartRequest::TakeFiles(const QStringList& files)
{
    QString book;
    QStringList statements;
    for (const QString& file : files) {
        const QString path = QDir::cleanPath(QDir().absoluteFilePath(file));
        const bool isBook = IsBook(path);
        if (QFileInfo(path).isDir()) {
            return cText::Tr("'{0}' ist ein Ordner. Geben Sie Dateien an.", {QDir::toNativeSeparators(path)});
        }
        if (!isBook && !QFileInfo::exists(path)) {
            return cText::Tr("Die Datei '{0}' gibt es nicht.", {QDir::toNativeSeparators(path)});
        }
        if (isBook && !book.isEmpty() && book != path) {
            return cText::Tr("Es kann nur ein Haushaltsbuch geöffnet werden, nicht '{0}' und '{1}' zugleich.",
                             {QDir::toNativeSeparators(book), QDir::toNativeSeparators(path)});
        }
        if (isBook) {
            book = path;
        } else {
            statements.append(path);
        }
    }
    Book = book;
    Statements = statements;
    return {};
}
