#pragma once

#include "core/cBookTools.h"
#include "model/modPeople.h"
#include "store/cDataAccess.h"
#include "views/people/cPeople.h"
#include "views/people/cSettlementModel.h"
#include "windows/people/frmAusgleich.h"
#include "windows/people/frmPersonen.h"

#include <QObject>
#include <QTest>

#include <memory>

// The windows of a household of several, each with what it shows.
namespace modPeopleWindows {

// A model that ends with its window.
template <typename tModel>
class cKept final : public QObject
{
public:
    explicit cKept(const cBookTools& tools) : Model(tools) {}

    tModel Model;
};

template <typename tForm, typename tModel>
std::unique_ptr<QWidget> Make(const cBookTools& tools)
{
    auto kept = std::make_unique<cKept<tModel>>(tools);
    auto window = std::make_unique<tForm>(kept->Model);
    kept.release()->setParent(window.get());
    return window;
}

// Two people with names that the book holds as other data too, one of whom has paid something.
inline void Fill(const cBookTools& tools)
{
    cPeople people(tools);
    for (const QString& name : {QStringLiteral("Miete"), QStringLiteral("Einkauf")}) {
        QVERIFY(people.Add(name));
    }
    (void)people.TakeShares(QStringLiteral("Girokonto"), {QStringLiteral("60"), QStringLiteral("40")});
    cEntryItemList entries = tools.Data.GetEntries({});
    modPeople::SetPayer(entries.first(), QStringLiteral("Einkauf"));
    QVERIFY(tools.Data.ChangeEntry(entries.first()));
}

inline std::unique_ptr<QWidget> People(const cBookTools& tools)
{
    Fill(tools);
    return Make<frmPersonen, cPeople>(tools);
}

inline std::unique_ptr<QWidget> Settlement(const cBookTools& tools)
{
    Fill(tools);
    return Make<frmAusgleich, cSettlementModel>(tools);
}

} // namespace modPeopleWindows
