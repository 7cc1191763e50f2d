#pragma once

#include "cli/argument/cCliReader.h"
#include "views/entry/cEntryEditor.h"

#include <QDate>
#include <QList>
#include <QString>

// The entry editor filled in by options: what they do not name is left to the defaults, or as it is stored.
class cCliEntryForm
{
public:
    explicit cCliEntryForm(const cCliContext& context);

    // The options that are read.
    [[nodiscard]] static QList<cCliOption> Options();

    // Each stores, says what it did, and gives the exit code.
    [[nodiscard]] int Add();
    [[nodiscard]] int Change(int id);
    [[nodiscard]] int ChangeFrom(int id, const QString& day); // the series from this occurrence on

private:
    void Read();
    void ReadEnd();
    [[nodiscard]] bool Has(const char* option) const;
    void Fill(cEntryFields& fields);
    void FillPart(int id, cEntryFields& fields);
    void FillBalance(cEntryFields& fields);
    [[nodiscard]] int ChangeLoaded(int id, cEntryFields fields);
    void Check(const cEntryFields& fields);
    [[nodiscard]] int Save(const cEntryFields& fields, int id);
    void Print(const cEntryFields& fields, int id) const;

    const cCliContext& m_context;
    cCliReader m_reader;
    cEntryEditor m_editor;
    // What the options say.
    qint64 m_cents = 0;
    QString m_kind;
    QString m_category;
    QString m_account;
    QString m_target;
    QString m_interval;
    QString m_payer;
    QDate m_day;
    QDate m_cancelBy;
    QDate m_end;
    int m_times = 0;       // 0: not given
    bool m_isOpen = false; // without last day
    QDate m_from;          // the series is changed from here on
};
