#include "views/bank/cBankListModel.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cBookTools.h"
#include "views/bank/modBankText.h"

cBankListModel::cBankListModel(const cBookTools& tools, QObject* parent)
    : QAbstractTableModel(parent),
      m_tools(tools),
      m_access(tools)
{
    Load();
}

void cBankListModel::Reload()
{
    beginResetModel();
    Load();
    endResetModel();
}

void cBankListModel::Load()
{
    m_lines.clear();
    const QList<cBankState> banks = m_access.Banks();
    for (const cBankState& bank : banks) {
        const QList<cBankAccount> accounts = m_access.Chosen(bank);
        for (const cBankAccount& account : accounts) {
            m_lines.append({bank, account, m_access.BookAccountOf(bank, account), m_access.LastFetch(bank, account)});
        }
        if (accounts.isEmpty()) {
            m_lines.append({bank, {}, {}, {}});
        }
    }
}

bool cBankListModel::Remove(int row)
{
    const cBankState& bank = m_lines.at(row).Bank;
    cQuestion question;
    question.Text =
        cText::Tr("Soll der Zugang {0} bei {1} entfernt werden?\nKonten und Umsätze bleiben im Buch, es wird "
                  "nur nichts mehr abgerufen.",
                  {bank.UserId, modBankText::Bank(bank)});
    question.Title = cText::Tr("Bankzugang entfernen");
    question.Default = eAnswer::No;
    if (m_tools.User.Ask(question) != eAnswer::Yes || !m_access.Remove(bank.BankCode, bank.UserId)) {
        return false;
    }
    Reload();
    return true;
}

QString cBankListModel::EmptyTitle()
{
    return cText::Tr("Noch kein Bankzugang");
}

QString cBankListModel::EmptyHint()
{
    return cText::Tr("Mit „Neuer Zugang…“ richten Sie den Abruf der Umsätze bei Ihrer Bank ein.");
}

int cBankListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

int cBankListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant cBankListModel::data(const QModelIndex& index, int role) const
{
    return index.isValid() && role == Qt::DisplayRole ? Text(m_lines.at(index.row()), index.column()) : QVariant();
}

QString cBankListModel::Text(const cLine& line, int column) const
{
    switch (column) {
    case Bank: return modBankText::Bank(line.Bank);
    case Login: return line.Bank.UserId;
    case Account: return modBankText::Number(line.Account);
    case BookAccount: return line.BookAccount;
    case LastFetch: return line.LastFetch.isValid() ? modDate::ToText(line.LastFetch) : cText::Tr("noch nie");
    case Method: return line.Bank.Method ? modBankText::Method(*line.Bank.Method) : QString();
    default: return {};
    }
}

QVariant cBankListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Bank: return cText::Tr("Bank");
    case Login: return cText::Tr("Anmeldename");
    case Account: return cText::Tr("Konto der Bank");
    case BookAccount: return cText::Tr("Konto im Buch");
    case LastFetch: return cText::Tr("Zuletzt abgerufen");
    case Method: return cText::Tr("TAN-Verfahren");
    default: return {};
    }
}
