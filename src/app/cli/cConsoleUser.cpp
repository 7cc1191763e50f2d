#include "app/cli/cConsoleUser.h"

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
    modConsole::Error(text);
}

eAnswer cConsoleUser::Ask(const cQuestion& question)
{
    m_hasFailed = true;
    modConsole::Error(question.Text);
    return question.Buttons == eButtons::YesNo ? eAnswer::No : eAnswer::Cancel;
}

std::optional<QString> cConsoleUser::Choose(const cChoice& choice)
{
    m_hasFailed = true;
    modConsole::Error(choice.Text);
    return std::nullopt;
}

QStringList cConsoleUser::ChooseFiles(const QString& /*title*/, const QString& /*filter*/)
{
    return {};
}

int cConsoleUser::Decide(const cDecision& decision)
{
    m_hasFailed = true;
    modConsole::Error(decision.Text);
    return -1;
}

QString cConsoleUser::ChooseSavePath(const QString& /*title*/, const QString& /*filter*/, const QString& /*proposal*/)
{
    return {};
}
