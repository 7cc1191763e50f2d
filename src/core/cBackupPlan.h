#pragma once

#include <QDate>
#include <QList>
#include <QString>

class cBook;
class cClock;
class cConfiguration;
class cShell;
class cUser;

// The copies that the program makes by itself: one at the first start of a day. Of the older ones the last few stay and
// the last one of every month. Nothing but files of this plan's own names for this book is ever removed.
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

    cBackupPlan(const cPorts& ports, cBook& book, cConfiguration& configuration);

    // Makes today's copy when there is none yet. Meant for a moment when the user is not waiting. A failure is shown
    // once a day.
    void RunIfDue();

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
    };

    // This book's copies, newest first.
    [[nodiscard]] QList<cCopy> Copies() const;

    // The days whose copies may go, of all days that have one.
    [[nodiscard]] static QList<QDate> Surplus(QList<QDate> days, int count);

private:
    [[nodiscard]] bool IsDue(const QString& today) const;
    [[nodiscard]] QString Prefix() const; // of the copies' names, before the day
    [[nodiscard]] QList<QDate> Days() const;
    [[nodiscard]] QString PathOf(QDate day) const;
    void RemoveSurplus() const;

    cPorts m_ports;
    cBook& m_book;
    cConfiguration& m_configuration;
};
