#pragma once

#include "base/modDate.h"
#include "views/main/cNavigator.h"

#include <QStringList>

// Opens nothing and remembers what would have been opened.
class cFakeNavigator final : public cNavigator
{
public:
    void OpenNewEntry() override { Opened.append(QStringLiteral("neu")); }
    void OpenEntry(int entryId, QDate day) override { Note(QStringLiteral("Eintrag"), entryId, day); }
    void OpenCorrection(int entryId, QDate day, eCorrected first) override
    {
        Note(first == eCorrected::Day ? QStringLiteral("anderer Tag") : QStringLiteral("Korrektur"), entryId, day);
    }
    void OpenTemplates(const QString& path) override { Opened.append(QStringLiteral("Kategorien ") + path); }
    void Open(modCommand::eId command) override { Opened.append(QString::number(command)); }
    void EndProgram() override { Opened.append(QStringLiteral("Ende")); }

    QStringList Opened;

private:
    void Note(const QString& what, int entryId, QDate day)
    {
        Opened.append(what + u' ' + QString::number(entryId) + u' ' + modDate::ToIso(day));
    }
};
