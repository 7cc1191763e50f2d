#include "cli/cConsoleUser.h"

#include "base/cText.h"

#include <cstdio>

void modConsole::Out(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
}

void modConsole::Error(const QString& text)
{
    const QByteArray bytes = text.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stderr);
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

QStringList cConsoleUser::ChooseFiles(const QString& /*title*/, const QString& /*filter*/)
{
    return {};
}

int cConsoleUser::Decide(const cDecision& decision)
{
    if (m_answers.Decision) {
        return *m_answers.Decision;
    }
    Refuse(decision.Text);
    return -1;
}

QString cConsoleUser::ChooseSavePath(const QString& /*title*/, const QString& /*filter*/, const QString& /*proposal*/)
{
    return {};
}

QString cConsoleUser::ChooseFolder(const QString& /*title*/, const QString& /*current*/)
{
    return {};
}
