#pragma once

#include "views/entry/cEntryDraft.h"

#include <QDateTime>
#include <QList>
#include <QString>

class cUser;

// The drafts of one book, in a file of the state folder that nobody but the user can read.
class cEntryDrafts
{
public:
    enum class eWish { Restore, Discard, Later };

    cEntryDrafts(const QString& stateFolder, const QString& book);

    // Oldest first; none when the file is missing or cannot be read.
    [[nodiscard]] QList<cEntryDraft> All() const;

    // Both return false when the file could not be written.
    [[nodiscard]] bool Keep(const cEntryDraft& draft);
    bool Remove(const QDateTime& kept);

    // What the user wants of a draft; who only closes the question is asked again at the next start.
    [[nodiscard]] static eWish Ask(const cEntryDraft& draft, cUser& user);

private:
    [[nodiscard]] bool Write(const QList<cEntryDraft>& drafts) const;

    QString m_path;
};
