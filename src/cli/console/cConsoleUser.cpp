#include "cli/console/cConsoleUser.h"

#include "base/cText.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostErrors = 50;
QStringList errors;
int lostBy = 0; // the system's number of the first error that output was lost by

// What a terminal takes for an order, or turns the text around it by.
bool IsOrder(QChar c)
{
    const bool isControl = c.category() == QChar::Other_Control && c != u'\n' && c != u'\t';
    return isControl || (c >= u'\u202A' && c <= u'\u202E') || (c >= u'\u2066' && c <= u'\u2069');
}

QString Harmless(QString text)
{
    constexpr char16_t pictures = 0x2400; // of the signs from 0, in their order
    text.replace(u"\r\n"_s, u"\n"_s);
    for (QChar& c : text) {
        if (IsOrder(c)) {
            c = c < u' ' ? QChar(static_cast<char16_t>(pictures + c.unicode())) : QChar(QChar::ReplacementCharacter);
        }
    }
    return text;
}

bool Put(const QString& text, FILE* file)
{
    const QByteArray bytes = (isatty(fileno(file)) != 0 ? Harmless(text) : text).toUtf8();
    const auto size = static_cast<size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, file) == size;
}

} // namespace

void modConsole::Out(const QString& text)
{
    if (!Put(text, stdout) && lostBy == 0) {
        lostBy = errno;
    }
}

bool modConsole::Finish()
{
    if (std::fflush(stdout) != 0 && lostBy == 0) {
        lostBy = errno;
    }
    if (lostBy != 0 && lostBy != EPIPE) {
        const QString reason =
            lostBy == ENOSPC ? cText::Tr("Der Datenträger ist voll.") : QString::fromLocal8Bit(std::strerror(lostBy));
        Error(cText::Tr("Die Ausgabe ist unvollständig: {0}", {reason}));
    }
    return lostBy == 0;
}

void modConsole::Error(const QString& text)
{
    (void)Put(text + u'\n', stderr);
    if (errors.size() < mostErrors) {
        errors.append(text);
    }
}

const QStringList& modConsole::Errors()
{
    return errors;
}

void cConsoleUser::Show(eTone tone, const QString& text, const QString& /*title*/)
{
    m_hasFailed = m_hasFailed || tone == eTone::Critical;
    m_hasSpoken = true;
    modConsole::Error(text);
}

void cConsoleUser::Refuse(const QString& question)
{
    Show(eTone::Critical, question);
    if (!m_answers.Hint.isEmpty()) {
        modConsole::Error(m_answers.Hint);
    }
}

eAnswer cConsoleUser::Ask(const cQuestion& question)
{
    if (m_answers.Answer) {
        return *m_answers.Answer;
    }
    Refuse(question.Text);
    return question.Buttons == eButtons::YesNo ? eAnswer::No : eAnswer::Cancel;
}

std::optional<QString> cConsoleUser::Choose(const cChoice& choice)
{
    if (m_answers.Choice && (choice.AllowNew || choice.Items.contains(*m_answers.Choice))) {
        return m_answers.Choice;
    }
    Refuse(m_answers.Choice ? cText::Tr("'{0}' ist hier nicht möglich.", {*m_answers.Choice}) : choice.Text);
    return std::nullopt;
}

QStringList cConsoleUser::ChooseFiles(const QString& /*title*/, const QString& /*filter*/, ePurpose /*purpose*/)
{
    return {};
}

int cConsoleUser::Decide(const cDecision& decision)
{
    if (m_answers.Decision) {
        return m_answers.About.isEmpty() || m_answers.About == decision.Title ? *m_answers.Decision : 0;
    }
    Refuse(decision.Text);
    return -1;
}

std::optional<QList<int>> cConsoleUser::Tick(const cChecklist& list)
{
    if (!m_answers.Answer) {
        Refuse(list.Text + u'\n' + list.Items.join(u'\n'));
        return std::nullopt;
    }
    QList<int> all(*m_answers.Answer == eAnswer::Yes ? list.Items.size() : 0);
    std::iota(all.begin(), all.end(), 0);
    return all;
}

QString cConsoleUser::ChooseSavePath(const QString& /*title*/, const QString& /*filter*/, const QString& /*proposal*/,
                                     ePurpose /*purpose*/)
{
    return {};
}

QString cConsoleUser::ChooseFolder(const QString& /*title*/, const QString& /*current*/)
{
    return {};
}
