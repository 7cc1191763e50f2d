#include "fints/modChallenge.h"

#include "base/cText.h"
#include "fints/cBankAnswer.h"
#include "fints/modFlickerCode.h"
#include "fints/modTanPicture.h"

#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsMosaic(const QString& id)
{
    return id.startsWith(u"MA1"_s) || id.startsWith(u"MS1"_s);
}

bool IsQr(const QString& id)
{
    return id == u"QR"_s || (id.startsWith(u'Q') && id.contains(u'S'));
}

// The name of the procedure by which its display is chosen, in upper case. Most banks write it into the technical
// identification ("HHD1.3.2OPT", "MS1.0.0", "Q1S"). One that keeps a name of its own there still gives the one that all
// banks have agreed on ("HHDOPT1" with "1.4", "photoTAN", "QRTAN"), and that is put into the same form.
QString Identification(const TanVerfahrenItem& method)
{
    const QString own = method.TechnicalIdentification.toUpper();
    const QString agreed = method.ZkaName.toUpper();
    if (own.startsWith(u"HHD1"_s) || IsMosaic(own) || IsQr(own)) {
        return own;
    }
    if (agreed.startsWith(u"HHD"_s)) {
        return u"HHD"_s + method.ZkaVersion + agreed.mid(3);
    }
    if (agreed == u"PHOTOTAN"_s) {
        return u"MS1"_s;
    }
    return agreed == u"QRTAN"_s ? u"QR"_s : own;
}

eTanDisplay Display(const TanVerfahrenItem& method)
{
    const QString id = Identification(method);
    const QString marks = id + u' ' + method.ZkaName.toUpper();
    if (id.startsWith(u"HHD1"_s) && (marks.contains(u"OPT"_s) || marks.contains(u"UC"_s))) {
        return eTanDisplay::Flicker;
    }
    return IsMosaic(id) || IsQr(id) ? eTanDisplay::Picture : eTanDisplay::Text;
}

eHhd Edition(const TanVerfahrenItem& method)
{
    const QString id = Identification(method);
    return id.startsWith(u"HHD1.4"_s) || id.startsWith(u"HHD14"_s) ? eHhd::V14 : eHhd::V13;
}

// Challenges in parts: a name of eight characters, a length of four digits, the part, and so on.
constexpr QStringView codePart = u"CHLGUC  ";
constexpr QStringView textPart = u"CHLGTEXT";
constexpr qsizetype lengthDigits = 4;

struct cParts
{
    QString Code;
    QString Text;
};

cParts Parts(const QString& challenge)
{
    const qsizetype mark = challenge.indexOf(codePart);
    if (mark < 0) {
        return {{}, challenge};
    }
    const qsizetype code = mark + codePart.size() + lengthDigits;
    const qsizetype length = QStringView(challenge).mid(mark + codePart.size(), lengthDigits).toInt();
    const qsizetype text = challenge.indexOf(textPart, mark);
    const QString words =
        text >= 0 ? challenge.mid(text + textPart.size() + lengthDigits) : challenge.mid(code + length);
    return {challenge.mid(code, length), challenge.left(mark) + words};
}

void AddFlicker(cTanQuestion& question, const cTanChallenge& challenge, eHhd edition)
{
    const QByteArray sent = challenge.HhdUc.isEmpty() ? Parts(challenge.Challenge).Code.toLatin1() : challenge.HhdUc;
    // Both editions tell their whole length, so that none is taken for the other, and some banks name the wrong one.
    for (const eHhd each : {edition, edition == eHhd::V14 ? eHhd::V13 : eHhd::V14}) {
        if (const auto code = modFlickerCode::Read(sent, each)) {
            question.Display = eTanDisplay::Flicker;
            question.Flicker = modFlickerCode::States(modFlickerCode::Complete(*code));
            question.ByHand = code->Typed();
            return;
        }
    }
    question.IsUnreadable = !sent.isEmpty();
}

void AddPicture(cTanQuestion& question, const cTanChallenge& challenge)
{
    if (const auto picture = modTanPicture::Read(challenge.HhdUc)) {
        question.Display = eTanDisplay::Picture;
        question.Picture = picture->File;
        question.PictureType = picture->Type;
    } else {
        question.IsUnreadable = !challenge.HhdUc.isEmpty();
    }
}

} // namespace

QString modChallenge::Cleaned(const QString& challenge)
{
    static constexpr std::array marks{
        std::pair(u"<br>", u"\r\n"), std::pair(u"<br/>", u"\r\n"), std::pair(u"<b>", u""),
        std::pair(u"</b>", u""),     std::pair(u"<i>", u""),       std::pair(u"</i>", u""),
        std::pair(u"<u>", u""),      std::pair(u"</u>", u""),      std::pair(u"<p>", u"\r\n"),
        std::pair(u"</p>", u""),     std::pair(u"<ul>", u""),      std::pair(u"</ul>", u""),
        std::pair(u"<ol>", u""),     std::pair(u"</ol>", u""),     std::pair(u"<li>", u"\r\n"),
        std::pair(u"</li>", u""),    std::pair(u"&nbsp;", u" "),   std::pair(u"&lt;", u"<"),
        std::pair(u"&gt;", u">"),    std::pair(u"&amp;", u"&")};
    QString text = Parts(challenge).Text;
    for (const auto& [mark, meaning] : marks) {
        text.replace(QString::fromUtf16(mark), QString::fromUtf16(meaning), Qt::CaseInsensitive);
    }
    return text;
}

cTanQuestion modChallenge::Question(const cTanChallenge& challenge, const TanVerfahrenItem& method, const QString& bank,
                                    const QString& medium)
{
    cTanQuestion question;
    question.Bank = bank;
    question.Procedure = method.Name;
    question.Medium = medium;
    question.Label = cText::Tr("TAN-Eingabe:");
    question.Challenge = Cleaned(challenge.Challenge);
    question.MostCharacters = method.TanLength;
    question.IsNumber = method.IsNumber;
    switch (Display(method)) {
    case eTanDisplay::Flicker: AddFlicker(question, challenge, Edition(method)); break;
    case eTanDisplay::Picture: AddPicture(question, challenge); break;
    case eTanDisplay::Text: break;
    }
    return question;
}
