#include "support/cTestClass.h"

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cMessage
{
    QString German;
    QString Translated;
    bool IsFinished = false;
};

// The translation, or the translations in the forms that numbers have in the language, as messages of their own.
void ReadForms(QXmlStreamReader& xml, QList<cMessage>& messages)
{
    const cMessage message = messages.takeLast();
    QString text;
    QStringList forms;
    while (xml.readNext() != QXmlStreamReader::EndElement && !xml.atEnd()) {
        if (xml.isStartElement()) {
            forms.append(xml.readElementText());
        } else {
            text += xml.text();
        }
    }
    for (const QString& form : forms.isEmpty() ? QStringList(text) : forms) {
        messages.append(message);
        messages.last().Translated = form;
    }
}

QList<cMessage> ReadCatalogue(QXmlStreamReader& xml)
{
    QList<cMessage> messages;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == u"source") {
            messages.append({.German = xml.readElementText(), .Translated = {}});
        } else if (xml.name() == u"translation" && !messages.isEmpty()) {
            messages.last().IsFinished = !xml.attributes().hasAttribute(u"type"_s);
            ReadForms(xml, messages);
        }
    }
    return messages;
}

// The placeholders of a text in the order of their numbers, because a translation may turn them round.
QStringList Placeholders(const QString& text)
{
    static const QRegularExpression placeholder(u"\\{\\d+\\}"_s);
    QStringList found;
    for (QRegularExpressionMatchIterator i = placeholder.globalMatch(text); i.hasNext();) {
        found.append(i.next().captured());
    }
    found.sort();
    return found;
}

bool HasMnemonic(const QString& text)
{
    static const QRegularExpression mnemonic(u"&[^&\\s]"_s);
    return text.contains(mnemonic);
}

// The colon or the ellipsis that ends a text; nothing for other texts.
QString Ending(const QString& text)
{
    const QString last = text.trimmed().right(1);
    return last == u":" || last == u"…" ? last : QString();
}

// What is wrong with a translation, empty when nothing is.
QString Fault(const cMessage& message)
{
    if (!message.IsFinished || message.Translated.trimmed().isEmpty()) {
        return u"not translated"_s;
    }
    if (Placeholders(message.German) != Placeholders(message.Translated)) {
        return u"other placeholders"_s;
    }
    if (HasMnemonic(message.German) != HasMnemonic(message.Translated)) {
        return u"mnemonic on one side only"_s;
    }
    return Ending(message.German) == Ending(message.Translated) ? QString() : u"other ending"_s;
}

} // namespace

// The English catalogue has every German text of the program as it was when tools/translations.sh last ran.
class testTranslations final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void English() const
    {
        QFile file(QStringLiteral(TRANSLATIONS "/kontorelle_en.ts"));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.errorString()));
        QXmlStreamReader xml(&file);
        const QList<cMessage> messages = ReadCatalogue(xml);
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        QVERIFY(!messages.isEmpty());
        QStringList faults;
        for (const cMessage& message : messages) {
            const QString fault = Fault(message);
            if (!fault.isEmpty()) {
                faults.append(fault + u": "_s + message.German);
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

TEST_CLASS(testTranslations, QCoreApplication)
#include "testTranslations.moc"
