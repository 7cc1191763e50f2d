#pragma once

#include "views/main/modCommand.h"

class cMainModel;
class cQtPrinter;
class QWidget;
struct cBookTools;

// The windows of what a household agrees upon: its budget, who belongs to it, and who owes whom.
class cHouseholdWindows
{
public:
    // All of it outlives the object.
    cHouseholdWindows(const cBookTools& tools, cMainModel& model, cQtPrinter& printer)
        : m_tools(tools),
          m_model(model),
          m_printer(printer)
    {
    }

    void Open(modCommand::eId command, QWidget* parent);

private:
    void OpenBudget(QWidget* parent);
    void OpenPeople(QWidget* parent);
    void OpenSettlement(QWidget* parent);

    const cBookTools& m_tools;
    cMainModel& m_model;
    cQtPrinter& m_printer;
};
