#include "views/people/cPeople.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modCount.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/cTemplateItem.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/common/modUnsaved.h"
#include "views/list/modViewRecord.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int whole = 100; // per cent

// As it is typed, with or without the sign; nothing where it is none from 0 to 100.
std::optional<int> PercentOf(QString typed)
{
    typed = typed.remove(u'%').trimmed();
    bool isNumber = true;
    const int part = typed.isEmpty() ? 0 : typed.toInt(&isNumber);
    return isNumber && part >= 0 && part <= whole ? std::optional(part) : std::nullopt;
}

} // namespace

QStringList cPeople::Names() const
{
    return modPeople::NamesOf(m_tools.Settings.Get(modSettingKey::People));
}

QStringList cPeople::Accounts() const
{
    return modTemplate::AccountNames(m_tools.Data.GetAccounts());
}

modPeople::cShares cPeople::Stored(const QString& account) const
{
    return modPeople::SharesOf(m_tools.Settings.Get(modSettingKey::AccountShares.Of(account)));
}

modPeople::cShares cPeople::SharesOf(const QString& account) const
{
    for (const QString& place : {account, QString()}) {
        if (modPeople::cShares shares = Stored(place); !shares.isEmpty()) {
            return shares;
        }
    }
    return modPeople::Equal(Names());
}

QString cPeople::SharesText(const modPeople::cShares& shares)
{
    if (shares.size() == 1) {
        return shares.constFirst().Person;
    }
    const bool areEqual = std::all_of(shares.begin(), shares.end(), [&](const modPeople::cShare& share) {
        return share.Part == shares.constFirst().Part;
    });
    QStringList texts;
    const modPeople::cShares parts = modPeople::PerCent(shares);
    for (const modPeople::cShare& share : parts) {
        texts.append(areEqual ? share.Person : cText::Tr("{0} {1} %", {share.Person, QString::number(share.Part)}));
    }
    return areEqual ? cText::Tr("{0} zu gleichen Teilen", {texts.join(u", "_s)}) : texts.join(u", "_s);
}

bool cPeople::Refuse(const QString& text) const
{
    m_tools.User.Show(eTone::Objection, text, cText::Tr("Personen"));
    return false;
}

std::optional<QString> cPeople::Wrong(const QString& name, const QString& except) const
{
    if (name.isEmpty()) {
        return cText::Tr("Bitte geben Sie einen Namen ein.");
    }
    const QStringList names = Names();
    const bool isTaken = std::any_of(names.begin(), names.end(), [&](const QString& other) {
        return other != except && other.compare(name, Qt::CaseInsensitive) == 0;
    });
    return isTaken ? std::optional(cText::Tr("'{0}' gibt es schon. Bitte wählen Sie einen anderen Namen.", {name}))
                   : std::nullopt;
}

bool cPeople::IsThere(const QString& name) const
{
    return Names().contains(name) || Refuse(cText::Tr("Die Person '{0}' gibt es nicht.", {name}));
}

bool cPeople::Add(const QString& typed)
{
    const QString name = typed.simplified();
    if (const std::optional<QString> wrong = Wrong(name, {})) {
        return Refuse(*wrong);
    }
    cUndoStep step(m_tools.Data, cText::Tr("Person '{0}' angelegt", {name}));
    return step.DoneIf(m_tools.Settings.Set(modSettingKey::People, modPeople::ToText(Names() << name)));
}

std::optional<QStringList> cPeople::AddPayers(const QList<int>& entryIds)
{
    QStringList names = Names();
    const qsizetype known = names.size();
    for (const int id : entryIds) {
        cEntryItem entry = m_tools.Data.LoadEntry(id).value_or(cEntryItem());
        const QString payer = modPeople::Payer(entry);
        const auto person = std::find_if(names.begin(), names.end(), [&](const QString& name) {
            return name.compare(payer, Qt::CaseInsensitive) == 0;
        });
        if (payer.isEmpty() || (person != names.end() && *person == payer)) {
            continue;
        }
        if (person == names.end()) {
            names.append(payer);
            continue;
        }
        modPeople::SetPayer(entry, *person); // in other letters it would be somebody else
        if (!m_tools.Data.ChangeEntry(entry)) {
            return std::nullopt;
        }
    }
    const bool isStored =
        names.size() == known || m_tools.Settings.Set(modSettingKey::People, modPeople::ToText(names));
    return isStored ? std::optional(names.mid(known)) : std::nullopt;
}

