#pragma once

#include "base/cClock.h"
#include "base/cProgress.h"
#include "base/cRegistry.h"
#include "base/cRescue.h"
#include "base/cShell.h"
#include "base/cUser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QMap>
#include <QStringList>
#include <QTemporaryDir>

#include <deque>

// A user whose answers are queued beforehand and who remembers every text. An answer that no question took fails the
// test: the question is gone, or the answer was never needed.
class cFakeUser final : public cUser
{
public:
    cFakeUser() = default;
    ~cFakeUser() override
    {
        if (Answers.size() + Choices.size() + Decisions.size() + Ticks.size() > 0) {
            s_leftOver(Asked);
        }
    }
    Q_DISABLE_COPY_MOVE(cFakeUser)

    // Told the questions that were asked, by a user who has answers left; the runner of the tests looks after it.
    static inline void (*s_leftOver)(const QStringList& asked) = [](const QStringList&) {};

    void Show(eTone /*tone*/, const QString& text, const QString& /*title*/ = {}) override { Shown.append(text); }

    eAnswer Ask(const cQuestion& question) override
    {
        Asked.append(question.Text);
        return Answers.empty() ? Usual : Take(Answers);
    }

    std::optional<QString> Choose(const cChoice& choice) override
    {
        Asked.append(choice.Text);
        LastChoice = choice;
        return Choices.empty() ? std::nullopt : Take(Choices);
    }

    int Decide(const cDecision& decision) override
    {
        Asked.append(decision.Text);
        LastDecision = decision;
        return Decisions.empty() ? -1 : Take(Decisions);
    }

    std::optional<QList<int>> Tick(const cChecklist& list) override
    {
        Asked.append(list.Text + u'\n' + list.Items.join(u'\n'));
        return Ticks.empty() ? std::nullopt : Take(Ticks);
    }

    QString ChooseSavePath(const QString& /*title*/, const QString& filter, const QString& proposal,
                           ePurpose /*purpose*/ = ePurpose::Export) override
    {
        Asked.append(filter);
        LastProposal = proposal;
        return SavePath;
    }

    QString ChooseFolder(const QString& /*title*/, const QString& /*current*/) override { return Folder; }

    QStringList ChooseFiles(const QString& /*title*/, const QString& filter, ePurpose /*purpose*/) override
    {
        Asked.append(filter);
        return Files;
    }

    QStringList Shown;
    QStringList Asked;
    std::deque<eAnswer> Answers;
    eAnswer Usual = eAnswer::Cancel;            // of an empty queue, as often as asked
    std::deque<std::optional<QString>> Choices; // an empty queue gives up
    QStringList Files;
    cChoice LastChoice;
    std::deque<int> Decisions; // an empty queue gives up
    cDecision LastDecision;
    std::deque<std::optional<QList<int>>> Ticks; // an empty queue gives up
    QString SavePath;                            // empty gives up
    QString LastProposal;
    QString Folder; // empty gives up

private:
    template <typename tQueue>
    static typename tQueue::value_type Take(tQueue& queue)
    {
        auto first = queue.front();
        queue.pop_front();
        return first;
    }
};

// The progress of a user who stops after some steps.
class cFakeStop final : public cProgress
{
public:
    explicit cFakeStop(int steps = 0) : m_steps(steps) {}
    void showProgressBar(int /*maximum*/) override {}
    void addProgressValue(int /*steps*/) override {}
    void hideProgressBar() override {}
    [[nodiscard]] bool IsCancelled() const override { return m_steps-- <= 0; }

private:
    mutable int m_steps;
};

class cFakeClock final : public cClock
{
public:
    explicit cFakeClock(QDate day = QDate(2026, 3, 15)) : Day(day) {}
    [[nodiscard]] QDate Today() const override { return Day; }
    [[nodiscard]] QDateTime Now() const override { return {Day, Time}; }

    QDate Day;
    QTime Time = QTime(12, 34, 56);
};

class cFakeRegistry final : public cRegistry
{
public:
    [[nodiscard]] QString Read(eRegistryScope scope, const QString& key, const QString& name) const override
    {
        return Values.value(Path(scope, key, name));
    }
    bool Write(const QString& key, const QString& name, const QString& value) override
    {
        Values.insert(Path(eRegistryScope::User, key, name), value);
        return true;
    }
    bool Delete(const QString& key, const QString& name) override
    {
        Values.remove(Path(eRegistryScope::User, key, name));
        return true;
    }
    static QString Path(eRegistryScope scope, const QString& key, const QString& name)
    {
        const QChar first = scope == eRegistryScope::User ? u'U' : u'M';
        return QStringList{first, key, name}.join(u'|');
    }

    QMap<QString, QString> Values;
};

// A machine made of one temporary folder.
class cFakeShell final : public cShell
{
public:
    QString DataFolder() override { return Folder(QStringLiteral("data")); }
    QString StateFolder() override { return Folder(QStringLiteral("state")); }
    [[nodiscard]] QString InstalledFile(const QString& name) const override
    {
        return Folder(QStringLiteral("program")) + u'/' + name;
    }
    [[nodiscard]] bool FileExists(const QString& path) const override { return QFileInfo::exists(path); }
    bool CopyFile(const QString& from, const QString& to) override { return !IsFull && QFile::copy(from, to); }
    bool RenameFile(const QString& from, const QString& to) override { return QFile::rename(from, to); }
    [[nodiscard]] QString CurrencySymbol() const override { return Currency; }
    bool OpenRegionalSettings() override
    {
        ++RegionalSettingsOpened;
        return true;
    }
    bool OpenPage(const QString& url) override
    {
        Pages.append(url);
        return true;
    }
    bool OpenMail(const cMailDraft& draft) override
    {
        Mails.append(draft);
        return HasMail;
    }
    bool StartCalculator() override { return true; }

    [[nodiscard]] QString Folder(const QString& name) const
    {
        const QString path = m_root.filePath(name);
        QDir().mkpath(path);
        return path;
    }

    QString Currency = QStringLiteral("€");
    int RegionalSettingsOpened = 0;
    QStringList Pages;
    QList<cMailDraft> Mails;
    bool HasMail = true;
    bool IsFull = false; // no room for another file

private:
    QTemporaryDir m_root;
};

class cFakeRescue : public cRescue
{
public:
    std::optional<QString> ChooseDatabase(const QString& /*current*/) override { return Database; }
    std::optional<QString> ChooseBackup(const QString& /*folder*/) override { return Backup; }
    bool AskPassword(const std::function<bool(const QString&)>& isRight) override
    {
        ++PasswordsAsked;
        return isRight(Password);
    }

    std::optional<QString> Database;
    std::optional<QString> Backup;
    QString Password;
    int PasswordsAsked = 0;
};
