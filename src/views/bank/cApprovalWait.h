#pragma once

#include "base/cBankUser.h"

#include <QDateTime>
#include <QString>

class cClock;

// What the window shows while the bank waits for an approval, and when the bank may be asked again.
class cApprovalWait
{
public:
    explicit cApprovalWait(const cClock& clock) : m_clock(clock) {} // outlives this

    // A wait begins, the first or one more for the same approval.
    void Start(const cApproval& approval);

    [[nodiscard]] const cApproval& Approval() const { return m_approval; }
    [[nodiscard]] QString Way() const;      // procedure and medium, and below what for
    [[nodiscard]] QString Words() const;    // of the bank
    [[nodiscard]] QString TimeLeft() const; // "Noch 4:05 Minuten"; empty when the bank sets no time
    [[nodiscard]] QString Step() const;     // what happens next

    // The user wants the bank to be asked. Before the wait is over that is kept until then.
    [[nodiscard]] bool HasButton() const;
    [[nodiscard]] bool IsButtonOn() const { return !m_isWished; }
    void AskSoon() { m_isWished = true; }

    // The bank is to be asked now.
    [[nodiscard]] bool IsDue() const;

private:
    [[nodiscard]] qint64 SecondsLeft() const; // of the wait

    const cClock& m_clock;
    cApproval m_approval;
    QDateTime m_start;
    bool m_isWished = false;
};
