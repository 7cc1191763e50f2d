#include "views/main/modAppearance.h"

#include "core/cConfiguration.h"
#include "model/modSettingKey.h"
#include "views/main/modCommand.h"

#include <QString>

#include <algorithm>
#include <array>

namespace {

struct cLine
{
    eAppearance Appearance;
    modCommand::eId Command;
    QString Word; // as it is stored
};

const std::array<cLine, 3>& Lines()
{
    static const std::array<cLine, 3> lines{{
        {eAppearance::System, modCommand::AppearanceSystem, QStringLiteral("System")},
        {eAppearance::Light, modCommand::AppearanceLight, QStringLiteral("Hell")},
        {eAppearance::Dark, modCommand::AppearanceDark, QStringLiteral("Dunkel")},
    }};
    return lines;
}

} // namespace

eAppearance modAppearance::Chosen(const cConfiguration& configuration)
{
    const QString word = configuration.GetSetting(modSettingKey::Appearance);
    const auto* const line =
        std::find_if(Lines().begin(), Lines().end(), [&](const cLine& each) { return each.Word == word; });
    return line == Lines().end() ? eAppearance::System : line->Appearance;
}

bool modAppearance::Choose(eAppearance appearance, cConfiguration& configuration)
{
    const auto* const line =
        std::find_if(Lines().begin(), Lines().end(), [&](const cLine& each) { return each.Appearance == appearance; });
    return configuration.SaveSetting(modSettingKey::Appearance, line->Word, eSettingPlace::Registry);
}

std::optional<eAppearance> modAppearance::OfCommand(int command)
{
    const auto* const line =
        std::find_if(Lines().begin(), Lines().end(), [&](const cLine& each) { return each.Command == command; });
    return line == Lines().end() ? std::nullopt : std::optional(line->Appearance);
}
