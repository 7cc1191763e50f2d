#include "cEditorBook.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "views/entry/cEntryDrafts.h"
#include "views/entry/cEntryEditor.h"
#include "views/entry/modSplitParts.h"

#include <QDir>

#include <functional>

using namespace Qt::Literals::StringLiterals;
using fnChange = std::function<void(cEntryFields&)>;

namespace {

using fnChange = std::function<void(cEntryFields&)>;

cEntryEditor::cFields Fields()
{
    cEntryEditor::cFields fields;
    fields.Amount = u"12,50"_s;
    fields.Category = u"Haushalt; Lebensmittel"_s;
    fields.Type = modWord::Ausgabe;
    fields.Account = u"Girokonto"_s;
    return fields;
}

// Nothing as it is in an empty form.
cEntryFields EveryField()
{
    cEntryFields fields;
    fields.Face = eEntryFace::Split;
    fields.Amount = u"12,50+3"_s;
    fields.IsAmountTyped = fields.IsAccountChosen = fields.IsDayKept = fields.HasEnd = true;
    fields.Description = u"„Wochenmarkt“ \\ {0}"_s;
    fields.Category = u"Haushalt; Lebensmittel"_s;
    fields.CategoryText = u"Neues"_s;
    fields.Type = modWord::Ausgabe;
    fields.BroughtType = modWord::Einnahme;
    fields.OpenType = modWord::Umbuchung;
    fields.Account = u"Girokonto"_s;
    fields.Target = u"Sparkonto"_s;
    fields.Date = QDate(2026, 3, 1);
    fields.DateText = u"+7"_s;
    fields.End = QDate(2027, 3, 1);
    fields.EndText = u"1.3.27"_s;
    fields.Interval = u"Monatlich"_s;
    fields.BroughtInterval = u"Jährlich"_s;
    fields.Parts = {{7, u"Haushalt; Drogerie"_s, u"Seife"_s, u"2,50"_s, {}}, {0, {}, u"Rest"_s, u"-1"_s, u"Pfand"_s}};
    fields.Corrections = {
        {3, 9, u"Betrag"_s, QDate(2026, 4, 1), QDate(2026, 4, 30), -123456789012, u"teurer"_s, QDate(2026, 4, 2)}};
    fields.NewReceipts = {{u"/scan.pdf"_s}, {{}, QByteArray("\x89PNG\0\xff", 6)}};
    return fields;
}

cEntryDraft DraftAt(int minute)
{
    return {.Kept = QDateTime(QDate(2026, 3, 15), QTime(12, minute, 1, 5)),
            .EntryId = 0,
            .From = {},
            .Fields = EveryField()};
}

} // namespace

