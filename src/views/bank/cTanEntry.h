#pragma once

#include "base/cBankUser.h"

#include <QString>
#include <QStringView>

class cSettings;

// What the window for a TAN decides: its texts, what may be typed, and how large and how fast the bars or the picture
// are shown, which is kept for the next time.
class cTanEntry
{
public:
    // What the user can turn: width of bars or picture in millimetres, states of the bars in a second.
    enum class eDial { FlickerWidth, FlickerSpeed, PictureWidth };

    struct cRange
    {
        int Least;
        int Most;
    };

    // `settings` outlive the entry.
    cTanEntry(const cTanQuestion& question, cSettings& settings);

    [[nodiscard]] const cTanQuestion& Question() const { return m_question; }
    [[nodiscard]] QString Way() const;    // procedure and medium, and below what for
    [[nodiscard]] QString Words() const;  // of the bank
    [[nodiscard]] QString Hint() const;   // what to do with the bars or the picture; empty for words alone
    [[nodiscard]] QString ByHand() const; // what the bars say, for a reader with keys; empty without
    // As in modBankQuestion
    [[nodiscard]] QString Form() const;
    [[nodiscard]] bool Fit(QString& typed, int& cursor) const;

    [[nodiscard]] static cRange Range(eDial dial);
    [[nodiscard]] static QString Label(eDial dial, int value); // with the value and a mnemonic
    [[nodiscard]] int Value(eDial dial) const;
    void SetValue(eDial dial, int value);

    // The bars upside down, for a reader that is held from below.
    [[nodiscard]] bool IsTurned() const;
    void SetTurned(bool isTurned);

private:
    cTanQuestion m_question;
    cSettings& m_settings;
};
