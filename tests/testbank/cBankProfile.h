#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>

// A TAN procedure as this bank offers it.
struct cOfferedMethod
{
    QByteArray Function{}; // "912"
    int Version = 6;       // of HITANS and HKTAN
    QByteArray Process = "2";
    QByteArray Technical = "mobileTAN";
    QByteArray Zka{};
    QByteArray ZkaVersion{};
    QByteArray Name = "mobileTAN";
    QByteArray MediumRequired = "0";
    QByteArray Polls = "0:0:0:J:J"; // version 7: most, wait first, wait next, by hand, by itself
};

// When and how an order needs a TAN or an approval.
struct cAskedTan
{
    int Times = 1; // so many orders; -1: all of them
    QByteArray Challenge = "Bitte geben Sie die TAN ein.";
    QByteArray Code = "0030::Auftrag empfangen - TAN erforderlich."; // "3955::..." for an approval
    QByteArray HhdUc{};
    int NotYet = 0;       // so many status requests are answered "not yet"; -1: all of them
    QByteArray Refusal{}; // "9941::...": what comes of it instead of the order
};

// An order that is refused.
struct cRefusal
{
    int Nth = 1; // when the order comes for the n-th time; 0: always
    QByteArray Global = "9050::Die Nachricht hat Fehler.";
    QByteArray Local{}; // for the segment; may be empty
    QByteArray Extra{}; // further segments, "HISYN:4+abc"
};

struct cOfferedAccount
{
    QByteArray Number{};
    QByteArray Sub{}; // of several accounts under one number
    QByteArray Iban{};
    QByteArray Product = "Girokonto";
    QByteArray Orders = "HKKAZ:1+HKSAL:1";
    QList<QByteArray> Pages{};   // of MT940, one message each; none: no bookings
    QList<QByteArray> Camt{};    // documents, one message each
    QList<QByteArray> Pending{}; // behind the booked ones of the page with this number
    QByteArray Balance = "C:1234,56:EUR:20260228";
    QByteArray Refusal{}; // "9210::...": no statements for this one
};

// All that a bank of the tests is and does. Wire text throughout.
struct cBankProfile
{
    QByteArray Code = "12345678";
    QByteArray Name = "Testbank";
    QByteArray User = "testuser";
    QByteArray Pin = "12345";
    QByteArray Tan = "777666";
    QByteArray Product = "PRODUKTID0123456789012345";
    QByteArray Bpd = "78";
    QByteArray Upd = "3";
    QList<QByteArray> Systems{"SYS?+1"}; // IDs that it knows; a new one is "SYS?+" and the number of the next
    QList<QByteArray> Parameters{"HIKAZS:5+1+1+90:N:N", "HISALS:5+1+1", "HITABS:4+1+1+0",
                                 "HIPINS:1+1+1+0+5:20:6:::HKKAZ:J:HKSAL:N:HKTAB:N:HKSPA:N"};
    QByteArray OldMethods{}; // HITANS of versions before 6, with their heads
    bool IsOneStepAllowed = false;
    QList<cOfferedMethod> Methods{{.Function = "912"}};
    QByteArray Functions{}; // what 3920 lists; empty: all methods
    bool IsListed = true;   // 3920 is sent at all
    QList<QByteArray> Media{"Handy"};
    QList<cOfferedAccount> Accounts{};
    bool TellsAccountsAtOnce = false;              // before a strong authentication
    bool RepeatsNothing = true;                    // no parameters for whom they are current
    QByteArray InitWords{};                        // a further return message of the initialisation
    QMap<QByteArray, cAskedTan> AskedTans{};       // by order: "HKIDN", "HKKAZ", ...
    QMap<QByteArray, cRefusal> Refusals{};         // by order, also "HKSYN", "HKEND", "HKTAN2", "HKTANS"
    QByteArray Point = "9978-12-08-12.12.22.?:97"; // of the next page, with its number behind it
    bool IsSigned = false;                         // answers with a signature head and tail
};
