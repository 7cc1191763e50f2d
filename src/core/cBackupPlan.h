#pragma once

#include <QDate>
#include <QList>
#include <QString>

#include <chrono>
#include <optional>

class cBook;
class cClock;
class cConfiguration;
class cSettingKey;
class cShell;
class cUser;

// The copies that the program makes by itself: one at the first start of a day, and further ones when something has
// changed. Of today the first one and the newest ones stay, of an earlier day the last one, and of those days the last
// few and the last one of every month. Nothing but files of this plan's own names for this book is ever removed.
class cBackupPlan
{
public:
    struct cPorts
    {
        cShell& Shell;
        cUser& User;
        const cClock& Clock;
    };

    static constexpr int MostCount = 999;
    static constexpr int MostOfToday = 5;

    cBackupPlan(const cPorts& ports, cBook& book, cConfiguration& configuration);

    // To be called when a file was opened, before anything is written to it: the times of the files tell whether the
    // newest copy is as good as the book. Without it the book counts as changed. Removes what a program that was killed
    // left half made beside the book and its copies.
    void BookOpened();

    // Makes today's copy when there is none yet and the book has changed. Meant for a moment when the user is not
    // waiting. A failure is shown once a day.
    void RunIfDue();

    // Makes a further copy when more than how things look was written since the newest one: before an import, after
    // hours of use, when the book is closed. A failure as above.
    void CopyIfChanged();

    // The same for a program that stays open, to be called when so much time has passed. Gives the time until the next
    // call, which is soon while a step of the user is open: it would be copied half.
    static constexpr std::chrono::hours UseUntilCopy{4};
    [[nodiscard]] std::chrono::minutes CopyInUse();

    // Number of copies that stay besides the monthly ones; 0 when none are made.
    [[nodiscard]] int Count() const;
    // Where the copies lie: the folder of the settings, else "Sicherungen" beside the book.
    [[nodiscard]] QString Folder() const;
    [[nodiscard]] QString DefaultFolder() const;
    // An empty folder is the default one. False when the book cannot store it.
    [[nodiscard]] bool Save(int count, const QString& folder);

    struct cCopy
    {
        QString Path;
        QDate Day;
        int Number = 1; // of the day
    };

    // This book's copies, newest first.
    [[nodiscard]] QList<cCopy> Copies() const;

    // The days whose copies may go, of all days that have one.
    [[nodiscard]] static QList<QDate> Surplus(QList<QDate> days, int count);

private:
    [[nodiscard]] bool IsIdle() const; // no step of the user is open
    [[nodiscard]] bool IsPossible() const;
    [[nodiscard]] bool IsChanged() const;
    [[nodiscard]] QString Prefix() const; // of the copies' names, before the day
    [[nodiscard]] QString Name(QDate day, int number) const;
    [[nodiscard]] QList<cCopy> SurplusCopies() const;
    void TidyUp() const;
    void Copy();
    void SaveReceipts();
    // Unless the setting names today: then the user was told.
    void TellOnceADay(const cSettingKey& key, const QString& text);
    void NoteCurrent();

    cPorts m_ports;
    cBook& m_book;
    cConfiguration& m_configuration;
    std::optional<quint64> m_copied; // rows written when the newest copy was as good as the book; none: it is not
};
