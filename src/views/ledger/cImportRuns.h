#pragma once

#include <QChar>
#include <QList>

class cSettings;
enum class eStatementFormat;

// Which rows came together: the ranges of IDs of the latest imports and of their files, kept in the setting
// "ImportRuns". IDs grow, so the rows of a file follow each other, and so do the files of an import.
class cImportRuns
{
public:
    struct cRange
    {
        int First = 0;
        int Last = 0;
        QChar Kind{}; // of the format of a file; null: not known
        [[nodiscard]] bool IsEmpty() const { return Last == 0; }
        bool operator==(const cRange&) const = default;
    };

    explicit cImportRuns(cSettings& settings) : m_settings(settings) {}

    // A file of the import that is under way brought these rows.
    void NoteFile(const QList<int>& ids, eStatementFormat format);
    // The import has ended with these rows. IDs that come again, because an import was undone, belong to the later one.
    void NoteImport(const QList<int>& ids);
    // The latest import got these rows afterwards.
    void NoteMore(const QList<int>& ids);

    // The import that a row came with; empty for rows older than what is remembered.
    [[nodiscard]] cRange ImportOf(int id) const;
    [[nodiscard]] cRange Latest() const;
    // All files, upwards, those of the import that is under way among them.
    [[nodiscard]] QList<cRange> Files() const;
    // That of the row among them; empty when it is not remembered.
    [[nodiscard]] static cRange FileOf(const QList<cRange>& files, int id);

private:
    [[nodiscard]] QList<QList<cRange>> Imports() const; // upwards, each with its files
    void Keep(const QList<cRange>& import);
    void Store(const QList<QList<cRange>>& imports);

    cSettings& m_settings;
    QList<cRange> m_files; // of the import that is under way
};
