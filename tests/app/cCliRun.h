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
