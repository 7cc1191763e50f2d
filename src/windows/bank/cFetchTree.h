#pragma once

#include <QList>
#include <QTreeWidget>

class cBankFetch;
class cColumnFit;

// The accounts that can be fetched, those of a bank together, with what came of each.
class cFetchTree final : public QTreeWidget
{
    Q_OBJECT

public:
    // `fetch` outlives the tree.
    explicit cFetchTree(cBankFetch& fetch, QWidget* parent = nullptr);
    ~cFetchTree() override;

    [[nodiscard]] QList<qsizetype> Chosen() const; // places in cBankFetch::Accounts
    [[nodiscard]] qsizetype Current() const;       // -1 for none
    void ShowLine(qsizetype account);              // and bring it into sight
    void ShowTrouble(); // makes the account current that failed, or of which there is something to say

    // While accounts are fetched, the choice stays as it is.
    void SetChoosable(bool isChoosable);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    enum eColumn { Account, Book, State, Balance, ColumnCount };

    void Fill();
    void Colour(qsizetype account);
    [[nodiscard]] QTreeWidgetItem* AddBank(const QString& name);

    cBankFetch& m_fetch;
    cColumnFit* m_fit = nullptr;
    QList<QTreeWidgetItem*> m_items; // by account
};
