#pragma once

#include "views/receipt/cReceiptHolder.h"

#include <QAbstractListModel>

#include <memory>

class cFileDesk;
struct cBookTools;

// The receipts of one entry, or what else hangs at something, as a list, and what the user can do with each.
class cReceiptListModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    cReceiptListModel(const cBookTools& tools, cFileDesk& desk, int entryId, QObject* parent = nullptr);

    cReceiptListModel(const cBookTools& tools, cFileDesk& desk, std::unique_ptr<cReceiptHolder> holder,
                      QObject* parent = nullptr);

    [[nodiscard]] QString Title() const;
    [[nodiscard]] QString ListName() const;
    [[nodiscard]] bool CanWrite() const;
    [[nodiscard]] QString EmptyText() const; // what the window says while there is no receipt

    // One receipt; row -1 is none of them.
    [[nodiscard]] QString NameAt(int row) const;
    [[nodiscard]] int RowOf(const QString& name) const;
    [[nodiscard]] QString PathAt(int row) const; // empty when the file is missing
    [[nodiscard]] bool IsMissing(int row) const;
    [[nodiscard]] QString MissingText(int row) const;      // what is missing, and what to do
    [[nodiscard]] int AddedRow() const { return m_added; } // what came with the last change; -1 for nothing

    // Each tells the user what went wrong.
    void Choose(); // lets the user choose files
    void Add(const QList<cReceiptSource>& sources);
    void AddFiles(const QStringList& paths);
    void Paste(const QList<cReceiptSource>& sources); // what the clipboard holds, which may be nothing of use
    void ChooseAgain(int row);                        // a file in the place of a missing one
    void Remove(int row); // after a question; the file goes to the trash when nothing else has it
    void Open(int row);
    void SaveAs(int row);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

    // Lets the user choose files that are to become receipts of an entry.
    [[nodiscard]] static QList<cReceiptSource> Ask(const cBookTools& tools);

Q_SIGNALS:
    void ReceiptsChanged(); // the book has

private:
    void Reload();
    [[nodiscard]] bool IsRow(int row) const;
    [[nodiscard]] QStringList ChooseFiles(const QString& title) const;
    void Discard(const cReceiptFolder::cFile& file) const;

    const cBookTools& m_tools;
    cFileDesk& m_desk;
    std::unique_ptr<cReceiptHolder> m_holder;
    QList<cReceiptHolder::cItem> m_items;
    int m_added = -1;
};