class testEntryEditor final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_book.emplace(); }

    void Refuses_data()
    {
        using enum eEntrySaved;
        const cTestRows<fnChange, eEntrySaved, QString> row("change", "saved", "message");
        row("amount first, without message",
            [](cEntryFields& fields) {
                fields.Amount = u"zwölf"_s;
                fields.Category.clear();
            },
            BadAmount, {});
        row(
            "category before kind", [](cEntryFields& fields) { fields.Category = fields.Type = QString(); }, Refused,
            u"Bitte erst eine Kategorie wählen!"_s);
        row(
            "kind before account", [](cEntryFields& fields) { fields.Type = fields.Account = QString(); }, Refused,
            u"Bitte erst eine Buchungsart wählen!"_s);
        row(
            "account", [](cEntryFields& fields) { fields.Account.clear(); }, Refused,
            u"Bitte erst ein Konto wählen!"_s);
        const QString built = u"Eintrag konnte nicht erstellt werden!\n"_s;
        row(
            "to nowhere", [](cEntryFields& fields) { fields.Type = modWord::Umbuchung; }, BadTarget,
            built + u"Nach Konto: Bitte wählen Sie das Konto, auf dem das Geld ankommt."_s);
        row(
            "to itself",
            [](cEntryFields& fields) {
                fields.Type = modWord::Umbuchung;
                fields.Target = u"Girokonto"_s;
            },
            BadTarget, built + u"Nach Konto: Von 'Girokonto' kann das Geld nur auf ein anderes Konto gehen."_s);
        row(
            "ends before it begins", [](cEntryFields& fields) { fields.EndText = u"2.5."_s; }, BadEnd,
            built + u"Endet am: Der letzte Tag (02.05.2026) liegt vor dem ersten (03.05.2026)."_s);
        row("no day", [](cEntryFields& fields) { fields.DateText = u"bald"_s; }, BadDate, {});
        row("no last day", [](cEntryFields& fields) { fields.EndText = u"nie"_s; }, BadEnd, {});
    }

    void Refuses()
    {
        QFETCH(const fnChange, change);
        QFETCH(const QString, message);
        cEntryEditor::cFields fields = Fields();
        fields.Interval = u"Monatlich"_s;
        fields.DateText = u"3.5."_s;
        fields.HasEnd = true;
        change(fields);
        QTEST(m_book->Editor.Save(fields), "saved");
        QCOMPARE(m_book->User.Shown, message.isEmpty() ? QStringList() : QStringList(message));
        QCOMPARE(m_book->Data.CountEntries(), 0);
    }

    void SaysWhenThereIsNothingToChoose()
    {
        const cTemplateItemList templates = m_book->Data.GetTemplates();
        for (const cTemplateItem& item : templates) {
            QVERIFY(m_book->Data.DeleteTemplate(item.ID));
        }
        cEntryEditor::cFields fields = Fields();
        fields.Account.clear();
        QCOMPARE(m_book->Editor.Save(fields), cEntryEditor::eSaved::Refused);
        fields.Category.clear();
        QCOMPARE(m_book->Editor.Save(fields), cEntryEditor::eSaved::Refused);
        QCOMPARE(m_book->User.Shown,
                 QStringList({u"Bitte erst neue Konten anlegen und diese Buchung einordnen!"_s,
                              u"Bitte erst neue Kategorien anlegen und diese Buchung einordnen!"_s}));
    }

    void StoresWhatWasTyped()
    {
        cEntryEditor::cFields fields = Fields();
        fields.Amount = u"-1.012,50"_s; // the sign is the kind's business
        fields.DateText = u" "_s;       // is the chosen day
        fields.Target = u"Sparkonto"_s; // left over from a transfer
        fields.HasEnd = true;           // and from a series
        fields.End = QDate(2026, 12, 31);
        fields.Description = u"Oma's Garten"_s;
        QCOMPARE(m_book->Editor.Save(fields), cEntryEditor::eSaved::Saved);
        const std::optional<cEntryItem> stored = m_book->Data.LoadEntry(1);
        QVERIFY(stored);
        QCOMPARE(stored->EntryValue, 101250);
        QCOMPARE(stored->EntryDate, m_book->Clock.Today());
        QCOMPARE(stored->EntryDateEnd, modRecurrence::OpenEnd);
        QCOMPARE(stored->EntryInterval, modWord::Einmalig);
        QVERIFY(stored->EntryAccountMove.isEmpty());
        QCOMPARE(stored->EntryDescription, fields.Description);
        QCOMPARE(m_book->Data.Journal().UndoName(), u"Eintrag 'Oma's Garten' angelegt"_s);
        fields = m_book->Editor.Load(1).value();
        fields.Description.clear();
        QCOMPARE(m_book->Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QCOMPARE(m_book->Data.Journal().UndoName(), u"Eintrag 'Haushalt; Lebensmittel' geändert"_s);
    }

    void OtherPeriodCostsCorrections_data()
    {
        const cTestRows<bool, int, qsizetype, QString> row("changesDate", "answer", "corrections", "description");
        row("other text asks nothing", false, int(eAnswer::Cancel), 1, u"neu"_s);
        row("no saves nothing", true, int(eAnswer::No), 1, {});
        row("yes drops the corrections", true, int(eAnswer::Yes), 0, u"neu"_s);
    }

    void OtherPeriodCostsCorrections()
    {
        QFETCH(bool, changesDate);
        QFETCH(int, answer);
        QFETCH(QString, description);
        const cEntryItem series = m_book->Add([](cEntryItem& entry) { entry.EntryInterval = u"Monatlich"_s; });
        m_book->Correct(series.ID, QDate(2026, 4, 1), {}, 0);

        cEntryEditor::cFields fields = m_book->Editor.Load(series.ID).value();
        fields.Description = u"neu"_s;
        fields.Date = changesDate ? fields.Date.addDays(1) : fields.Date;
        m_book->User.Usual = static_cast<eAnswer>(answer);
        const bool isSaved = m_book->Editor.Save(fields) == cEntryEditor::eSaved::Saved;
        QCOMPARE(isSaved, !description.isEmpty());
        QTEST(m_book->Data.GetEntryMods(series.ID).size(), "corrections");
        QCOMPARE(m_book->Data.LoadEntry(series.ID)->EntryDescription, description);
        QCOMPARE(m_book->User.Asked.size(), changesDate ? 1 : 0);
    }

    void ProposesRecurringValues_data()
    {
        const cTestRows<QString, bool, QString> row("interval", "isTyped", "amount");
        row("recurring", u"Monatlich"_s, false, u"850,00"_s);
        row("recurring, typed", u"Monatlich"_s, true, u"7"_s);
        row("a limit only", modWord::Einmalig, false, u"0,00"_s);
        row("without interval", {}, false, u"0,00"_s);
    }

    void ProposesRecurringValues()
    {
        QFETCH(QString, interval);
        QFETCH(bool, isTyped);
        const QString rent = m_book->AddCategory(u"Pacht"_s, [&](cTemplateItem& item) {
            item.EntryInterval = interval;
            item.TemplateDefaultValue = u"850.00"_s;
        });
        cEntryEditor::cFields fields;
        fields.Amount = u"7"_s;
        fields.IsAmountTyped = isTyped;
        m_book->Editor.ChooseCategory(rent, fields);
        QTEST(fields.Amount, "amount");
    }

    void SaysTheVatInTheAmount()
    {
        cEntryEditor::cFields fields;
        fields.Category = m_book->AddCategory(u"Reparatur"_s, [](cTemplateItem& item) { item.TemplateVAT = u"19"_s; });
        fields.Amount = u"100"_s;
        QCOMPARE(m_book->Editor.VatText(fields), u"darin 19 % MwSt.: 15,97\u00A0€"_s);
        fields.Type = modWord::Umbuchung;
        QCOMPARE(m_book->Editor.VatText(fields), QString());
    }

    void NextEntryKeepsDayAccountAndKind()
    {
        cEntryEditor::cFields fields = Fields();
        fields.DateText = u"3."_s;
        fields.Interval = u"Monatlich"_s;
        for (int i = 1; i <= 6; ++i) {
            fields.Description = QString::number(i);
            QCOMPARE(m_book->Editor.Save(fields), cEntryEditor::eSaved::Saved);
        }
        QCOMPARE(m_book->Editor.LastSaved().size(), 5);
        QCOMPARE(m_book->Editor.LastSaved().first(), u"03.03.2026  6  -12,50\u00A0€"_s);
        const cEntryEditor::cFields next = m_book->Editor.Next(fields);
        QVERIFY(m_book->Editor.IsNew());
        QCOMPARE(next.Date, QDate(2026, 3, 3));
        QCOMPARE(next.Account, fields.Account);
        QCOMPARE(next.Type, fields.Type);
        QCOMPARE(next.Amount, u"0,00"_s);
        QVERIFY(next.Description.isEmpty() && next.Category.isEmpty() && next.Interval.isEmpty()
                && !next.IsAmountTyped);
    }

    void DescriptionBringsItsLatestUse()
    {
        const auto add = [&](const QString& description, const QString& category, const QString& account) {
            m_book->Add({.Text = description, .Category = category, .Account = account});
        };
        add(u"Bäcker"_s, u"Haushalt; Lebensmittel"_s, u"Girokonto"_s);
        add(u"Bäcker"_s, u"Haushalt; Lebensmittel"_s, u"Bargeld"_s);
        add(u"Wärme d'Oro"_s, u"Nicht; Angelegt"_s, u"Geschlossen"_s);
        add(u"Wirt"_s, u"Haushalt; Lebensmittel"_s, u"Bargeld"_s);

        QCOMPARE(m_book->Editor.Suggestions().Descriptions(u"baeck"_s), QStringList({u"Bäcker"_s}));
        QCOMPARE(m_book->Editor.Suggestions().Descriptions().value(0), u"Bäcker"_s); // used most often
        cEntryEditor::cFields fields = m_book->Editor.Start(u"Girokonto"_s);
        m_book->Editor.ChooseDescription(u"Wärme d'Oro"_s, fields); // category and account are gone
        QCOMPARE(fields.Category, QString());
        QCOMPARE(fields.Account, u"Girokonto"_s);
        m_book->Editor.ChooseDescription(u"Bäcker"_s, fields);
        QCOMPARE(fields.Category, u"Haushalt; Lebensmittel"_s);
        QCOMPARE(fields.Account, u"Bargeld"_s);
        m_book->Editor.ChooseAccount(u"Sparkonto"_s, fields);
        m_book->Editor.ChooseDescription(u"Wirt"_s, fields);
        QCOMPARE(fields.Account, u"Sparkonto"_s); // the user's choice stays

        cEntryEditor::cFields saved = Fields();
        saved.Description = u"Zoo"_s;
        QCOMPARE(m_book->Editor.Save(saved), cEntryEditor::eSaved::Saved);
        QCOMPARE(m_book->Editor.Suggestions().Descriptions().value(0), u"Zoo"_s); // without reading the *m_book again
    }

    void AmountsAreTypedAsTheyAreShown()
    {
        QVERIFY(m_book->Settings->Set(modSettingKey::LanguageFormat, u"en-GB"_s));
        cEntryEditor::cFields fields = m_book->Editor.Start(u"Girokonto"_s);
        QCOMPARE(fields.Amount, u"0.00"_s);
        fields.Amount = u"1,234"_s;
        fields.Category = u"Haushalt; Lebensmittel"_s;
        fields.Type = modWord::Ausgabe;
        QCOMPARE(m_book->Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QCOMPARE(m_book->Data.LoadEntry(m_book->Editor.SavedId())->EntryValue, 123400);
        fields = m_book->Editor.Load(m_book->Editor.SavedId()).value();
        QCOMPARE(fields.Amount, u"1234.00"_s);
        m_book->Editor.UseSplit(fields);
        fields.Parts = {{.Category = fields.Category, .Amount = u"1,000"_s},
                        {.Category = fields.Category, .Amount = u"233.5"_s}};
        QCOMPARE(modSplitParts::RestText(fields), u"Rest: 0.50"_s);
        QVERIFY(modSplitParts::FillRest(1, fields));
        QCOMPARE(fields.Parts.at(1).Amount, u"234.00"_s);
        QCOMPARE(m_book->Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QVERIFY(m_book->Editor.LastSaved().first().contains(u"£1,234.00"));

        QVERIFY(m_book->Data.SetStartGuthaben(u"Girokonto"_s, 150000, QDate(2026, 1, 1)));
        QCOMPARE(m_book->Editor.StartBalance(u"Girokonto"_s).Amount, u"1500.00"_s);
    }

    void PreviewsSeries_data()
    {
        const cTestRows<QString, QString, QString> row("day", "end", "text");
        row("open", u"20.1."_s, {}, u"ohne Ende, nächste Termine: 20.03.2026, 20.04.2026, 20.05.2026"_s);
        row("bounded", u"20.1."_s, u"30.4."_s, u"4 Mal, nächste Termine: 20.03.2026, 20.04.2026"_s);
        row("over", u"20.1."_s, u"1.3."_s, u"2 Mal, beendet: zuletzt am 20.02.2026"_s);
        row("never", u"20.1."_s, u"1.1."_s, u"Die Serie endet vor ihrem ersten Tag: Sie hat keinen Termin."_s);
        row("one, and the last", u"20.4."_s, u"30.4."_s, u"1 Mal, nächste Termine: 20.04.2026"_s);
        row("unreadable", u"irgendwann"_s, {}, {});
    }

    void PreviewsSeries()
    {
        QFETCH(QString, day);
        QFETCH(QString, end);
        cEntryEditor::cFields fields;
        fields.Interval = u"Monatlich"_s;
        fields.DateText = day;
        fields.HasEnd = !end.isEmpty();
        fields.EndText = end;
        QTEST(m_book->Editor.Preview(fields).Text, "text");
    }

    void StartBalanceHasItsSign()
    {
        cEntryEditor::cFields fields = m_book->Editor.StartBalance(u"Girokonto"_s);
        QCOMPARE(fields.Date, m_book->Clock.Day);
        QCOMPARE(m_book->Editor.StartBalanceText(u"Girokonto"_s),
                 u"Bisher wurde noch kein Startguthaben festgelegt:"_s);
        fields.Amount = u"-100-20,5"_s;
        fields.DateText = u"1.1."_s;
        QCOMPARE(m_book->Editor.Save(fields), cEntryEditor::eSaved::Saved);
        const cEntryItem stored = m_book->Data.GetStartGuthaben(u"Girokonto"_s).value();
        QCOMPARE(stored.EntryType, modWord::Ausgabe);
        QCOMPARE(stored.EntryValue, 12050);
        QCOMPARE(m_book->Editor.StartBalanceText(u"Girokonto"_s),
                 u"Bisheriges Startguthaben: -120,50\u00A0€ am 01.01.2026"_s);

        fields = m_book->Editor.Load(stored.ID).value();
        QCOMPARE(fields.Face, eEntryFace::StartBalance);
        QCOMPARE(fields.Amount, u"-120,50"_s);
        fields.Amount = u"7"_s;
        QCOMPARE(m_book->Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QCOMPARE(m_book->Data.LoadEntry(stored.ID)->EntryType, modWord::Einnahme);
        QCOMPARE(m_book->Data.CountEntries(), 1);
        QVERIFY(m_book->Data.Journal().Undo());
        QCOMPARE(m_book->Data.LoadEntry(stored.ID)->EntryValue, 12050);
    }

    void StartBalanceFollowsTheAccount()
    {
        QVERIFY(m_book->Data.SetStartGuthaben(u"Bargeld"_s, 500, QDate(2025, 1, 1)));
        cEntryEditor::cFields fields = m_book->Editor.StartBalance(u"Girokonto"_s);
        m_book->Editor.ChooseAccount(u"Bargeld"_s, fields);
        QCOMPARE(fields.Amount, u"5,00"_s);
        QCOMPARE(fields.Date, QDate(2025, 1, 1));
        fields.IsAmountTyped = true;
        m_book->Editor.ChooseAccount(u"Girokonto"_s, fields);
        QCOMPARE(fields.Amount, u"5,00"_s);
        fields.Account.clear();
        QCOMPARE(m_book->Editor.Save(fields), cEntryEditor::eSaved::Refused);
        QCOMPARE(m_book->User.Shown, QStringList({u"Bitte erst ein Konto wählen!"_s}));
    }

    void LabelNamesTheCurrency()
    {
        QCOMPARE(m_book->Editor.AmountLabel(), u"Betrag (€):"_s);
        QVERIFY(m_book->Settings->Set(modSettingKey::LanguageCurrency, u"en_US"_s));
        m_book->Format.CultureChanged();
        QCOMPARE(m_book->Editor.AmountLabel(), u"Betrag ($):"_s);
        QVERIFY(m_book->Settings->Set(modSettingKey::LanguageCurrency, u"id-ID"_s));
        m_book->Format.CultureChanged();
        QCOMPARE(m_book->Editor.AmountLabel(), u"Betrag:"_s); // rupiah are shown without symbol
    }

    void ComesBackWhole() const
    {
        const cFakeShell shell;
        cEntryDrafts drafts(shell.Folder(u"state"_s), u"/buch.db"_s);
        cEntryDraft changed = DraftAt(1);
        changed.EntryId = 9;
        changed.From = QDate(2026, 4, 1);
        QVERIFY(drafts.Keep(changed));
        QVERIFY(drafts.Keep(DraftAt(2)));
        const QList<cEntryDraft> kept = drafts.All();
        QCOMPARE(kept.size(), 2);
        QCOMPARE(kept[0].Kept, changed.Kept);
        QCOMPARE(kept[0].EntryId, 9);
        QCOMPARE(kept[0].From, QDate(2026, 4, 1));
        QVERIFY(kept[0].Fields == EveryField());

        QVERIFY(drafts.Remove(changed.Kept));
        QCOMPARE(drafts.All().size(), 1);
        QVERIFY(drafts.Remove(DraftAt(2).Kept));
        QCOMPARE(QDir(shell.Folder(u"state"_s)).entryList(QDir::Files), QStringList());
    }

    void IsForItsUserAndBookOnly() const
    {
        cTestBook book;
        cTestBook other;
        QVERIFY(cEntryDrafts(book.Shell.StateFolder(), book.Path()).Keep(DraftAt(1)));
        QCOMPARE(cEntryDrafts(book.Shell.StateFolder(), other.Path()).All().size(), 0);
        const QFileInfoList files = QDir(book.Shell.StateFolder()).entryInfoList(QDir::Files);
        QCOMPARE(files.size(), 1);
        const QFileDevice::Permissions others =
            QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ReadOther | QFileDevice::WriteOther;
        QVERIFY(!(files[0].permissions() & others));
    }

    void UnreadableFileIsNone() const
    {
        cTestBook book;
        cEntryDrafts drafts(book.Shell.StateFolder(), book.Path());
        QVERIFY(drafts.Keep(DraftAt(1)));
        cTestFile::Write(QDir(book.Shell.StateFolder()).entryInfoList(QDir::Files)[0].filePath(),
                         "[{\"Kept\": 5, \"Fields\": []}, 1, {");
        QCOMPARE(drafts.All().size(), 0);
        QVERIFY(drafts.Keep(DraftAt(2)));
        QCOMPARE(drafts.All().size(), 1);
    }

    void GoneEntryBecomesANewOne() const
    {
        cTestBook book;
        cEntryDraft draft = DraftAt(1);
        draft.EntryId = 4711;
        cEntryEditor editor(book.Tools);
        QVERIFY(editor.Resume(draft) == editor.Start(u"Girokonto"_s));
        QVERIFY(editor.IsNew());
        QVERIFY(book.User.Shown.value(0).contains(u"gibt es nicht mehr"_s));
        // Of rows and periods that are gone nothing is left to be overwritten.
        QCOMPARE(draft.Fields.Parts[0].ID, 0);
        QVERIFY(draft.Fields.Corrections.isEmpty());
    }

    void AsksWhatToDo_data() const
    {
        const cTestRows<int, cEntryDrafts::eWish> row("option", "wish");
        row("restore", 0, cEntryDrafts::eWish::Restore);
        row("discard", 1, cEntryDrafts::eWish::Discard);
        row("giving up keeps it", -1, cEntryDrafts::eWish::Later);
    }

    void AsksWhatToDo() const
    {
        QFETCH(int, option);
        cFakeUser user;
        user.Decisions = {option};
        QTEST(cEntryDrafts::Ask(DraftAt(5), user), "wish");
        QVERIFY(
            user.Asked[0].startsWith(u"Ein nicht gespeicherter Eintrag vom 15.03.2026, 12:05 Uhr wurde aufgehoben:\n"
                                     "12,50+3 - Haushalt; Drogerie - Pfand\nWiederherstellen?"_s));
        QCOMPARE(user.LastDecision.Default, 0); // Enter loses nothing
    }

private:
    std::optional<cEditorBook> m_book;
};

TEST_CLASS(testEntryEditor, QCoreApplication)
#include "testEntryEditor.moc"
