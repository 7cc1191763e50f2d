#include "views/bank/modBankQuestion.h"

#include "base/cText.h"
#include "base/modChar.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// Signs that steer a terminal, and those that turn the text around them: with these a challenge could be made to read
// as another account.
bool IsOrder(QChar c)
{
    const bool isControl = c.category() == QChar::Other_Control && c != u'\n';
    return isControl || (c >= u'\u202A' && c <= u'\u202E') || (c >= u'\u2066' && c <= u'\u2069');
}

QString Lines(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u'\t', u' ');
    text.removeIf(IsOrder);
    return text.trimmed();
}

QString Or(const QString& text, const QString& instead)
{
    return text.isEmpty() ? instead : text;
}

} // namespace

QString modBankQuestion::Way(const QString& procedure, const QString& medium)
{
    QStringList parts{procedure, medium};
    parts.removeAll(QString());
    return parts.join(u", "_s);
}

QString modBankQuestion::WayAndPurpose(const QString& way, const QString& purpose)
{
    return QStringList{way, Or(purpose, cText::Tr("Anmeldung"))}.join(u'\n').trimmed();
}

QString modBankQuestion::Unreadable()
{
    return cText::Tr("Die Bank hat kein lesbares Bild geschickt. Geben Sie den Startcode aus dem Text von Hand ein, "
                     "oder brechen Sie ab und wählen Sie unter „Bankzugänge…“ ein anderes Verfahren.");
}

QString modBankQuestion::Login(const cPinQuestion& question)
{
    return Or(question.UserIdLabel, cText::Tr("Anmeldename")) + u": "_s + question.UserId;
}

QString modBankQuestion::Words(const cTanQuestion& question)
{
    return Or(Lines(question.Challenge), cText::Tr("Ihre Bank verlangt eine TAN."));
}

QString modBankQuestion::Words(const cApproval& approval)
{
    return Or(Lines(approval.Challenge), cText::Tr("Ihre Bank verlangt, dass Sie den Zugriff in ihrer App freigeben."));
}

QString modBankQuestion::Form(const cTanQuestion& question)
{
    const QString most = QString::number(question.MostCharacters);
    if (question.MostCharacters > 0) {
        return question.IsNumber ? cText::Tr("Höchstens {0} Ziffern", {most})
                                 : cText::Tr("Höchstens {0} Zeichen", {most});
    }
    return question.IsNumber ? cText::Tr("Nur Ziffern") : QString();
}

bool modBankQuestion::Fit(const cTanQuestion& question, QString& typed, int& cursor)
{
    const auto isForeign = [&](QChar c) { return question.IsNumber ? !modChar::IsDigit(c) : c.isSpace(); };
    const QStringView before = QStringView(typed).first(std::clamp<qsizetype>(cursor, 0, typed.size()));
    cursor -= static_cast<int>(std::count_if(before.begin(), before.end(), isForeign));
    typed.removeIf(isForeign);
    return question.MostCharacters == 0 || typed.size() <= question.MostCharacters;
}
