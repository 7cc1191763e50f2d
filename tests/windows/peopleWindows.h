#pragma once

#include "core/cBookTools.h"
#include "model/modPeople.h"
#include "store/cDataAccess.h"
#include "views/people/cPeople.h"
#include "views/people/cSettlementModel.h"
#include "windows/people/frmAusgleich.h"
#include "windows/people/frmPersonen.h"

#include <memory>

// The windows of a household of several, each with what it shows.
namespace modPeopleWindows {

template <typename tModel>
struct cOwned
{
    tModel Model;
};

// A window that keeps its model alive.
template <typename tModel, typename tForm>
class cWindow final : cOwned<tModel>, public tForm
{
public:
    explicit cWindow(const cBookTools& tools) : cOwned<tModel>{tModel(tools)}, tForm(this->Model) {}
};

// Two people with names that the book holds as other data too, one of whom has paid something.
inline void Fill(const cBookTools& tools)
{
    cPeople people(tools);
    for (const QString& name : {QStringLiteral("Miete"), QStringLiteral("Einkauf")}) {
        if (!people.Add(name)) {
            qFatal("no people");
        }
    }
    (void)people.TakeShares(QStringLiteral("Girokonto"), {QStringLiteral("60"), QStringLiteral("40")});
    cEntryItemList entries = tools.Data.GetEntries({});
    modPeople::SetPayer(entries.first(), QStringLiteral("Einkauf"));
    if (!tools.Data.ChangeEntry(entries.first())) {
        qFatal("no payer");
    }
}

inline std::unique_ptr<QWidget> People(const cBookTools& tools)
{
    Fill(tools);
    return std::make_unique<cWindow<cPeople, frmPersonen>>(tools);
}

inline std::unique_ptr<QWidget> Settlement(const cBookTools& tools)
{
    Fill(tools);
    return std::make_unique<cWindow<cSettlementModel, frmAusgleich>>(tools);
}

} // namespace modPeopleWindows
