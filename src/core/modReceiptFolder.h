#pragma once

#include <QString>
#include <QStringList>

class cConfiguration;

// The folder of a book's receipts, and its copy beside the backups. Receipts never change and no name comes to mean
// another one, so one folder serves all backups of a book that lie together: each file is copied once, and none is ever
// removed there.
namespace modReceiptFolder {

// "Belege" beside the book.
[[nodiscard]] QString Of(const QString& book);

// "<name>-Belege" beside the backup; the name is that of the backup without its day. Backups of several books may have
// one name in a folder that the user chose, so a mark of the book's place is added there.
[[nodiscard]] QString CopyOf(const QString& book, const QString& backup);

// Copies what the folder beside the backup lacks. A file there that has the name but another content is kept under its
// day. What went wrong first, in words for the user; empty when all files are there.
[[nodiscard]] QString Save(const QString& book, const QString& backup);

// The same with those of the names, into any folder.
[[nodiscard]] QString CopyTo(const QString& folder, const QString& book, const QStringList& names);

// As Save, where the user wants receipts in the backups; else nothing, and no problem.
[[nodiscard]] QString SaveIfWished(const cConfiguration& configuration, const QString& book, const QString& backup);

// Copies the other way those of the names that the book's folder lacks; what is there stays as it is.
[[nodiscard]] QString BringBack(const QString& backup, const QString& book, const QStringList& names);

} // namespace modReceiptFolder
