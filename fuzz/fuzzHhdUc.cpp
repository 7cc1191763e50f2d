// The data of a TAN challenge as a hostile bank could send them: a code for a TAN generator, a picture, or a code
// within the words. What is taken for a code has to be one that a generator can check.

#include "fints/cBankAnswer.h"
#include "fints/modChallenge.h"
#include "fints/modFlickerCode.h"
#include "fints/modTanPicture.h"

#include <QString>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void Require(bool isSound, const char* fault)
{
    if (!isSound) {
        std::fprintf(stderr, "%s\n", fault);
        std::abort();
    }
}

void LookAtCode(const QByteArray& bytes, eHhd version)
{
    const auto code = modFlickerCode::Read(bytes, version);
    if (!code) {
        return;
    }
    const QByteArray complete = modFlickerCode::Complete(*code);
    Require(static_cast<unsigned char>(complete.at(0)) == complete.size() - 1, "a length that is not the code's own");
    constexpr int statesOfByte = 4;
    constexpr int syncBytes = 2;
    Require(modFlickerCode::States(complete).size() == statesOfByte * (complete.size() + syncBytes),
            "states are missing");
    Require(!code->Typed().first().isEmpty(), "nothing to be typed");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    LookAtCode(bytes, eHhd::V13);
    LookAtCode(bytes, eHhd::V14);
    for (const char* procedure : {"HHD1.3.2OPT", "HHD1.4OPT", "MS1.0.0", "Q1S", "pushTAN"}) {
        TanVerfahrenItem method;
        method.TechnicalIdentification = QString::fromLatin1(procedure);
        cTanChallenge challenge;
        challenge.HhdUc = bytes;
        (void)modChallenge::Question(challenge, method, {}, {});
        challenge.HhdUc.clear();
        challenge.Challenge = QString::fromLatin1(bytes);
        const cTanQuestion question = modChallenge::Question(challenge, method, {}, {});
        Require(question.Flicker.isEmpty() == (question.Display != eTanDisplay::Flicker), "a display without its data");
    }
    if (const auto picture = modTanPicture::Read(bytes)) {
        Require(!picture->File.isEmpty() && picture->Type.startsWith(u"image/"), "a picture that is none");
    }
    return 0;
}
