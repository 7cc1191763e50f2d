#pragma once

#include "model/modReceiptName.h"
#include "support/cFakeDesk.h"
#include "support/testBook.h"
#include "views/receipt/cReceiptListModel.h"
#include "windows/receipt/frmBelege.h"

#include <memory>

// The window of receipts of which none is there, as when a book came without its folder.
class cReceiptScene
{
public:
    [[nodiscard]] std::unique_ptr<QWidget> Make(cTestBook& book, cEntryItem entry)
    {
        modReceiptName::Set(entry, Names());
        if (!book.Data.ChangeEntry(entry)) {
            qFatal("the book was not filled");
        }
        m_receipts = std::make_unique<cReceiptListModel>(book.Tools, m_desk, entry.ID);
        return std::make_unique<frmBelege>(*m_receipts);
    }

    [[nodiscard]] static QStringList Names() { return {QStringLiteral("a.pdf"), QStringLiteral("rechnung nr. 1.png")}; }

private:
    cFakeDesk m_desk;
    std::unique_ptr<cReceiptListModel> m_receipts;
};
