#pragma once

#include <QString>

// A TAN procedure as the bank offers it (a row of its parameter segment HITANS). Waits are seconds.
struct TanVerfahrenItem
{
    QString SecurityFunction; // three digits, 900 to 997; "999" is the one-step procedure
    QString TanProcess;       // "1" or "2"
    int SegmentVersion = 0;   // of HITANS and HKTAN
    QString TechnicalIdentification;
    QString ZkaName;    // "HHDOPT1", "mobileTAN", "Decoupled", ...; empty when the bank names none
    QString ZkaVersion; // "1.4", ...
    QString Name;       // for the user
    int TanLength = 0;  // most characters; 0: not named
    bool IsNumber = true;
    QString ChallengeLabel;
    int ChallengeLength = 0;
    bool IsChallengeStructured = false;
    bool IsChallengeClassRequired = false;
    bool IsChallengeAmountRequired = false;
    QString InitMode;
    QString MediaNameRequired = QStringLiteral("0"); // "0" no, "1" allowed, "2" required
    bool IsHhdUcRequired = false;
    int ActiveMediaCount = 0;
    // Approval outside of the dialog, from version 7 on
    int MostPolls = 0; // 0: no limit
    int WaitBeforeFirst = 0;
    int WaitBeforeNext = 0;
    bool IsManualAllowed = true;
    bool IsAutomaticAllowed = true;

    bool operator==(const TanVerfahrenItem&) const = default;
};
