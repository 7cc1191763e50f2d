#include "cli/command/cCliEntryForm.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "base/modSum.h"
#include "cli/argument/modCliEntryList.h"
#include "cli/call/cCliBook.h"
#include "cli/command/modCliFlow.h"
#include "model/modWord.h"
#include "views/entry/cEntrySuggestions.h"
#include "views/entry/cSeriesChange.h"
#include "views/entry/modSplitParts.h"

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

// Word that takes the last day away from a series.
const QString withoutEnd = u"ohne"_s;

QDate LastDay(const cEntryFields& fields)
{
    return fields.HasEnd ? fields.End : QDate();
}

} // namespace

cCliEntryForm::cCliEntryForm(const cCliContext& context)
    : m_context(context),
      m_reader(context),
      m_editor(context.Book->Tools)
{
    Read();
}

QList<cCliOption> cCliEntryForm::Options()
{
    return {
        {u"amount"_s, u"BETRAG"_s, cText::Tr("Betrag, auch als Rechnung: \"12,50+3,99\"")},
        {u"category"_s, u"PFAD"_s, cText::Tr("Kategorie: \"Wohnung; Miete\", oder \"Miete\", wenn es nur eine gibt")},
        {u"kind"_s, u"ART"_s, cText::Tr("Einnahme, Ausgabe oder Umbuchung")},
        {u"account"_s, u"NAME"_s, cText::Tr("Konto")},
        {u"to-account"_s, u"NAME"_s, cText::Tr("Zielkonto einer Umbuchung")},
        {u"date"_s, u"DATUM"_s, cText::Tr("Tag, bei Serien der erste: 2026-01-31, 31.1., gestern, +7")},
        {u"interval"_s, u"INTERVALL"_s, cText::Tr("Einmalig, Monatlich, \"Alle 3 Monate\", Jährlich ...")},
        {u"end"_s, u"DATUM"_s, cText::Tr("letzter Tag einer Serie, oder \"ohne\"")},
        {u"times"_s, u"ZAHL"_s, cText::Tr("wie oft eine Serie stattfindet, statt --end, zum Beispiel 24 Raten")},
        {u"cancel-by"_s, u"DATUM"_s, cText::Tr("Serie: Tag, bis zu dem der Vertrag kündbar ist, oder \"ohne\"")},
        {u"payer"_s, u"NAME"_s, cText::Tr("Person, die bezahlt hat, oder \"ohne\"")},
        {u"text"_s, u"TEXT"_s, cText::Tr("Beschreibung"), true},
        modCliCommands::Json()};
}

bool cCliEntryForm::Has(const char* option) const
{
    return m_context.Call.Has(QString::fromLatin1(option));
}

void cCliEntryForm::Read()
{
    const cCliCall& call = m_context.Call;
    m_cents = m_reader.Cents(call.Value(u"amount"_s));
    m_category = m_reader.Category(call.Value(u"category"_s));
    m_kind = m_reader.Kind(call.Value(u"kind"_s));
    m_account = m_reader.Account(call.Value(u"account"_s));
    m_target = m_reader.Account(call.Value(u"to-account"_s));
    m_day = m_reader.Day(call.Value(u"date"_s));
    m_interval = m_reader.Interval(call.Value(u"interval"_s));
    m_payer = m_reader.Payer(call.Value(u"payer"_s));
    ReadEnd();
    m_kind = m_kind.isEmpty() && !m_target.isEmpty() ? modWord::Umbuchung : m_kind;
    if (!m_target.isEmpty() && m_kind != modWord::Umbuchung) {
        m_reader.Misused(cText::Tr("Ein Zielkonto hat nur eine Umbuchung."));
    }
    if (m_category == modWord::Startguthaben) {
        m_reader.Misused(cText::Tr("Ein Startguthaben legt der Befehl \"accounts start\" fest."));
    }
}

void cCliEntryForm::ReadEnd()
{
    const cCliCall& call = m_context.Call;
    const QString end = call.Value(u"end"_s);
    m_isOpen = end.compare(withoutEnd, Qt::CaseInsensitive) == 0;
    m_end = m_isOpen ? QDate() : m_reader.Day(end);
    m_times = call.Value(u"times"_s).toInt();
    if (Has("times") && m_times <= 0) {
        m_reader.Misused(cText::Tr("--times ist eine Zahl ab 1."));
    }
    if (Has("times") && Has("end")) {
        m_reader.Misused(cText::Tr("Bitte entweder --end oder --times angeben."));
    }
    const QString cancelBy = call.Value(u"cancel-by"_s);
    m_cancelBy = cancelBy.compare(withoutEnd, Qt::CaseInsensitive) == 0 ? QDate() : m_reader.Day(cancelBy);
}

