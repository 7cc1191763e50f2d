#include "import/table/modColumnField.h"

#include "import/read/cColumnMap.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cColumnName
{
    const char16_t* Name;
    int cColumnMap::*Place;
};

constexpr std::array columns = {
    cColumnName{u"datum", &cColumnMap::Date},
    cColumnName{u"art", &cColumnMap::Text},
    cColumnName{u"name", &cColumnMap::Name},
    cColumnName{u"konto", &cColumnMap::Account},
    cColumnName{u"blz", &cColumnMap::BankCode},
    cColumnName{u"betrag", &cColumnMap::Amount},
    cColumnName{u"soll", &cColumnMap::Debit},
    cColumnName{u"haben", &cColumnMap::Credit},
    cColumnName{u"waehrung", &cColumnMap::Currency},
    cColumnName{u"kennzeichen", &cColumnMap::Indicator},
    cColumnName{u"zahler", &cColumnMap::Payer},
    cColumnName{u"name2", &cColumnMap::Name2},
    cColumnName{u"konto2", &cColumnMap::Account2},
    cColumnName{u"blz2", &cColumnMap::BankCode2},
    cColumnName{u"eigenkonto", &cColumnMap::OwnAccount},
    cColumnName{u"eigenblz", &cColumnMap::OwnBankCode},
    cColumnName{u"status", &cColumnMap::Status},
    cColumnName{u"saldo", &cColumnMap::Balance},
    cColumnName{u"gebuehr", &cColumnMap::Fee},
    cColumnName{u"ersatzname", &cColumnMap::OtherName},
};

constexpr std::array purposes = {u"zweck", u"zweck2", u"zweck3"};

} // namespace

QStringList modColumnField::Names()
{
    QStringList names;
    for (const cColumnName& column : columns) {
        names.append(QString::fromUtf16(column.Name));
    }
    for (const char16_t* purpose : purposes) {
        names.append(QString::fromUtf16(purpose));
    }
    return names;
}

int* modColumnField::PlaceOf(cColumnMap& map, const QString& name)
{
    const QString spelled = name.toLower().replace(u'ä', u"ae"_s);
    for (std::size_t i = 0; i < purposes.size(); ++i) {
        if (spelled == QStringView(purposes.at(i))) {
            return &map.Purpose.at(i);
        }
    }
    const auto* const found = std::find_if(
        columns.begin(), columns.end(), [&](const cColumnName& column) { return spelled == QStringView(column.Name); });
    return found == columns.end() ? nullptr : &(map.*(found->Place));
}
