#include "views/bank/cTanEntry.h"

#include "base/cText.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "views/bank/modBankQuestion.h"
#include "views/common/modSetting.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cDialFacts
{
    const cSettingKey& Key;
    cTanEntry::cRange Range;
    const char* Label;
};

// The readers of TAN generators differ in width, and most of them follow up to 20 states a second.
const cDialFacts& Facts(cTanEntry::eDial dial)
{
    static const std::array facts{
        cDialFacts{modSettingKey::FlickerWidth, {40, 90}, QT_TRANSLATE_NOOP("cText", "&Breite: {0} mm")},
        cDialFacts{modSettingKey::FlickerSpeed, {2, 40}, QT_TRANSLATE_NOOP("cText", "&Tempo: {0} Bilder je Sekunde")},
        cDialFacts{modSettingKey::TanPictureWidth, {20, 160}, QT_TRANSLATE_NOOP("cText", "&Größe: {0} mm")}};
    return facts.at(static_cast<std::size_t>(dial));
}

} // namespace

cTanEntry::cTanEntry(const cTanQuestion& question, cSettings& settings) : m_question(question), m_settings(settings)
{
}

QString cTanEntry::Way() const
{
    return modBankQuestion::WayAndPurpose(modBankQuestion::Way(m_question.Procedure, m_question.Medium),
                                          m_question.Purpose);
}

QString cTanEntry::Words() const
{
    return modBankQuestion::Words(m_question);
}

QString cTanEntry::Hint() const
{
    switch (m_question.Display) {
    case eTanDisplay::Flicker:
        return cText::Tr("Halten Sie den TAN-Generator mit eingesteckter Karte vor die Balken, seine Marken an den "
                         "Dreiecken.");
    case eTanDisplay::Picture: return cText::Tr("Nehmen Sie das Bild mit der App oder dem Lesegerät Ihrer Bank auf.");
    case eTanDisplay::Text: break;
    }
    return m_question.IsUnreadable ? modBankQuestion::Unreadable() : QString();
}

QString cTanEntry::ByHand() const
{
    return m_question.ByHand.isEmpty()
        ? QString()
        : cText::Tr("Ohne Balken eintippen, eins nach dem anderen:") + u'\n' + m_question.ByHand.join(u'\n');
}

QString cTanEntry::Form() const
{
    return modBankQuestion::Form(m_question);
}

bool cTanEntry::Fit(QString& typed, int& cursor) const
{
    return modBankQuestion::Fit(m_question, typed, cursor);
}

cTanEntry::cRange cTanEntry::Range(eDial dial)
{
    return Facts(dial).Range;
}

QString cTanEntry::Label(eDial dial, int value)
{
    return cText::Tr(Facts(dial).Label, {QString::number(value)});
}

int cTanEntry::Value(eDial dial) const
{
    const cDialFacts& facts = Facts(dial);
    bool isNumber = false;
    const int stored = m_settings.Get(facts.Key).toInt(&isNumber);
    return std::clamp(isNumber ? stored : facts.Key.Default().toInt(), facts.Range.Least, facts.Range.Most);
}

void cTanEntry::SetValue(eDial dial, int value)
{
    modSetting::Keep(m_settings, Facts(dial).Key, QString::number(value));
}

bool cTanEntry::IsTurned() const
{
    return m_settings.GetBool(modSettingKey::FlickerTurned);
}

void cTanEntry::SetTurned(bool isTurned)
{
    modSetting::Keep(m_settings, modSettingKey::FlickerTurned, cSettings::FromBool(isTurned));
}
