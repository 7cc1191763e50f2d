#include "app/cHouseholdWindows.h"

#include "app/machine/cQtPrinter.h"
#include "base/cClock.h"
#include "core/cBookTools.h"
#include "views/budget/cBudgetModel.h"
#include "views/main/cMainModel.h"
#include "views/people/cPeople.h"
#include "views/people/cSettlementModel.h"
#include "windows/budget/frmBudget.h"
#include "windows/people/frmAusgleich.h"
#include "windows/people/frmPersonen.h"
#include "windows/report/cReportPrinter.h"

void cHouseholdWindows::Open(modCommand::eId command, QWidget* parent)
{
    if (command == modCommand::Budget) {
        OpenBudget(parent);
    } else if (command == modCommand::People) {
        OpenPeople(parent);
    } else {
        OpenSettlement(parent);
    }
}

void cHouseholdWindows::OpenBudget(QWidget* parent)
{
    cBudgetModel budget(m_tools);
    QObject::connect(&budget, &cBudgetModel::Saved, &m_model, &cMainModel::BookChanged);
    frmBudget form(budget, parent);
    form.exec();
}

void cHouseholdWindows::OpenPeople(QWidget* parent)
{
    cPeople people(m_tools);
    frmPersonen form(people, parent);
    QObject::connect(&form, &frmPersonen::PeopleChanged, &m_model, &cMainModel::BookChanged);
    form.exec();
}

void cHouseholdWindows::OpenSettlement(QWidget* parent)
{
    cSettlementModel settlement(m_tools);
    frmAusgleich form(settlement, parent);
    QObject::connect(&form, &frmAusgleich::PeopleRequested, &form, [&] {
        OpenPeople(&form);
        form.Refresh();
    });
    QObject::connect(&form, &frmAusgleich::PrintRequested, &form, [&] {
        cReportPrinter pages(settlement.Html(), form.font().family(), m_tools.Clock.Today());
        m_printer.Print(pages, &form);
    });
    form.exec();
}
