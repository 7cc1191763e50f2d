#include "app/cBankWindows.h"

#include "app/machine/cQtBankUser.h"
#include "base/cClock.h"
#include "core/cBookTools.h"
#include "model/bank/cBankState.h"
#include "net/cQtHttps.h"
#include "views/bank/cBankDirectory.h"
#include "views/bank/cBankFetch.h"
#include "views/bank/cBankListModel.h"
#include "views/bank/cBankLogView.h"
#include "views/bank/cBankSetup.h"
#include "views/main/cMainModel.h"
#include "views/statement/cImportReview.h"
#include "windows/bank/frmAbruf.h"
#include "windows/bank/frmBankAssistent.h"
#include "windows/bank/frmBankzugaenge.h"
#include "windows/bank/frmProtokoll.h"

#include <QCoreApplication>

cBankWindows::cBankWindows(const cParts& parts)
    : m_parts(parts),
      m_https(std::make_unique<cQtHttps>()),
      m_customer(std::make_unique<cQtBankUser>(
          cQtBankUser::cParts{parts.Tools.Settings, parts.Tools.Clock, {}})), // steps are told by what runs
      m_directory(std::make_unique<cBankDirectory>(parts.Shell))
{
}

cBankWindows::~cBankWindows() = default;

void cBankWindows::OpenLogins(QWidget* parent)
{
    cBankListModel banks(m_parts.Tools);
    frmBankzugaenge form(banks, parent);
    QObject::connect(&form, &frmBankzugaenge::AddRequested, &form, [&] {
        OpenSetup(nullptr, &form);
        banks.Reload();
    });
    QObject::connect(&form, &frmBankzugaenge::ChangeRequested, &form, [&](int row) {
        const cBankState login = banks.Lines().at(row).Bank;
        OpenSetup(&login, &form);
        banks.Reload();
    });
    form.exec();
}

QDate cBankWindows::OpenSetup(const cBankState* login, QWidget* parent)
{
    cBankSetup setup({m_parts.Tools, *m_directory, *m_https, *m_customer, QCoreApplication::applicationVersion()});
    if (login != nullptr) {
        setup.Load(*login);
    }
    frmBankAssistent form(setup, m_parts.Tools.Clock.Today(), parent);
    QObject::connect(&form, &frmBankAssistent::LogRequested, &form,
                     [&] { OpenLog(setup.LogText(), setup.LogForOthers(), &form); });
    if (form.exec() != QDialog::Accepted) {
        return {};
    }
    m_parts.Model.BookChanged(); // there may be new accounts
    return login == nullptr && setup.FirstDay() != setup.UsualFirstDay() ? setup.FirstDay() : QDate();
}

bool cBankWindows::OpenFetch(QWidget* parent)
{
    bool isSettingUp = false;
    QDate first;
    do {
        cBankFetch fetch(m_parts.Tools, m_parts.Review.Files(),
                         {*m_https, *m_customer, QCoreApplication::applicationVersion()});
        fetch.Load();
        frmAbruf form(fetch, parent);
        if (first.isValid()) {
            form.SetFrom(first);
        }
        QObject::connect(&form, &frmAbruf::LogRequested, &form,
                         [&] { OpenLog(fetch.LogText(), fetch.LogForOthers(), &form); });
        isSettingUp = false;
        QObject::connect(&form, &frmAbruf::BanksRequested, &form, [&] {
            isSettingUp = true;
            form.done(QDialog::Rejected);
        });
        if (form.exec() == QDialog::Accepted) {
            return true;
        }
        if (isSettingUp) {
            first = OpenSetup(nullptr, parent);
        }
    } while (isSettingUp);
    return false;
}

void cBankWindows::OpenLog(const QString& text, const QString& forOthers, QWidget* parent)
{
    const cBankLogView log(text, forOthers, {m_parts.Tools.User, m_parts.Shell, m_parts.Tools.Clock});
    frmProtokoll form(log, parent);
    form.exec();
}