bool cPeople::Rename(const QString& oldName, const QString& typed)
{
    if (!IsThere(oldName)) {
        return false;
    }
    const QString name = typed.simplified();
    if (const std::optional<QString> wrong = Wrong(name, oldName)) {
        return Refuse(*wrong);
    }
    cUndoStep step(m_tools.Data, cText::Tr("Person '{0}' umbenannt", {oldName}));
    return step.DoneIf(Replace(oldName, name));
}

modPeople::cShares cPeople::SharesWithout(const QString& name, const QString& account) const
{
    for (const QString& place : {account, QString()}) {
        if (modPeople::cShares shares = modPeople::Renamed(Stored(place), name, {}); !shares.isEmpty()) {
            return shares;
        }
    }
    QStringList others = Names();
    others.removeAll(name);
    return modPeople::Equal(others);
}

QStringList cPeople::ShareLinesWithout(const QString& name) const
{
    QStringList lines;
    const QStringList places = QStringList{QString()} + Accounts();
    for (const QString& place : places) {
        const modPeople::cShares shares = Stored(place);
        if (modPeople::Renamed(shares, name, {}).size() != shares.size()) {
            const modPeople::cShares left = SharesWithout(name, place);
            lines.append((place.isEmpty() ? cText::Tr("Gemeinsames") : place) + u": "_s
                         + (left.isEmpty() ? cText::Tr("nichts mehr festgelegt") : SharesText(left)));
        }
    }
    return lines;
}

bool cPeople::Remove(const QString& name)
{
    if (!IsThere(name)) {
        return false;
    }
    const qsizetype count = CountOf(name);
    QString question = count == 0
        ? cText::Tr("Soll '{0}' gelöscht werden?", {name})
        : cText::Tr("Soll '{0}' gelöscht werden?\nBei {1} ist dann nicht mehr vermerkt, wer bezahlt hat.",
                    {name, modCount::Entries(static_cast<int>(count))});
    if (const QStringList shares = ShareLinesWithout(name); !shares.isEmpty()) {
        question += u'\n' + cText::Tr("Der Anteil geht an die anderen:\n{0}", {shares.join(u'\n')});
    }
    if (m_tools.User.Ask({.Text = question, .Title = cText::Tr("Person löschen"), .Default = eAnswer::No})
        != eAnswer::Yes) {
        return false;
    }
    cUndoStep step(m_tools.Data, cText::Tr("Person '{0}' gelöscht", {name}));
    return step.DoneIf(Replace(name, {}));
}

QString cPeople::TakeShares(const QString& account, const QStringList& percents)
{
    modPeople::cShares shares;
    int sum = 0;
    const QStringList names = Names();
    for (qsizetype i = 0; i < names.size(); ++i) {
        const std::optional<int> part = PercentOf(percents.value(i));
        if (!part) {
            return cText::Tr("'{0}' ist kein Anteil von 0 bis 100", {percents.value(i).trimmed()});
        }
        sum += *part;
        if (*part > 0) {
            shares.append({names.at(i), *part});
        }
    }
    if (sum != 0 && sum != whole) {
        return sum < whole ? cText::Tr("es fehlen {0} %", {QString::number(whole - sum)})
                           : cText::Tr("{0} % zu viel", {QString::number(sum - whole)});
    }
    cUndoStep step(m_tools.Data,
                   account.isEmpty() ? cText::Tr("Anteile am Haushalt geändert")
                                     : cText::Tr("Anteile am Konto '{0}' geändert", {account}));
    return step.DoneIf(Store(account, shares)) ? QString() : cText::Tr("nicht gespeichert");
}

