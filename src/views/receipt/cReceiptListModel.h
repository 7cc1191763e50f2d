#pragma once

#include "model/cReceiptSource.h"
#include "views/receipt/cReceipts.h"

#include <QAbstractListModel>

class cFileDesk;
class cUser;

// The receipts of one entry as a list, and what the user can do with each.
class cReceiptListModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    cReceiptListModel(const cBookTools& tools, cFileDesk& desk, int entryId, QObject* parent = nullptr);

    [[nodiscard]] QString Title() const; // "Belege: 12.03.2026, Wocheneinkauf, 23,45 €"
    [[nodiscard]] bool CanWrite() const;
    [[nodiscard]] QString EmptyText() const; // what the window says while there is no receipt

    // One receipt; row -1 is none of them.
    [[nodiscard]] QString NameAt(int row) const;
    [[nodiscard]] QString PathAt(int row) const; // empty when the file is missing
    [[nodiscard]] bool IsMissing(int row) const;
    [[nodiscard]] QString MissingText(int row) const; // what is missing, and what to do

    // Each tells the user what went wrong.
    void Choose(); // lets the user choose files
    void Add(const QList<cReceiptSource>& sources);
    void Paste(const QList<cReceiptSource>& sources); // what the clipboard holds, which may be nothing of use
    void ChooseAgain(int row);                        // a file in the place of a missing one
    void Remove(int row); // after a question; the file goes to the trash when no other entry has it
    void Open(int row);
    void SaveAs(int row);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

    // Lets the user choose files that are to become receipts.
    [[nodiscard]] static QList<cReceiptSource> Ask(cUser& user);

Q_SIGNALS:
    void ReceiptsChanged(); // the book has

private:
    void Reload();
    [[nodiscard]] bool IsRow(int row) const;
    void Discard(const cReceipts::cFile& file) const;

    const cBookTools& m_tools;
    cFileDesk& m_desk;
    cReceipts m_receipts;
    int m_entryId;
    QList<cReceipts::cFile> m_files;
};
