#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QStringList>

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

    // Runs a line (arguments with "|" between them) on the books of a folder.
    [[nodiscard]] static cCliRun Line(const QString& folder, const QString& line)
    {
        return Start(QStringLiteral(CLI_PROGRAM), QStringList{QStringLiteral("--profile"), folder} + line.split(u'|'));
    }

    // The same for a line that has to succeed.
    static cCliRun GoodLine(const QString& folder, const QString& line)
    {
        cCliRun run = Line(folder, line);
        if (run.Code != 0) {
            qFatal("%s: %s", qPrintable(line), qPrintable(run.Text()));
        }
        return run;
    }

    [[nodiscard]] QJsonArray Json() const { return QJsonDocument::fromJson(Out.toUtf8()).array(); }
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
