#pragma once

#include "app/machine/cQtFileDesk.h"
#include "views/main/modCommand.h"

#include <QStringList>

class QWidget;
class cMainModel;
class cReceiptListModel;
class cStatementListModel;
class frmKontoauszug;
struct cBookTools;

// Opens the receipts of entries and hangs files at them.
class cReceiptWindows
{
public:
    cReceiptWindows(const cBookTools& tools, cMainModel& model) : m_tools(tools), m_model(model) {}

    void Open(modCommand::eId command, QWidget* parent); // for the selected entry
    void Show(int entryId, QWidget* parent);
    void Choose(int entryId); // files that become receipts
    void Add(int entryId, const QStringList& paths);

    // Shows and adds the PDF statements of the account number that the window shows.
    void Connect(frmKontoauszug& form, cStatementListModel& statement);

private:
    void Follow(const cReceiptListModel& receipts) const; // what they change is shown everywhere

    const cBookTools& m_tools;
    cMainModel& m_model;
    cQtFileDesk m_desk;
};
