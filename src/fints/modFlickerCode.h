#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// Editions of the rules by which a TAN generator reads from the screen.
enum class eHhd { V13, V14 };

// What a TAN generator is told: the start code, which says what kind of order it is, and the data that its display asks
// to be compared.
struct cFlickerCode
{
    // Digits are sent two to a byte, everything else as characters.
    struct cElement
    {
        QByteArray Data;
        bool IsText = false;

        bool operator==(const cElement&) const = default;
    };

    eHhd Version = eHhd::V14;
    QByteArray ControlBytes; // none in edition 1.3
    cElement StartCode;
    QList<cElement> Data; // three at most; an empty one keeps its place

    // Start code and data as they are typed into a generator without the picture.
    [[nodiscard]] QStringList Typed() const;

    bool operator==(const cFlickerCode&) const = default;
};

// Codes for TAN generators with an optical interface: how the bank sends them, how they are checked and how they become
// a picture of five flickering bars.
namespace modFlickerCode {

// The code as the bank sends it. Nothing when it does not keep the rules to its last character: a code that was read
// wrong would make a TAN for another order.
[[nodiscard]] std::optional<cFlickerCode> Read(QByteArrayView code, eHhd version);

// The bytes that go over to the generator, with length and check digits; empty when an element is too long for its
// edition.
[[nodiscard]] QByteArray Complete(const cFlickerCode& code);

// The states of the five bars, one a byte: bit 0 is the clock, bits 1 to 4 are a half byte with its lowest bit first.
[[nodiscard]] QByteArray States(const QByteArray& complete);

} // namespace modFlickerCode