void cCliEntryForm::Fill(cEntryFields& fields)
{
    const cCliCall& call = m_context.Call;
    if (Has("amount")) {
        fields.Amount = modSum::ToText(m_cents, fields.Decimal);
        fields.IsAmountTyped = true;
    }
    if (!m_account.isEmpty()) {
        m_editor.ChooseAccount(m_account, fields);
    }
    fields.Type = m_kind.isEmpty() ? fields.Type : m_kind;
    fields.Target = m_target.isEmpty() ? fields.Target : m_target;
    fields.Interval = m_interval.isEmpty() ? fields.Interval : m_interval;
    fields.Date = m_day.isValid() ? m_day : fields.Date;
    fields.End = m_end.isValid() ? m_end : fields.End;
    fields.HasEnd = (fields.HasEnd || m_end.isValid()) && !m_isOpen;
    if (Has("cancel-by")) {
        fields.CancelBy = m_cancelBy;
        fields.CancelByText.clear();
    }
    if (Has("payer")) {
        fields.Payer = m_payer.trimmed(); // nobody is no name
    }
    if (!m_category.isEmpty()) {
        m_editor.ChooseCategory(m_category, fields);
    }
    if (Has("text")) {
        m_editor.ChooseDescription(call.Value(u"text"_s), fields);
    }
    if (m_times > 0 && cEntryEditor::ShowsSeries(fields)) {
        fields.End = m_editor.EndAfter(fields, m_times);
        fields.HasEnd = true;
        fields.EndText.clear();
    }
}

// Of a split entry, amount, kind, category and text are those of the part; the rest belongs to all parts.
void cCliEntryForm::FillPart(int id, cEntryFields& fields)
{
    const auto part =
        std::find_if(fields.Parts.begin(), fields.Parts.end(), [&](const cSplitPart& other) { return other.ID == id; });
    if (part == fields.Parts.end()) {
        return;
    }
    const qint64 before = modSum::Evaluate(part->Amount, fields.Decimal).value_or(0);
    const qint64 size = std::abs(Has("amount") ? m_cents : before);
    const bool isOpposite = m_kind.isEmpty() ? before < 0 : m_kind != fields.Type;
    part->Category = m_category.isEmpty() ? part->Category : m_category;
    part->Description = Has("text") ? m_context.Call.Value(u"text"_s) : part->Description;
    const qint64 whole = modSplitParts::SetAmount(part - fields.Parts.begin(), isOpposite ? -size : size, fields);
    if (m_kind == modWord::Umbuchung) {
        m_reader.Missing(cText::Tr("Ein Teil einer aufgeteilten Buchung kann keine Umbuchung sein."));
    } else if (whole < 0) {
        m_reader.Missing(cText::Tr("Die Teile der aufgeteilten Buchung kämen zusammen unter null."));
    }
}

void cCliEntryForm::FillBalance(cEntryFields& fields)
{
    const QStringList others{m_kind, m_account, m_target, m_category, m_interval};
    if (!others.join(QString()).isEmpty() || Has("end") || Has("times") || Has("payer") || Has("text")) {
        m_reader.Misused(cText::Tr("Ein Startguthaben hat nur einen Betrag und einen Tag."));
    }
    fields.Amount = Has("amount") ? modSum::ToText(m_cents, fields.Decimal) : fields.Amount;
    fields.Date = m_day.isValid() ? m_day : fields.Date;
}

int cCliEntryForm::Add()
{
    cEntryFields fields = m_editor.Start({});
    Fill(fields);
    if (fields.Account.isEmpty()) {
        fields.Account = m_editor.Accounts().value(0);
    }
    if (!Has("amount") && modSum::Evaluate(fields.Amount, fields.Decimal).value_or(0) == 0) {
        m_reader.Misused(cText::Tr("Bitte nennen Sie den Betrag mit --amount."));
    }
    return Save(fields, 0);
}

int cCliEntryForm::Change(int id)
{
    const std::optional<cEntryFields> fields = m_editor.Load(id);
    return fields ? ChangeLoaded(id, *fields) : modExit::Failed;
}