QStringList cPeople::WithRest(QStringList percents, qsizetype typed)
{
    const std::optional<int> part = PercentOf(percents.value(typed));
    if (percents.size() == 2 && part) {
        const bool isEmpty = percents.at(typed).trimmed().isEmpty();
        percents[1 - typed] = isEmpty ? QString() : QString::number(whole - *part);
    }
    return percents;
}

eAnswer cPeople::AskToSave() const
{
    return modUnsaved::Ask(m_tools.User);
}

bool cPeople::IsClear(const QString& typed, const QString& chosen) const
{
    return chosen.isEmpty()
        || Refuse(cText::Tr("'{0}' kann eine weitere Person sein oder der neue Name von '{1}'. Bitte wählen Sie "
                            "„Hinzufügen“ oder „Umbenennen“.",
                            {typed.simplified(), chosen}));
}

bool cPeople::AreStored(const QStringList& wrong) const
{
    return wrong.isEmpty()
        || Refuse(cText::Tr("Diese Anteile sind nicht vollständig und werden nicht gespeichert:\n{0}",
                            {wrong.join(u'\n')}));
}

bool cPeople::Store(const QString& account, const modPeople::cShares& shares)
{
    const cSettingKey key = modSettingKey::AccountShares.Of(account);
    if (shares == Stored(account)) {
        return true;
    }
    return shares.isEmpty() ? m_tools.Settings.Delete(key) : m_tools.Settings.Set(key, modPeople::ToText(shares));
}

qsizetype cPeople::CountOf(const QString& name) const
{
    return EntriesOf(name).size();
}

QList<int> cPeople::EntriesOf(const QString& name) const
{
    QList<int> ids;
    const cEntryItemList entries = m_tools.Data.GetEntries({});
    for (const cEntryItem& entry : entries) {
        // The occurrences of a series follow each other.
        if (modPeople::Payer(entry) == name && (ids.isEmpty() || ids.constLast() != entry.ID)) {
            ids.append(entry.ID);
        }
    }
    return ids;
}

// The name wherever it stands: in the list, in the shares, at the entries, in what the lists are filtered by. An empty
// one takes it away.
bool cPeople::Replace(const QString& oldName, const QString& newName)
{
    QStringList names = Names();
    for (QString& name : names) {
        name = name == oldName ? newName : name;
    }
    names.removeAll(QString());
    bool isStored = m_tools.Settings.Set(modSettingKey::People, modPeople::ToText(names))
        && modViewRecord::Follow(m_tools.Settings, modViewRecord::Payer, oldName, newName)
        && (m_tools.Settings.Get(modSettingKey::MainPayer) != oldName
            || m_tools.Settings.Set(modSettingKey::MainPayer, newName));
    const QStringList accounts = Accounts() << QString();
    for (const QString& account : accounts) {
        isStored = isStored && Store(account, modPeople::Renamed(Stored(account), oldName, newName));
    }
    const QList<int> ids = EntriesOf(oldName);
    return isStored && std::all_of(ids.begin(), ids.end(), [&](int id) {
               std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(id);
               if (!entry) {
                   return false;
               }
               modPeople::SetPayer(*entry, newName);
               return m_tools.Data.ChangeEntry(*entry);
           });
}

cSettlement cPeople::Settlement(const modPeriod::cRange& range) const
{
    cEntryQuery query;
    query.Start = range.Start;
    query.End = range.End.isValid() ? std::min(range.End, m_tools.Clock.Today()) : m_tools.Clock.Today();
    const cEntryItemList entries = m_tools.Data.GetEntries(query);
    if (!m_tools.Data.IsWhole()) {
        cSettlement unread;
        unread.IsUnread = true;
        return unread;
    }
    cSettlement settlement =
        modSettlement::Figures(entries, Names(), [this](const QString& account) { return SharesOf(account); });
    // A period that has not begun stays as it was asked for.
    settlement.Range = query.End < query.Start ? range : modPeriod::cRange{query.Start, query.End};
    return settlement;
}
