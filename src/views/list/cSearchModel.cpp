#include "views/list/cSearchModel.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/modSum.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/modPeople.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/common/modBookNames.h"
#include "views/common/modSetting.h"
#include "views/common/modUnread.h"

#include <cstdlib>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int typingPause = 120; // milliseconds: longer than between two letters, shorter than a person waits

std::optional<qint64> Cents(const QString& text, eDecimal decimal)
{
    const std::optional<qint64> cents = modSum::Evaluate(text, decimal);
    return cents ? std::optional(std::abs(*cents)) : std::nullopt;
}

void SetAmounts(const cSearchModel::cFields& fields, eDecimal decimal, cSearchQuery& query)
{
    using eRule = cSearchModel::eAmountRule;
    const std::optional<qint64> amount = Cents(fields.Amount, decimal);
    switch (fields.AmountRule) {
    case eRule::Exactly: query.Least = query.Most = amount; return;
    case eRule::AtLeast: query.Least = amount; return;
    case eRule::AtMost: query.Most = amount; return;
    case eRule::Between: break;
    }
    query.Least = amount;
    query.Most = Cents(fields.AmountTo, decimal);
    if (query.Least && query.Most && *query.Least > *query.Most) {
        std::swap(query.Least, query.Most);
    }
}

// The part of a query for which the book has to be read.
bool NeedsSameEntries(const cSearchQuery& a, const cSearchQuery& b)
{
    return a.Days == b.Days && a.Account == b.Account && a.Type == b.Type;
}

bool DiffersInTextOnly(const cSearchQuery& a, cSearchQuery b)
{
    b.Text = a.Text;
    return a == b;
}

} // namespace

cSearchModel::cSearchModel(const cBookTools& tools, QObject* parent)
    : QObject(parent),
      m_tools(tools),
      m_search(tools),
      m_entries(tools.Format)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(typingPause);
    connect(&m_timer, &QTimer::timeout, this, &cSearchModel::Run);
}

void cSearchModel::Open()
{
    if (!m_loaded) {
        Refresh();
    }
}

void cSearchModel::Close()
{
    m_timer.stop();
    m_loaded.reset();
    m_entries.SetContent({}, {}, modWord::KeineGruppierung);
}

void cSearchModel::Refresh()
{
    m_timer.stop();
    m_query = Query(m_fields);
    Load();
    Show();
}

void cSearchModel::Search(const cFields& fields)
{
    m_fields = fields;
    m_timer.stop();
    Run();
}

void cSearchModel::SearchSoon(const cFields& fields)
{
    m_fields = fields;
    m_timer.start();
}

void cSearchModel::Run()
{
    const cSearchQuery before = std::exchange(m_query, Query(m_fields));
    if (!m_loaded || !NeedsSameEntries(before, m_query)) {
        Load();
        Show();
    } else if (!DiffersInTextOnly(before, m_query) || before.IsEmpty() != m_query.IsEmpty()) {
        Show();
    } else {
        m_entries.SetFilter(m_query.Text);
        Q_EMIT Found(); // also when only a hint changed
    }
}

void cSearchModel::Load()
{
    m_loaded = m_search.Load(m_query);
}

void cSearchModel::Show()
{
    cEntryListModel::cContent content;
    if (!m_query.IsEmpty()) {
        content.Entries = m_search.Narrow(*m_loaded, m_query);
    }
    content.Account = m_query.Account;
    content.Today = Today();
    content.Looks = cCategoryLooks::Read(m_tools.Data);
    m_entries.SetContent(std::move(content), m_query.Text, modWord::KeineGruppierung);
    Q_EMIT Found();
}

cSearchQuery cSearchModel::Query(const cFields& fields) const
{
    cSearchQuery query;
    query.Text = fields.Text;
    SetAmounts(fields, Decimal(), query);
    query.Days = Days(fields);
    query.Account = fields.Account;
    query.Type = fields.Type;
    query.Category = fields.Category;
    query.Payer = modPeople::IsChoice(fields.Payer, People()) ? fields.Payer : QString();
    query.IsCorrected = fields.IsCorrected;
    query.IsFromBank = fields.IsFromBank;
    return query;
}

modPeriod::cRange cSearchModel::Days(const cFields& fields) const
{
    return modPeriod::Range(fields.Period, Today(), fields.Free);
}

QDate cSearchModel::Today() const
{
    return m_tools.Clock.Today();
}

bool cSearchModel::IsFreePeriod(const cFields& fields)
{
    return fields.Period == modWord::FreierZeitraum;
}

eDecimal cSearchModel::Decimal() const
{
    return m_tools.Format.Decimal();
}

bool cSearchModel::IsReadOnly() const
{
    return m_tools.Data.IsReadOnly();
}

bool cSearchModel::IsAmount(const QString& text) const
{
    return text.trimmed().isEmpty() || modSum::Evaluate(text, Decimal()).has_value();
}

QStringList cSearchModel::Periods() const
{
    QStringList periods = modWord::Periods().Stored();
    periods.removeAll(modWord::AlleBuchungen); // the same as no period
    return periods;
}

QStringList cSearchModel::Accounts() const
{
    return modBookNames::Accounts(m_tools.Data);
}

QStringList cSearchModel::People() const
{
    return modPeople::NamesOf(m_tools.Settings.Get(modSettingKey::People));
}

QStringList cSearchModel::Categories() const
{
    return modTemplate::WithMains(modBookNames::Categories(m_tools.Data));
}

cSumTexts cSearchModel::SumTexts() const
{
    const cEntrySums& sums = m_entries.Sums();
    return modEntrySums::Texts(sums, cText::Tr("{0} Treffer", {QString::number(sums.Count)}), m_tools.Format,
                               IsUnread());
}

bool cSearchModel::IsUnread() const
{
    return modUnread::IsMissing(m_tools.Data, m_entries.Sums().Count);
}

QString cSearchModel::Hint() const
{
    for (const QString& amount : {m_fields.Amount, m_fields.AmountTo}) {
        if (!IsAmount(amount)) {
            return modSum::IsDoubtful(amount, Decimal())
                ? modSum::Fault(amount, Decimal())
                : cText::Tr("'{0}' ist kein Betrag, die Suche lässt ihn außer Acht.", {amount});
        }
    }
    const modPeriod::cRange days = m_query.Days;
    if (days.Start.isValid() && days.End.isValid() && days.End < days.Start) {
        return cText::Tr("Der Zeitraum endet, bevor er beginnt.");
    }
    return days.End.isValid()
        ? QString()
        : cText::Tr("Von Serien erscheint jedes Vorkommen bis heute, spätere findet ein Zeitraum mit Ende.");
}

QString cSearchModel::EmptyTitle() const
{
    return IsUnread() ? modUnread::Title() : cText::Tr("Keine Daten");
}

QString cSearchModel::EmptyHint() const
{
    if (IsUnread()) {
        return modUnread::Hint();
    }
    return m_query.IsEmpty()
        ? cText::Tr("Geben Sie oben ein, wonach Sie suchen: ein Wort, einen Betrag, eine Kategorie …")
        : cText::Tr("Kein Eintrag passt zu allen Angaben. Weniger Wörter oder ein längerer Zeitraum finden mehr.");
}

QString cSearchModel::Layout() const
{
    return m_tools.Settings.Get(modSettingKey::SearchList);
}

void cSearchModel::SaveLayout(const QString& layout)
{
    modSetting::Keep(m_tools.Settings, modSettingKey::SearchList, layout);
}