int cCliEntryForm::ChangeFrom(int id, const QString& day)
{
    m_from = m_reader.Occurrence(id, day, eOccurrence::From);
    const std::optional<cEntryFields> fields = m_editor.LoadFrom(id, m_from);
    return fields ? ChangeLoaded(id, *fields) : m_reader.Report();
}

int cCliEntryForm::ChangeLoaded(int id, cEntryFields fields)
{
    if (fields.Face == eEntryFace::StartBalance) {
        FillBalance(fields);
        return Save(fields, id);
    }
    cEntryFields filled = fields;
    Fill(filled);
    if (fields.Face == eEntryFace::Split) {
        filled.Amount = fields.Amount;
        filled.Type = fields.Type;
        FillPart(id, filled);
    }
    return Save(filled, id);
}

// What the editor would refuse without saying which option is meant.
void cCliEntryForm::Check(const cEntryFields& fields)
{
    if ((Has("end") || Has("times")) && !cEntryEditor::ShowsSeries(fields)) {
        m_reader.Misused(cText::Tr("Einen letzten Tag hat nur eine Serie. Bitte nennen Sie auch --interval."));
    }
    if (m_cancelBy.isValid() && !cEntryEditor::ShowsSeries(fields)) {
        m_reader.Misused(cText::Tr("Kündbar ist nur eine Serie. Bitte nennen Sie auch --interval."));
    }
    if (cEntryEditor::ShowsSeries(fields) && m_times > 0 && !fields.End.isValid()) {
        m_reader.Misused(cText::Tr("So oft kann die Serie nicht stattfinden."));
    } else if (cEntryEditor::ShowsSeries(fields) && fields.HasEnd && LastDay(fields) < fields.Date) {
        m_reader.Misused(cText::Tr("Der letzte Tag liegt vor dem ersten ({0}).", {modDate::ToText(fields.Date)}));
    }
    if (m_from.isValid() && fields.Date < m_from) {
        m_reader.Misused(cText::Tr("Die geänderte Serie kann nicht vor dem {0} beginnen.", {modDate::ToText(m_from)}));
    }
    if (!cEntryEditor::ShowsTarget(fields)) {
        return;
    }
    if (fields.Target.isEmpty()) {
        m_reader.Misused(cText::Tr("Bitte nennen Sie das Zielkonto der Umbuchung mit --to-account."));
    } else if (fields.Target == fields.Account) {
        m_reader.Misused(cText::Tr("Eine Umbuchung braucht zwei verschiedene Konten: --account und --to-account."));
    }
}

int cCliEntryForm::Save(const cEntryFields& fields, int id)
{
    Check(fields);
    if (!m_reader.IsGood()) {
        return m_reader.Report();
    }
    m_context.User.Prepare(modCliFlow::Answers(m_context, cText::Tr("Mit --yes wird trotzdem gespeichert.")));
    const bool isSaved = m_editor.Save(fields) == cEntryEditor::eSaved::Saved;
    if (isSaved) {
        Print(fields, m_editor.SavedId() == 0 ? id : m_editor.SavedId());
        return modExit::Done;
    }
    if (fields.Face == eEntryFace::Normal && (fields.Category.isEmpty() || fields.Type.isEmpty())) {
        const bool isNone =
            fields.Category.isEmpty() && cEntrySuggestions::VisibleCategories(m_context.Book->Data).isEmpty();
        modConsole::Error(isNone ? cText::Tr("Dazu dient der Befehl {0}.", {u"categories add"_s})
                                 : cText::Tr("Dazu dient die Option {0}.",
                                             {fields.Category.isEmpty() ? u"--category"_s : u"--kind"_s}));
    }
    return modCliFlow::Finish(m_context, false);
}

void cCliEntryForm::Print(const cEntryFields& fields, int id) const
{
    cBookAccess& file = m_context.Book->File();
    const std::optional<cEntryItem> entry = file.Entry(id);
    const cEntryItemList parts = entry ? file.Parts(*entry) : cEntryItemList();
    const bool isTable = !Has("json");
    if (isTable) {
        modConsole::Out(file.LastStep() + u'\n');
        const QString earlier = cSeriesChange(m_context.Book->Tools).EarlierText(id, m_from);
        modConsole::Out(earlier.isEmpty() ? QString() : earlier + u'\n');
    }
    modCliEntryList::Print(m_context, parts.isEmpty() && entry ? cEntryItemList{*entry} : parts);
    const cEntryEditor::cPreview preview = m_editor.Preview(fields);
    if (isTable && preview.IsSeries) {
        modConsole::Out(preview.Text + u'\n');
    }
}
