#include "app/cReceiptWindows.h"

#include "views/main/cMainModel.h"
#include "views/receipt/cReceiptListModel.h"
#include "windows/receipt/frmBelege.h"

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
    QObject::connect(&receipts, &cReceiptListModel::ReceiptsChanged, &m_model, &cMainModel::BookChanged);
    frmBelege form(receipts, parent);
    form.exec();
}

void cReceiptWindows::Choose(int entryId)
{
    cReceiptListModel receipts(m_tools, m_desk, entryId);
    QObject::connect(&receipts, &cReceiptListModel::ReceiptsChanged, &m_model, &cMainModel::BookChanged);
    receipts.Choose();
}

void cReceiptWindows::Add(int entryId, const QStringList& paths)
{
    cReceiptListModel receipts(m_tools, m_desk, entryId);
    QObject::connect(&receipts, &cReceiptListModel::ReceiptsChanged, &m_model, &cMainModel::BookChanged);
    QList<cReceiptSource> sources;
    for (const QString& path : paths) {
        sources.append({path});
    }
    receipts.Add(sources);
}
