#pragma once

#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtShell.h"
#include "app/machine/cQtUser.h"
#include "base/cClock.h"
#include "core/cAmountFormat.h"
#include "core/cBook.h"
#include "core/cBookTools.h"
#include "core/cConfiguration.h"

#include <QTemporaryDir>

#include <optional>

class cFixedClock final : public cClock
{
public:
    [[nodiscard]] QDate Today() const override;
    [[nodiscard]] QDateTime Now() const override;
};

// A book of its own in a temporary folder, with everything that a window needs around it.
class cDemoBook
{
public:
    enum class eContent { Household, Nothing };

    explicit cDemoBook(eContent content = eContent::Household);

    [[nodiscard]] bool IsReady() const { return m_isReady; }           // open and filled
    [[nodiscard]] const cBookTools& Tools() const { return *m_tools; } // of a book that is ready

    QTemporaryDir Folder;
    cQtShell Shell{Folder.path()};
    cQtRegistry Registry{Folder.path()};
    cQtUser User{Registry};
    cFixedClock Clock;
    cBook Book{User};
    cConfiguration Configuration{Registry};
    cAmountFormat Format{Configuration};

private:
    bool m_isReady = false;
    std::optional<cBookTools> m_tools;
};
