#pragma once

#include "fints/HBCISegment.h"
#include "model/bank/cBankAccount.h"
#include "model/bank/TanVerfahrenItem.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// A return message of the bank (an entry of HIRMG or HIRMS). Text is for display, parameters are wire text.
struct cReturnMessage
{
    QString Code;
    QString Element;
    QString Text;
    QList<QByteArray> Parameters;
    bool IsGlobal = false; // of the whole message (HIRMG)
    int Reference = 0;     // number of the request segment it belongs to, for HIRMS
};

// A request for a TAN (HITAN). Reference is wire text.
struct cTanChallenge
{
    QByteArray Process;
    QByteArray Reference; // "noref" when the bank sends none
    QString Challenge;    // "nochallenge" when the bank sends none; not cleaned
    QByteArray HhdUc;     // bytes of the flicker code or picture; empty when there are none
    QDateTime ValidUntil; // invalid when not named
    QString Medium;
};

// What HKSAL tells. Cents, signed.
struct cBankBalanceRead
{
    qint64 Cents = 0;
    QDate Day;
    QString Currency;
};

// A parsed answer of the bank, the envelope taken off. Segments that it does not know are kept and do no harm; a
// missing element is an empty one.
class cBankAnswer
{
public:
    // Nothing when the bytes are no whole message: they do not begin with HNHBK, its head cannot be read, or they were
    // cut off on the way.
    [[nodiscard]] static std::optional<cBankAnswer> Read(const QByteArray& bytes);

    [[nodiscard]] const QByteArray& DialogId() const { return m_dialogId; } // wire
    [[nodiscard]] const QList<HBCISegment>& Segments() const { return m_segments; }
    [[nodiscard]] QList<HBCISegment> SegmentsOf(QByteArrayView code) const;

    // Return messages
    [[nodiscard]] const QList<cReturnMessage>& Messages() const { return m_messages; }
    [[nodiscard]] bool Has(QStringView code) const;
    [[nodiscard]] QString CollectedText() const;    // all but "0020", code and text, one a line (CR LF)
    [[nodiscard]] QString BankWords() const;        // the texts alone, for the user
    [[nodiscard]] bool HasMoreThanWarnings() const; // anything but 3060
    [[nodiscard]] bool IsAborted() const;           // HIRMG 9800
    [[nodiscard]] QByteArray Continuation() const;  // first parameter of 3040; empty without
    [[nodiscard]] std::optional<QStringList> AllowedFunctions() const; // 3920
    [[nodiscard]] bool IsWrongPin() const;
    [[nodiscard]] bool IsLocked() const;

    // What a dialog keeps
    [[nodiscard]] std::optional<QByteArray> SystemId() const; // HISYN, wire
    [[nodiscard]] QString BpdVersion() const;                 // empty when no HIBPA came
    [[nodiscard]] QString BankName() const;
    [[nodiscard]] QString UpdVersion() const;               // empty when no HIUPA came
    [[nodiscard]] QList<QByteArray> Parameters() const;     // HIBPA and HI…S, each as it came
    [[nodiscard]] QList<cBankAccount> Accounts() const;     // HIUPD, those that may be offered
    [[nodiscard]] QList<cBankAccount> SepaAccounts() const; // HISPA: numbers, IBAN and BIC, nothing else
    [[nodiscard]] QStringList Media() const;                // HITAB, active ones

    [[nodiscard]] std::optional<cTanChallenge> Tan() const; // HITAN

    // Bookings
    [[nodiscard]] QByteArray BookedMT940() const;                  // HIKAZ, all blocks of this answer joined
    [[nodiscard]] QList<QByteArray> BookedCamt() const;            // HICAZ, booked documents
    [[nodiscard]] std::optional<cBankBalanceRead> Balance() const; // HISAL

private:
    explicit cBankAnswer(QList<HBCISegment> segments);
    void ReadMessages();

    QByteArray m_dialogId;
    QList<HBCISegment> m_segments;
    QList<cReturnMessage> m_messages;
};
