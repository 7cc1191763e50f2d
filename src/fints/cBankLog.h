#pragma once

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

class cSecret;

// The messages of a run, with secrets masked before they get here.
class cBankLog
{
public:
    // What is never to be read in it, raw and escaped: PIN and TAN become a row of "P" each, the registration
    // identifier a dummy of the same length. Texts given here are kept masked, not in the clear. Of a very long message
    // beginning and end are kept.
    void AddRequest(const QByteArray& message, const QList<const cSecret*>& secrets, const QString& productId);
    void AddAnswer(const QByteArray& message, const QList<const cSecret*>& secrets, const QString& productId);
    void AddRemark(const QString& text); // why an exchange failed

    // For the maker's own eyes: with everything that the bank said.
    [[nodiscard]] QString Text() const { return QString::fromLatin1(m_text); }
    // For others: login, account numbers, IBANs, names and purposes are hidden too. `people` are texts to hide beside
    // those that the messages themselves show. Outside of the bank's words the secrets do not decide what is hidden, so
    // that it cannot tell them: in a number that everybody knows a row of "P" would.
    [[nodiscard]] QString TextForOthers(const QStringList& people) const;

private:
    void Add(const QByteArray& heading, const QByteArray& message, const QList<const cSecret*>& secrets,
             const QString& productId);

    QByteArray m_text;      // bytes, as a text of the same length takes twice the room
    QByteArray m_others;    // the same with all hidden that its place or its form gives away
    QSet<QString> m_people; // what these places held, to be hidden in the words of the bank
};
