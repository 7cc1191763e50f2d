#pragma once

#include "model/cImportEntry.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class cImportHiveCache;
struct cBookTools;
struct cImportResult;
struct cRepeat;

// The transactions of the last files that were not taken: what is there already, what is still pending, what a file has
// more often than the book. Each can be taken all the same.
class cLeftOutList final : public QObject
{
    Q_OBJECT

public:
    // Both outlive the list.
    cLeftOutList(const cBookTools& tools, cImportHiveCache& hive, QObject* parent = nullptr);
    ~cLeftOutList() override;

    // Those of the files in place of all before; `repeats` are noted as left out, so that nobody is asked about them
    // again.
    void Fill(const QList<cImportResult>& results, const QList<cRepeat>& repeats);
    void Drop();

    [[nodiscard]] QStringList Texts() const; // with the reason
    // Takes these; the numbers are places in Texts.
    void Stage(const QList<int>& places);

Q_SIGNALS:
    void Changed();
    void Staged(const QList<int>& ids); // as the user wanted

private:
    struct cRow
    {
        cImportEntry Entry;
        QString Reason;
        int Repeat = 0; // the number of a cRepeat
    };

    void Add(const cImportResult& result);

    const cBookTools& m_tools;
    cImportHiveCache& m_hive;
    QList<cRow> m_rows;
};
