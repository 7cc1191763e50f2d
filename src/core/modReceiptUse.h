#pragma once

#include "model/cEntryItem.h"

#include <QMap>
#include <QString>
#include <QStringList>

class cDataAccess;
class cSettings;

// Where in a book the files of its folder "Belege" hang: at entries, and as statements on paper at account numbers.
namespace modReceiptUse {

// The entries that have receipts, in the order of their days.
[[nodiscard]] cEntryItemList Entries(cDataAccess& data);

// The statements by account number, and those of one.
[[nodiscard]] QMap<QString, QStringList> Papers(cDataAccess& data);
[[nodiscard]] QStringList PapersOf(const cSettings& settings, const QString& number);

// All names, each as often as it hangs somewhere.
[[nodiscard]] QStringList Names(cDataAccess& data);

} // namespace modReceiptUse
