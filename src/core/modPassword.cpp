#include "core/modPassword.h"

#include "base/cRescue.h"
#include "base/modMD5.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsDigest(const QString& text)
{
    constexpr qsizetype digestLength = 32;
    return text.size() == digestLength
        && std::all_of(text.begin(), text.end(), [](QChar c) { return u"0123456789abcdefABCDEF"_s.contains(c); });
}

} // namespace

QString modPassword::ToStored(const QString& password)
{
    return modMD5::Hex(password);
}

bool modPassword::Matches(const QString& typed, const QString& stored)
{
    // A digest is never taken for the password itself: whoever reads it in the file could type it.
    return IsDigest(stored) ? stored.compare(ToStored(typed), Qt::CaseInsensitive) == 0 : stored == typed;
}

bool modPassword::IsActive(const cConfiguration& configuration)
{
    return cSettings::ToBool(configuration.GetSetting(u"PasswortAktiv"_s));
}

bool modPassword::Admit(const cConfiguration& configuration, cRescue& rescue)
{
    if (!IsActive(configuration)) {
        return true;
    }
    const QString stored = configuration.GetSetting(u"Passwort"_s);
    return rescue.AskPassword([&](const QString& typed) { return Matches(typed, stored); });
}
