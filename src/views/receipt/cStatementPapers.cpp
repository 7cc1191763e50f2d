#include "views/receipt/cStatementPapers.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/modDate.h"
#include "base/modDayNames.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "core/modReceiptUse.h"
#include "import/stage/cAccountMap.h"
#include "model/modPaperDay.h"
#include "model/modReceiptName.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace {

// Banks also send pages that say why there is no statement, under the name of one.
bool IsPdf(const QByteArray& bytes)
{
    constexpr qsizetype head = 1024;
    return bytes.left(head).contains("%PDF-");
}

QString TextOf(const QString& name)
{
    const QDate day = modPaperDay::Read(name);
    if (!day.isValid()) {
        return name;
    }
    const QString month = modDayNames::MonthText(day);
    return modPaperDay::IsMonthOnly(name) ? month : cText::Tr("{0}. {1}", {QString::number(day.day()), month});
}

} // namespace

bool cStatementPapers::IsPaper(const QString& path)
{
    return path.endsWith(u".pdf"_s, Qt::CaseInsensitive);
}

QString cStatementPapers::Account() const
{
    const QString account = cAccountMap(m_tools.Data, m_tools.Settings).AccountOf(m_number);
    return account.isEmpty() ? m_number : account;
}

QString cStatementPapers::Title() const
{
    const QString account = Account();
    return cText::Tr("PDF-Auszüge: {0}", {account == m_number ? m_number : account + u" – " + m_number});
}

cReceiptHolder::cWords cStatementPapers::Words() const
{
    return {
        .Files = cText::Tr("PDF-Auszüge"),
        .Empty =
            cText::Tr("Noch kein PDF-Auszug. Ziehen Sie die Auszüge der Bank hierher, oder wählen Sie die Dateien."),
        .EmptyReadOnly = cText::Tr("Dieses Konto hat keinen PDF-Auszug."),
        .Add = cText::Tr("PDF-Auszüge hinzufügen"),
        .ChooseAgain = cText::Tr("PDF-Auszug neu wählen"),
        .Filter = cText::Tr("PDF|*.pdf|Alle Dateien|*.*"),
        .Purpose = ePurpose::Statement,
        .Remove = cText::Tr("Soll der Auszug '{0}' von diesem Konto entfernt werden?"),
        .RemoveTitle = cText::Tr("PDF-Auszug entfernen"),
    };
}

// The names begin with their days, so their order is that of the days.
QStringList cStatementPapers::Names() const
{
    QStringList names = modReceiptUse::PapersOf(m_tools.Settings, m_number);
    std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
        return std::tuple(modPaperDay::Read(b), b) < std::tuple(modPaperDay::Read(a), a);
    });
    return names;
}

QList<cReceiptHolder::cItem> cStatementPapers::Items() const
{
    QList<cItem> items;
    const QStringList names = Names();
    for (const QString& name : names) {
        items.append({cReceiptFolder(m_tools).File(name), TextOf(name)});
    }
    return items;
}

std::optional<QString> cStatementPapers::DayOf(const cReceiptSource& source) const
{
    const QString name = cReceiptFolder::NameOf(source);
    const QString told = modPaperDay::Find(name);
    if (!told.isEmpty()) {
        return told;
    }
    constexpr int mostMonths = 120;
    const QDate newest = m_tools.Clock.Today().addMonths(1);
    QStringList months;
    for (int i = 0; i < mostMonths; ++i) {
        months.append(modDayNames::MonthText(newest.addMonths(-i)));
    }
    const QDate saved = QFileInfo(source.Path).lastModified().date(); // mostly when the month was over
    const std::optional<QString> chosen =
        m_tools.User.Choose({.Text = cText::Tr("Von welchem Monat ist der Auszug '{0}'?", {name}),
                             .Title = cText::Tr("PDF-Auszüge hinzufügen"),
                             .Items = months,
                             .Proposal = modDayNames::MonthText(saved.addMonths(-1))});
    const qsizetype back = chosen ? months.indexOf(*chosen) : -1;
    return back < 0 ? std::nullopt : std::optional(modPaperDay::OfMonth(newest.addMonths(-static_cast<int>(back))));
}

QString cStatementPapers::Take(cReceiptFolder& folder, const cReceiptSource& source, const QString& day) const
{
    const std::optional<QByteArray> bytes = folder.Read(source);
    if (!bytes) {
        return {};
    }
    if (!IsPdf(*bytes)) {
        (void)folder.Refuse(source.Path.isEmpty()
                                ? cText::Tr("In der Zwischenablage ist kein PDF.")
                                : cText::Tr("'{0}' ist kein PDF. Auszüge, die Kontorelle einlesen kann (CSV, MT940 und "
                                            "so weiter), gehören auf die Seite „Kontoauszüge“.",
                                            {cReceiptFolder::NameOf(source)}));
        return {};
    }
    const std::optional<QString> told = day.isEmpty() ? DayOf(source) : day;
    return told ? folder.Keep(modReceiptName::Stem(*told, cText::Tr("Kontoauszug {0}", {Account()})), u".pdf"_s, *bytes)
                : QString();
}

bool cStatementPapers::Store(const QStringList& names, const QString& step) const
{
    const cSettingKey key = modSettingKey::StatementPapers.Of(m_number);
    cUndoStep undo(m_tools.Data, step);
    return undo.DoneIf(names.isEmpty() ? m_tools.Settings.Delete(key)
                                       : m_tools.Settings.Set(key, modReceiptName::Write(names)));
}

bool cStatementPapers::Add(const QList<cReceiptSource>& sources)
{
    cReceiptFolder folder(m_tools);
    if (sources.isEmpty() || !folder.MayWrite()) {
        return false;
    }
    QStringList names = Names();
    for (const cReceiptSource& source : sources) {
        const QString name = Take(folder, source, m_day);
        if (name.isEmpty()) {
            folder.TakeBack();
            return false;
        }
        names.append(name);
    }
    names.removeDuplicates();
    if (names == Names()) {
        folder.TellUnchanged();
        return true;
    }
    if (Store(names, cText::Tr("PDF-Auszug zu '{0}' hinzugefügt", {Account()}))) {
        return true;
    }
    folder.TakeBack();
    return false;
}

bool cStatementPapers::Detach(const QString& name)
{
    QStringList names = Names();
    return cReceiptFolder(m_tools).MayWrite() && names.removeAll(name) > 0
        && Store(names, cText::Tr("PDF-Auszug von '{0}' entfernt", {Account()}));
}

// It is of the same day.
bool cStatementPapers::Replace(const QString& name, const QString& path)
{
    cReceiptFolder folder(m_tools);
    const QDate day = modPaperDay::Read(name);
    if (folder.File(name).IsThere() || !folder.MayWrite()) {
        return false;
    }
    const QString iso = modPaperDay::IsMonthOnly(name) ? modPaperDay::OfMonth(day) : modDate::ToIso(day);
    const QString other = Take(folder, {path}, iso);
    QStringList names = Names();
    std::replace(names.begin(), names.end(), name, other);
    names.removeDuplicates();
    if (other.isEmpty() || other == name || Store(names, cText::Tr("PDF-Auszug von '{0}' ersetzt", {Account()}))) {
        return !other.isEmpty();
    }
    folder.TakeBack();
    return false;
}
