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
    for (const QChar character : text)
        raw.append(character.toLatin1());
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

QByteArray Shortened(const QByteArray& text)
{
    if (text.size() <= longest)
        return text;
    const qsizetype half = longest / 2;
    return text.first(half) + "\r\n[" + QByteArray::number(text.size() - longest) + "]\r\n" + text.last(half);
}

// What is cut out of a long message before it is searched is cut a margin away from what is kept.
QByteArray Masked(const QByteArray& message, const QList<QByteArray>& secrets, const QList<QByteArray>& product)
{
    const auto mask = [&](const QByteArray& text) {
        return modLogMask::Covered(modLogMask::Covered(text, secrets, secretCover), product, productCover);
    };
    if (message.size() <= longest + 2 * margin)
        return Shortened(mask(message));
    const qsizetype half = longest / 2;
    return mask(message.first(half + margin)).first(half) + "\r\n[" + QByteArray::number(message.size() - longest)
        + "]\r\n" + mask(message.last(half + margin)).last(half);
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
        if (secret != nullptr)
            AppendForms(needles, secret->Characters());
    }
    QList<QByteArray> product;
    AppendForms(product, productId);
    m_text += Line(heading) + Lines(Masked(message, needles, product)) + "\r\n";
    m_others += Line(heading) + Lines(Shortened(modLogMask::Message(message, needles + product, m_people))) + "\r\n";
    for (QByteArray& needle : needles)
        cSecret::Wipe(needle);
}
