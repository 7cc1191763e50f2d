#pragma once

#include "model/bank/cBankState.h"
#include "views/bank/cBankAccess.h"

#include <QAbstractTableModel>
#include <QDate>
#include <QList>
#include <QString>

struct cBookTools;

// The bank logins of the book, a row for each account that is fetched; a login without any has a row of its own.
class cBankListModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum eColumn { Bank, Login, Account, BookAccount, LastFetch, Method, ColumnCount };

    explicit cBankListModel(const cBookTools& tools, QObject* parent = nullptr);

    void Reload();

    struct cLine
    {
        cBankState Bank;
        cBankAccount Account; // without number: the login has none
        QString BookAccount;
        QDate LastFetch; // invalid: never
    };
    [[nodiscard]] const QList<cLine>& Lines() const { return m_lines; }

    // Gives up the login of a row after a question.
    bool Remove(int row);

    // Headline and hint for a book without logins.
    [[nodiscard]] static QString EmptyTitle();
    [[nodiscard]] static QString EmptyHint();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void Load();
    [[nodiscard]] QString Text(const cLine& line, int column) const;

    const cBookTools& m_tools;
    cBankAccess m_access;
    QList<cLine> m_lines;
};
