#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

// The programs that a scene starts.
struct cFaultPrograms
{
    QString CommandLine; // makes the book
    QString Tested;      // what is to suffer; takes --profile and --database like the other one
    QString Shim;        // lets calls go wrong, see faultyCalls.cpp
};

// A program with a private profile and a book, in a folder that is made anew for every run.
class cFaultScene
{
public:
    // Books of other numbers hold other entries on pages of other sizes. `arrival` is run once, for what a program
    // stores when it opens a book for the first time; empty for nothing.
    cFaultScene(cFaultPrograms programs, int book, const QStringList& arrival);

    // Runs the program on a fresh copy of the book; `number` 0: without a fault. What stands in the book then.
    QStringList Run(const QStringList& arguments, const QString& kind, long number);

    // Number of calls that changed files.
    [[nodiscard]] long Calls() const;

    // What is wrong in the folder after the book was opened once more: files that a program leaves behind, and copies
    // of the book that are none.
    [[nodiscard]] QStringList Faults();

    bool IsKilled = false;
    int ExitCode = 0;
    QString Output;

private:
    void Vary(int book) const;
    void Start(QProcess& process, const QString& program, const QStringList& arguments,
               const QStringList& faults) const;
    [[nodiscard]] bool IsWanted(const QString& path) const;
    [[nodiscard]] QStringList Left() const;
    [[nodiscard]] QStringList Read() const;

    cFaultPrograms m_programs;
    QTemporaryDir m_origin;
    std::unique_ptr<QTemporaryDir> m_folder;
};
