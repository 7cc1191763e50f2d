#include "app/cReceiptWindows.h"

#include "views/ledger/cStatementListModel.h"
#include "views/main/cMainModel.h"
#include "views/receipt/cReceiptListModel.h"
#include "views/receipt/cStatementPapers.h"
#include "windows/receipt/frmBelege.h"
#include "windows/statement/frmKontoauszug.h"

#include <memory>

void cReceiptWindows::Open(modCommand::eId command, QWidget* parent)
{
    const int entryId = m_model.Selection().value(0).ID;
    if (command == modCommand::AddReceipt) {
        Choose(entryId);
    } else {
        Show(entryId, parent);
    }
}

void cReceiptWindows::Show(int entryId, QWidget* parent)
{
    cReceiptListModel receipts(m_tools, m_desk, entryId);
    Follow(receipts);
    frmBelege form(receipts, parent);
    form.exec();
}

void cReceiptWindows::Choose(int entryId)
{
    cReceiptListModel receipts(m_tools, m_desk, entryId);
    Follow(receipts);
    receipts.Choose();
}

void cReceiptWindows::Add(int entryId, const QStringList& paths)
{
    cReceiptListModel receipts(m_tools, m_desk, entryId);
    Follow(receipts);
    receipts.AddFiles(paths);
}

void cReceiptWindows::Connect(frmKontoauszug& form, cStatementListModel& statement)
{
    const auto withPapers = [this, &statement](const auto& work) {
        cReceiptListModel papers(m_tools, m_desk, std::make_unique<cStatementPapers>(m_tools, statement.Number()));
        Follow(papers);
        work(papers);
        statement.Reload();
    };
    QObject::connect(&form, &frmKontoauszug::PapersRequested, &form, [withPapers, &form] {
        withPapers([&](cReceiptListModel& papers) { frmBelege(papers, &form).exec(); });
    });
    QObject::connect(&form, &frmKontoauszug::PapersDropped, &form, [withPapers](const QStringList& paths) {
        withPapers([&](cReceiptListModel& papers) { papers.AddFiles(paths); });
    });
}

void cReceiptWindows::Follow(const cReceiptListModel& receipts) const
{
    QObject::connect(&receipts, &cReceiptListModel::ReceiptsChanged, &m_model, &cMainModel::BookChanged);
}
