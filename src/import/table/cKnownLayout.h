#pragma once

#include "import/read/cTableLayout.h"

#include <span>

// The layout of a bank's files. A new bank is one entry in the list and one pair of test files.
struct cKnownLayout
{
    const char16_t* Name = nullptr;
    // The fields of the header, separated by ";". "…" stands for any run of columns, and a "*" at the end of a name for
    // any end of it; empty fields at the end do not count. A layout without header has the kinds of its columns here,
    // behind "=": see modTableProfile::ApplyShape.
    const char16_t* Header = nullptr;
    // "field=header name", or "field=#9" for a place counted from 0.
    const char16_t* Columns = nullptr;
    eNumberFormat Number = eNumberFormat::Detect;
    eSignRule Sign = eSignRule::AsWritten;
    eDetails Details = eDetails::None;
    const char16_t* Currency = u"";
    const char16_t* OnlyCurrency = u"";

    [[nodiscard]] static std::span<const cKnownLayout> All();
};
