#pragma once

#include "model/modReceiptName.h"
#include "model/modSettingKey.h"
#include "support/cFakeDesk.h"
#include "support/testBook.h"
#include "views/receipt/cReceiptListModel.h"
#include "views/receipt/cStatementPapers.h"
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

    // The same of the statements of a bank account.
    [[nodiscard]] std::unique_ptr<QWidget> MakePapers(cTestBook& book, const QString& number)
    {
        book.Settings->Set(modSettingKey::StatementPapers.Of(number), modReceiptName::Write(Papers()));
        m_receipts = std::make_unique<cReceiptListModel>(book.Tools, m_desk,
                                                         std::make_unique<cStatementPapers>(book.Tools, number));
        return std::make_unique<frmBelege>(*m_receipts);
    }

    [[nodiscard]] static QStringList Papers()
    {
        return {QStringLiteral("2026-02-28 Giro a.pdf"), QStringLiteral("2026-01 Giro b.pdf")};
    }
    [[nodiscard]] static QStringList Names() { return {QStringLiteral("a.pdf"), QStringLiteral("rechnung nr. 1.png")}; }

private:
    cFakeDesk m_desk;
    std::unique_ptr<cReceiptListModel> m_receipts;
};
