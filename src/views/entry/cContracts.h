#pragma once

#include "model/cEntryItem.h"
#include "model/cEntryWindow.h"

#include <QList>
#include <QString>
#include <QStringList>

struct cBookTools;

// The series that are contracts; see modContract.
class cContracts
{
public:
    explicit cContracts(const cBookTools& tools) : m_tools(tools) {}

    // Those that can be cancelled for so many days at most, today included, by that day.
    [[nodiscard]] cEntryItemList Ahead(int days) const;
    [[nodiscard]] cEntryItemList Ahead(int days, const cEntryWindow& window) const; // reads only where there are any
    // Each of those of the next weeks as a sentence.
    [[nodiscard]] QStringList Lines() const;

    // "'Handy' ist noch bis zum 30.11.2026 kündbar."
    [[nodiscard]] static QString Text(const cEntryItem& contract);

private:
    const cBookTools& m_tools;
};
