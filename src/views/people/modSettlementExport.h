#pragma once

#include "views/common/modFileWrite.h"
#include "views/people/modSettlement.h"
#include "views/report/cReportExport.h"

#include <QByteArray>

class cAmountFormat;
struct cBookTools;

// The settlement as files.
namespace modSettlementExport {

// A file of the format.
[[nodiscard]] modFileWrite::cContent Content(const cSettlement& settlement, cReportExport::eFormat format,
                                             const cBookTools& tools);

// The entries that counted.
[[nodiscard]] QByteArray Csv(const cSettlement& settlement);

// The entries that counted, below them what each person paid and bears, and who pays whom.
[[nodiscard]] modFileWrite::cContent Xlsx(const cSettlement& settlement, const cAmountFormat& format);

} // namespace modSettlementExport
