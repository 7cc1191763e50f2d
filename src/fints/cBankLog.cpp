#include "fints/cBankLog.h"

#include "base/cSecret.h"
#include "fints/modFintsValue.h"
#include "fints/modLogMask.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char secretCover = 'P';
constexpr char productCover = 'X';
constexpr qsizetype longest = 1'000'000; // bytes of one message that are kept
constexpr qsizetype margin = 1000;       // longer than any secret, so that none is cut in two unseen

QByteArray Line(const QByteArray& heading)
{
    return QByteArray(20, '-') + "\r\n" + heading + "\r\n";
}

QByteArray Raw(QStringView text)
{
    QByteArray raw;
    raw.reserve(text.size());
    for (const QChar character : text) {
        raw.append(character.toLatin1());
    }
    return raw;
}

// Both forms in which a text can stand in a message.
void AppendForms(QList<QByteArray>& forms, QStringView text)
{
    forms.append(Raw(text));
    forms.append(modFintsValue::Escaped(text));
}

// One segment a line, and nothing that ends a text.
QByteArray Lines(QByteArray message)
{
    return message.replace('\0', '.').replace("'", "'\r\n");
}

// Beginning and end of a text of this size.
QByteArray Ends(const QByteArray& head, const QByteArray& tail, qsizetype size)
{
    return head.first(longest / 2) + "\r\n[" + QByteArray::number(size - longest) + " Zeichen ausgelassen]\r\n"
        + tail.last(longest / 2);
}

QByteArray Shortened(const QByteArray& text)
{
    return text.size() <= longest ? text : Ends(text, text, text.size());
}

// A secret on the edge of what is left out is still found, because the search goes a margin further.
QByteArray Masked(const QByteArray& message, const QList<QByteArray>& secrets, const QList<QByteArray>& product)
{
    const auto mask = [&](const QByteArray& text) {
        return modLogMask::Covered(text, product, productCover, modLogMask::Covered(text, secrets, secretCover, text));
    };
    if (message.size() <= longest) {
        return mask(message);
    }
    const qsizetype searched = longest / 2 + margin;
    return Ends(mask(message.first(searched)), mask(message.last(searched)), message.size());
}

} // namespace

void cBankLog::AddRequest(const QByteArray& message, const QList<const cSecret*>& secrets, const QString& productId)
{
    Add("Nachricht an Bank", message, secrets, productId);
}

void cBankLog::AddAnswer(const QByteArray& message, const QList<const cSecret*>& secrets, const QString& productId)
{
    Add("Antwort von Bank", message, secrets, productId);
}

void cBankLog::AddRemark(const QString& text)
{
    m_text += text.toLatin1() + "\r\n";
    m_others += modLogMask::Words(text.toLatin1(), {}) + "\r\n";
}

QString cBankLog::TextForOthers(const QStringList& people) const
{
    return modLogMask::Without(QString::fromLatin1(m_others), people + m_people.values());
}

void cBankLog::Add(const QByteArray& heading, const QByteArray& message, const QList<const cSecret*>& secrets,
                   const QString& productId)
{
    QList<QByteArray> needles;
    for (const cSecret* secret : secrets) {
        if (secret != nullptr) {
            AppendForms(needles, secret->Characters());
        }
    }
    QList<QByteArray> product;
    AppendForms(product, productId);
    m_text += Line(heading) + Lines(Masked(message, needles, product)) + "\r\n";
    m_others += Line(heading) + Lines(Shortened(modLogMask::Message(message, needles + product, m_people))) + "\r\n";
    for (QByteArray& needle : needles) {
        cSecret::Wipe(needle);
    }
}
