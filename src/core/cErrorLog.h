#pragma once

#include "core/cKnownTexts.h"
#include "model/cLogEntry.h"

#include <QDateTime>
#include <QFile>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

class cClock;

// The failures that a user was told of, as files in the state folder, one for each run of a program. Of each program
// the last five runs that had something to tell stay, at most 100 KB of each. Texts go in without what was filled into
// them. What cannot be written is lost without a word: a log that complains would stand between the user and the
// message itself.
//
// The file of a window is there from the start and locked as long as the program lives. Where it is found unlocked and
// without an end, the run was not ended properly: by a crash, a kill, or a machine that went off.
class cErrorLog
{
public:
    enum class eKind { Window, Command }; // only a window leaves a mark of its run

    struct cRun
    {
        QString Folder;
        QString Program;
        QString Version;
        eKind Kind = eKind::Window;
    };

    static constexpr int MostRuns = 5;
    static constexpr qint64 MostBytes = 100'000; // of a run

    cErrorLog(cRun run, const cClock& clock);
    cErrorLog(const cErrorLog&) = delete;
    cErrorLog& operator=(const cErrorLog&) = delete;
    ~cErrorLog();

    // What is being done until the matching End, in the program's own words: it becomes the operation of failures that
    // do not name their own.
    void Begin(const QString& operation) { m_operations.append(operation); }
    void End() { m_operations.removeLast(); }

    // Takes down what the user was told. A text "ERROR: name" brings its operation with it; else what is being done is
    // the operation, else `title`, where it is one of the program's own words.
    void Record(const QString& title, const QString& message);

    // Is called after each record.
    void Watch(std::function<void()> recorded) { m_recorded = std::move(recorded); }

    // Failures of this run so far.
    [[nodiscard]] int Count() const { return m_count; }

    // All that is kept, the newest first.
    [[nodiscard]] QList<cLogEntry> Entries() const;

    // The files with these lines, and the bytes in them.
    [[nodiscard]] QStringList Files() const;
    [[nodiscard]] qint64 Size() const;

    struct cBroken
    {
        QDateTime Last;       // the last sign of life
        bool IsCrash = false; // the program itself noticed that it crashed
        int Failures = 0;     // told of in that run
    };

    // The newest run of this program that was not ended properly. Each is told only once, and stands in the log from
    // then on.
    [[nodiscard]] std::optional<cBroken> TakeBroken();

    // Where a crash may be noted without any help of this class, as a line NoteOfCrash; -1 when there is no file.
    [[nodiscard]] int Descriptor() const { return m_file.isOpen() ? m_file.handle() : -1; }
    static constexpr const char* NoteOfCrash = "X\n";

private:
    [[nodiscard]] bool Open();
    void Write(const QStringList& cells);
    void WriteEntry(QFile& file, const cLogEntry& entry) const;
    void Shorten();
    void Prune() const;
    [[nodiscard]] QStringList FilesOf(const QString& program) const; // the oldest first
    [[nodiscard]] std::optional<cBroken> Mend(const QString& path) const;

    cRun m_run;
    const cClock& m_clock;
    QStringList m_operations;
    std::function<void()> m_recorded;
    std::optional<cKnownTexts> m_texts; // from the first failure on
    QString m_language;                 // in which these are
    QFile m_file;
    int m_count = 0;
};
