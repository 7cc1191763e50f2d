#include "import/propose/cPayeeKeys.h"

#include "base/cText.h"
#include "import/propose/modCash.h"
#include "import/read/modPayee.h"
#include "model/cImportEntry.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void TakeCash(cPayeeKeys::cPayee& payee)
{
    payee.Key = u"*"_s; // no name is cleaned to this
    payee.Name = cText::Tr("Geldautomat");
    payee.IsCash = true;
}

void Take(cPayeeKeys::cPayee& payee, const modPayee::cPayee& found)
{
    payee.Key = found.Key;
    payee.Name = found.Name;
}

} // namespace

cPayeeKeys::cPayee cPayeeKeys::ByName(const cImportEntry& row)
{
    cImportEntry alone = row;
    alone.ImportPurpose.clear();
    cPayee payee;
    alone.ImportValue = -1;
    payee.m_isDrawn = modCash::IsCash(alone);
    alone.ImportValue = 1;
    payee.m_isPaidIn = modCash::IsCash(alone);
    payee.IsCollector = modPayee::IsCollector(row.ImportBeneficiary);
    payee.m_isFixed = !payee.IsCollector && !row.ImportBeneficiary.trimmed().isEmpty();
    if (payee.m_isFixed) {
        Take(payee, modPayee::Of(alone));
    }
    return payee;
}

cPayeeKeys::cPayee cPayeeKeys::Of(const cImportEntry& row)
{
    const std::pair place(row.ImportType, row.ImportBeneficiary);
    auto known = m_known.constFind(place);
    if (known == m_known.constEnd()) {
        known = m_known.insert(place, ByName(row));
    }
    cPayee payee = *known;
    const bool isNamedCash = row.ImportValue < 0 ? payee.m_isDrawn : payee.m_isPaidIn; // of whatever amount
    if (isNamedCash || (modCash::CanBeCash(row) && modCash::IsCash(row))) {
        TakeCash(payee);
    } else if (!payee.m_isFixed) {
        Take(payee, modPayee::Of(row));
    }
    return payee;
}
