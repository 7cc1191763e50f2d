#pragma once

#include "support/cTestFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

// One run of the command line program, as a script sees it.
struct cCliRun
{
    int Code = -1;
    QString Out;
    QString Error;

    [[nodiscard]] static cCliRun Start(const QString& program, const QStringList& arguments)
    {
        QProcess process;
        process.start(program, arguments);
        if (!process.waitForFinished()) {
            return {};
        }
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
    }

    [[nodiscard]] QJsonArray Json() const { return QJsonDocument::fromJson(Out.toUtf8()).array(); }
    [[nodiscard]] QJsonObject Object() const { return QJsonDocument::fromJson(Out.toUtf8()).object(); }
    [[nodiscard]] QString Text() const { return Out + u'\n' + Error; }

    // The values of one name in all objects of a JSON array.
    [[nodiscard]] static QStringList Column(const QJsonArray& array, const QString& name)
    {
        QStringList list;
        for (const auto& value : array) {
            list.append(value.toObject().value(name).toVariant().toString());
        }
        return list;
    }
    [[nodiscard]] QStringList Column(const QString& name) const { return Column(Json(), name); }
};

// Books of a profile of their own, on which the program runs; the base of the tests that run it.
class cCliBooks
{
public:
    // A line of arguments with "|" between them, in which "~" is the folder of the profile.
    [[nodiscard]] cCliRun Run(const QString& line) const
    {
        const QStringList arguments{QStringLiteral("--profile"), m_folder->path()};
        return cCliRun::Start(QStringLiteral(CLI_PROGRAM),
                              line.isEmpty() ? arguments
                                             : arguments + QString(line).replace(u'~', m_folder->path()).split(u'|'));
    }

    // The same for a line that has to succeed. NOLINTNEXTLINE(modernize-use-nodiscard)
    cCliRun Do(const QString& line) const
    {
        cCliRun run = Run(line);
        if (run.Code != 0) {
            qFatal("%s: %s", qPrintable(line), qPrintable(run.Text()));
        }
        return run;
    }

    // A line that has to succeed, and its output holds these words.
    void Says(const QString& line, const QStringList& words) const { Compare(Run(line), 0, words); }

    // A line that has to fail: nothing is put out, and these words say why.
    void Refuses(const QString& line, const QStringList& words) const { Compare(Run(line), 1, words); }

    [[nodiscard]] QString Path(const QString& name) const { return m_folder->filePath(name); }
    [[nodiscard]] QString Book() const { return Path(QStringLiteral("Veltrino Kontorelle/data.db")); }

    // A new file of the folder; its path.
    [[nodiscard]] QString Write(const QString& name, const QByteArray& bytes) const
    {
        cTestFile::Write(Path(name), bytes);
        return Path(name);
    }

    // The first cell of what the book answers.
    [[nodiscard]] QString Value(const std::string& sql) const
    {
        cDatabase database;
        database.Open(Book(), eOpenMode::ReadOnly);
        return cTestFile::Value(database, sql);
    }

    // A new folder in place of the former one.
    void Renew() { m_folder = std::make_unique<QTemporaryDir>(); }

private:
    static void Compare(const cCliRun& run, int code, const QStringList& words)
    {
        QVERIFY2(run.Code == code && (code == 0 || run.Out.isEmpty()), qPrintable(run.Text()));
        for (const QString& word : words) {
            QVERIFY2((code == 0 ? run.Out : run.Error).contains(word), qPrintable(word + u": " + run.Text()));
        }
    }

    std::unique_ptr<QTemporaryDir> m_folder = std::make_unique<QTemporaryDir>();
};
