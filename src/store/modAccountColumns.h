#pragma once

#include "model/bank/cOnlineAccount.h"

#include <array>

// The columns of table `account` in their order. Names are the ones of new tables; SQLite does not tell letter case
// apart.
namespace modAccountColumns {

inline constexpr size_t CreatedCount = 19; // these come with the table, the others were added later

inline constexpr std::array<const char*, cOnlineAccount::ColumnCount> Names{
    "AccountCreationDate",
    "AccountCharSet",
    "AccountProductName",
    "AccountOwnerName1",
    "AccountOwnerName2",
    "AccountCurrency",
    "AccountInstitute",
    "AccountLimit",
    "AccountCountryID",
    "AccountBLZ",
    "AccountNumber",
    "AccountCustomerID",
    "AccountPinTanUrl",
    "AccountSign",
    "AccountLastSysIDSync",
    "AccountLastSysID",
    "AccountLastBPD",
    "AccountLastUPD",
    "AccountLastSync",
    "AccountTanSecurityFunction",
    "AccountTanTechnicalIdentification",
    "AccountTanName",
    "AccountTanChallengeLabel",
    "AccountTanChallengeClassReqd",
    "AccountTanChallengeAmountReqd",
    "AccountTanChallengeStructd",
    "AccountTanMediaInitMode",
    "AccountTanResponseHHDUCReqd",
    "AccountTanActiveTanMediaCount",
    "AccountTANHash",
    "AccountTANProcessId",
    "AccountTANMediaNameReqd",
    "AccountTANSegmentVersion",
    "AccountTANMediaName",
    "AccountTANMediaSecurityFunction",
};

} // namespace modAccountColumns
