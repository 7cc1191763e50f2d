#pragma once

#include <span>

// The table of keyword rules, in its order.
namespace modKeywordTable {

enum class eSign { Any, Positive, Negative };

struct cRule
{
    const char* Keywords = nullptr; // alternatives joined by "|", lower case; wildcards are allowed
    const char* Interval = nullptr;
    const char* Category = nullptr;
    const char* PositiveCategory = nullptr; // instead of Category for a positive amount
    eSign Only = eSign::Any;                // the rule holds for such amounts only
    eSign CategoryOnly = eSign::Any;        // for other amounts the rule sets the interval and leaves the category
    bool IsUncertain = false;               // left out by callers that want sure proposals only
    const char* AlsoRequired = nullptr;     // a second keyword that must be there too
};

[[nodiscard]] std::span<const cRule> Rules();

} // namespace modKeywordTable
