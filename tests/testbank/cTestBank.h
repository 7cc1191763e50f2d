#pragma once

#include "testbank/cBankProfile.h"
#include "testbank/cBankRequest.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QStringList>

#include <optional>

// A bank for tests: reads each request as strictly as a real one, keeps its dialogs and system IDs, and answers by its
// profile. What is wrong with a request is a complaint, which fails the running test (see IsLenient).
class cTestBank
{
public:
    explicit cTestBank(cBankProfile profile) : Profile(std::move(profile)) {}

    // The answer to the body of a POST, both in Base64.
    [[nodiscard]] QByteArray Answer(const QByteArray& base64Body);

    // What would be asked for, without anything happening; see cBankRequest::Step.
    [[nodiscard]] static QByteArray StepOf(const QByteArray& base64Body);

    // Every dialog was ended, or broken off by the bank, or may not be ended because the PIN was refused.
    [[nodiscard]] bool IsQuiet() const { return m_dialogId.isEmpty() || m_isPinRefused; }

    [[nodiscard]] const QStringList& Complaints() const { return m_complaints; }
    [[nodiscard]] QString Story() const { return Journal.join(u" | "); } // of Journal

    cBankProfile Profile;
    QStringList Journal;    // what was asked, in short; others may write into it too
    bool IsLenient = false; // complaints are only noted
    QByteArray LastText;    // the decoded request

private:
    // A segment of an answer without number; reference is that of the request's segment.
    struct cReply
    {
        QByteArray Head; // "HIKAZ:5" is code and version
        int Reference = 0;
        QByteArray Body; // with the leading "+"
    };
    // An order that waits for its TAN.
    struct cPending
    {
        QByteArray Reference;
        cBankRequest Request;
        cAskedTan Tan;
        QByteArray Step;
    };

    void Complain(const QString& text);
    void Check(bool isRight, const QString& rule)
    {
        if (!isRight) {
            Complain(rule);
        }
    }
    void Note(const cBankRequest& request);
    [[nodiscard]] static QString Opening(const cBankRequest& request);

    // The request as a whole
    void CheckRequest(const cBankRequest& request);
    void CheckLogin(const cBankRequest& request);
    void CheckTanOrder(const cBankRequest& request);
    void CheckTan(const cBankRequest& request, const cRequestSegment& tan);
    void CheckTanWish(const cBankRequest& request, const cRequestSegment& tan, const cOfferedMethod& method);
    [[nodiscard]] const cOfferedMethod* MethodOf(const cBankRequest& request) const;

    // What comes of it
    [[nodiscard]] QByteArray Respond(const cBankRequest& request);
    [[nodiscard]] std::optional<QByteArray> Refuse(const cBankRequest& request, const QByteArray& step);
    [[nodiscard]] QByteArray Refused(const cBankRequest& request, const cRefusal& refusal);
    [[nodiscard]] std::optional<QByteArray> AskTan(const cBankRequest& request, const QByteArray& order);
    [[nodiscard]] QByteArray TakeTan(const cBankRequest& request);
    void Do(const cBankRequest& request, bool isStrong);
    void Open(const cBankRequest& request, bool isStrong);
    void TellParameters(const cRequestSegment& preparation);
    void TellAccounts(const cRequestSegment& preparation);
    void Synchronise(const cBankRequest& request);
    void TellStatements(const cRequestSegment& order);
    void TellCamt(const cRequestSegment& order);
    void TellBalance(const cRequestSegment& order);
    void TellMedia(const cRequestSegment& order);
    void TellSepa(const cRequestSegment& order);
    void Challenge(int reference, const QByteArray& fields) { Add("HITAN:" + m_tanVersion, reference, "+" + fields); }

    [[nodiscard]] QByteArray National(const cOfferedAccount& account) const
    {
        return account.Number + ':' + account.Sub + ":280:" + Profile.Code;
    }
    [[nodiscard]] QByteArray IbanOf(const cOfferedAccount& account) const;
    const cOfferedAccount* Account(const cRequestSegment& order, bool isIban);
    qsizetype PageOf(const cRequestSegment& order, int place, qsizetype count);
    void CheckPeriod(const cRequestSegment& order, int from);

    void Add(const QByteArray& head, int reference, const QByteArray& body);
    void Say(int reference, const QByteArray& words);
    [[nodiscard]] QByteArray Message(const QByteArray& global, const cBankRequest& request);

    QStringList m_complaints;
    QByteArray m_dialogId;
    QByteArray m_systemId; // of the dialog
    int m_number = 0;      // of the last message in the dialog
    int m_dialogs = 0;
    bool m_isPinRefused = false;
    QByteArray m_tanVersion = "6"; // of the last request for one
    std::optional<cPending> m_pending;
    QMap<QByteArray, int> m_times; // that a step was asked for
    QMap<QByteArray, int> m_asked; // TANs asked for by order
    QList<cReply> m_replies;
};
