#include "views/entry/cEntryDrafts.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "base/modMD5.h"
#include "views/entry/modEntryDraft.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

using namespace Qt::Literals::StringLiterals;

cEntryDrafts::cEntryDrafts(const QString& stateFolder, const QString& book)
    : m_path(stateFolder % u"/Entwurf-"_s % modMD5::Hex(QFileInfo(book).canonicalFilePath()) % u".json"_s)
{
}

QList<cEntryDraft> cEntryDrafts::All() const
{
    QList<cEntryDraft> drafts;
    QFile file(m_path);
    if (file.open(QIODevice::ReadOnly)) {
        const QJsonArray list = QJsonDocument::fromJson(file.readAll()).array();
        for (const QJsonValue& item : list) {
            if (const std::optional<cEntryDraft> draft = modEntryDraft::FromJson(item.toObject())) {
                drafts.append(*draft);
            }
        }
    }
    return drafts;
}

bool cEntryDrafts::Keep(const cEntryDraft& draft)
{
    QList<cEntryDraft> drafts = All();
    drafts.removeIf([&](const cEntryDraft& each) { return each.Kept == draft.Kept; });
    return Write(drafts << draft);
}

bool cEntryDrafts::Remove(const QDateTime& kept)
{
    QList<cEntryDraft> drafts = All();
    drafts.removeIf([&](const cEntryDraft& draft) { return draft.Kept == kept; });
    return drafts.isEmpty() ? QFile::remove(m_path) || !QFile::exists(m_path) : Write(drafts);
}

bool cEntryDrafts::Write(const QList<cEntryDraft>& drafts) const
{
    QJsonArray list;
    for (const cEntryDraft& draft : drafts) {
        list.append(modEntryDraft::ToJson(draft));
    }
    QSaveFile file(m_path);
    // Before the first byte is there: it is nobody else's business what somebody spends.
    return file.open(QIODevice::WriteOnly) && file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner)
        && file.write(QJsonDocument(list).toJson()) > 0 && file.commit();
}

cEntryDrafts::eWish cEntryDrafts::Ask(const cEntryDraft& draft, cUser& user)
{
    const QString day =
        cText::Tr("{0}, {1} Uhr", {modDate::ToText(draft.Kept.date()), draft.Kept.toString(u"HH:mm"_s)});
    const int option = user.Decide(
        {.Text = cText::Tr("Ein nicht gespeicherter Eintrag vom {0} wurde aufgehoben:\n{1}\nWiederherstellen? Mit "
                           "Abbrechen bleibt er bis zum nächsten Start aufgehoben.",
                           {day, modEntryDraft::Summary(draft.Fields)}),
         .Title = cText::Tr("Nicht gespeichert"),
         .Options = {cText::Tr("&Wiederherstellen"), cText::Tr("&Verwerfen")}});
    return option == 0 ? eWish::Restore : option == 1 ? eWish::Discard : eWish::Later;
}
