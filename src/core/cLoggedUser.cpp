#include "core/cLoggedUser.h"

#include "core/cErrorLog.h"

using namespace Qt::Literals::StringLiterals;

// Before the message is shown: who ends the program while it stands there does so because of it.
void cLoggedUser::Record(eTone tone, const QString& title, const QString& text)
{
    const bool isNamed = text.startsWith(u"ERROR:"_s) || text.startsWith(u"FEHLER:"_s);
    if (tone == eTone::Exclamation || tone == eTone::Critical || isNamed) {
        m_log.Record(title, text);
    }
}

void cLoggedUser::Show(eTone tone, const QString& text, const QString& title)
{
    Record(tone, title, text);
    m_user.Show(tone, text, title);
}

void cLoggedUser::Note(const QString& operation, const QString& text)
{
    m_log.Record(operation, text);
    m_user.Note(operation, text);
}

eAnswer cLoggedUser::Ask(const cQuestion& question)
{
    Record(question.Tone, question.Title, question.Text);
    return m_user.Ask(question);
}

std::optional<QString> cLoggedUser::Choose(const cChoice& choice)
{
    return m_user.Choose(choice);
}

int cLoggedUser::Decide(const cDecision& decision)
{
    Record(decision.Tone, decision.Title, decision.Text);
    return m_user.Decide(decision);
}

std::optional<QList<int>> cLoggedUser::Tick(const cChecklist& list)
{
    return m_user.Tick(list);
}

QStringList cLoggedUser::ChooseFiles(const QString& title, const QString& filter, ePurpose purpose)
{
    return m_user.ChooseFiles(title, filter, purpose);
}

QString cLoggedUser::ChooseSavePath(const QString& title, const QString& filter, const QString& proposal,
                                    ePurpose purpose)
{
    return m_user.ChooseSavePath(title, filter, proposal, purpose);
}

QString cLoggedUser::ChooseFolder(const QString& title, const QString& current)
{
    return m_user.ChooseFolder(title, current);
}
