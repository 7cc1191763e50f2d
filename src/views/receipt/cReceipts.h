#pragma once

#include "model/cEntryItem.h"
#include "views/receipt/cReceiptFolder.h"

#include <QList>
#include <QString>
#include <QStringList>

class cDataAccess;
struct cBookTools;

// The receipts of the open book: files in the folder "Belege" beside it, each tied to its entries by their marks.
class cReceipts
{
public:
    using cFile = cReceiptFolder::cFile;

    explicit cReceipts(const cBookTools& tools) : m_tools(tools) {}

    [[nodiscard]] QList<cFile> Of(int entryId) const;
    [[nodiscard]] cFile File(const QString& name) const;

    // Copies the sources and hangs them at the entry, as one step. All or none; a failure was shown.
    [[nodiscard]] bool Add(int entryId, const QList<cReceiptSource>& sources) const;

    // Takes the mark off, as one step; the file stays. False when the book refuses.
    [[nodiscard]] bool Detach(int entryId, const QString& name) const;

    // Copies a file in the place of one that is missing, at all entries that have it. A failure was shown.
    [[nodiscard]] bool Replace(int entryId, const QString& name, const QString& path) const;

    // The entries that have receipts, in the order of their days; the same for one file.
    [[nodiscard]] cEntryItemList Entries() const;
    [[nodiscard]] cEntryItemList EntriesOf(const QString& name) const;

    // At how many entries and accounts it hangs.
    [[nodiscard]] qsizetype CountUses(const QString& name) const;

    // Files of the folder that no entry and no account of the book has. Nothing while the book cannot be read whole.
    [[nodiscard]] QStringList Unused() const;

    // What a check of the book says of receipts, for the user: missing files and those that hang nowhere, some of each
    // by name. Empty where everything fits.
    [[nodiscard]] static QString CheckText(cDataAccess& data);

    // Whether a file dropped on an entry is meant as its receipt: a picture, a PDF, a letter or a mail, but nothing
    // that a bank would send as a statement.
    [[nodiscard]] static bool IsReceipt(const QString& path);
    // What may be opened in the desktop's program: no kind of file that would be run.
    [[nodiscard]] static bool IsDocument(const QString& path);

private:
    [[nodiscard]] bool Store(const cEntryItem& entry, const QString& step) const;

    const cBookTools& m_tools;
};
