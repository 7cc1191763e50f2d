#pragma once

#include "model/cLogEntry.h"

#include <QAbstractTableModel>
#include <QList>
#include <QString>
#include <QStringList>

class cClock;
class cErrorLog;
class cShell;
class cUser;

// The error log as a list, and what leaves the program of it: as it is, because nothing private stands in it.
class cErrorLogView final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum eColumn { Time, Version, Operation, Text, ColumnCount };

    struct cParts
    {
        cErrorLog& Log;
        cUser& User;
        cShell& Shell;
        const cClock& Clock;
        QString Diagnosis; // of this installation
    };

    explicit cErrorLogView(cParts parts, QObject* parent = nullptr);

    // Shows the lines that hold all of these words, in whatever case.
    void SetFilter(const QString& words);

    [[nodiscard]] QString CountText() const;
    [[nodiscard]] QString EmptyTitle() const; // why the list shows nothing
    [[nodiscard]] QString EmptyHint() const;
    [[nodiscard]] bool IsEmpty() const { return m_all.isEmpty(); } // whatever the filter says

    // Everything about one line, for reading; empty for none.
    [[nodiscard]] QString Details(int row) const;
    // Rows as lines of text, with tabulators between the columns; all that are shown where none are named.
    [[nodiscard]] QString TextOf(QList<int> rows) const;
    // The facts about the installation with the whole log.
    [[nodiscard]] QString Diagnosis() const;

    // Writes the diagnosis to a file of the user's choice. What fails is said.
    void Save() const;
    // "Rückmeldung": a draft of the user's mail program with the diagnosis.
    void Send() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] bool Write(const QString& path) const;

    cParts m_parts;
    QList<cLogEntry> m_all;
    QList<cLogEntry> m_shown;
};
