#pragma once

#include "views/receipt/cReceiptHolder.h"
#include "views/receipt/cReceipts.h"

struct cBookTools;

// The receipts of one entry.
class cEntryReceipts final : public cReceiptHolder
{
public:
    cEntryReceipts(const cBookTools& tools, int entryId) : m_tools(tools), m_receipts(tools), m_entryId(entryId) {}

    [[nodiscard]] QString Title() const override; // "Belege: 12.03.2026, Wocheneinkauf, 23,45 €"
    [[nodiscard]] cWords Words() const override;
    [[nodiscard]] QList<cItem> Items() const override;
    [[nodiscard]] bool Add(const QList<cReceiptSource>& sources) override;
    [[nodiscard]] bool Detach(const QString& name) override;
    [[nodiscard]] bool Replace(const QString& name, const QString& path) override;

private:
    const cBookTools& m_tools;
    cReceipts m_receipts;
    int m_entryId;
};
