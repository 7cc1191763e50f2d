#include "core/cBook.h"
#include "core/cErrorLog.h"
#include "cReceiptScene.h"
#include "everyWindow.h"
#include "model/modSettingKey.h"
#include "peopleWindows.h"
#include "support/cFakeHttps.h"
#include "support/cFakeNavigator.h"
#include "support/cPseudoLanguage.h"
#include "support/cTestClass.h"
#include "support/modUpdateAnswer.h"
#include "support/queued.h"
#include "support/testBook.h"
#include "support/windowFaults.h"
#include "support/windowHands.h"
#include "support/windowTexts.h"
#include "tanQuestion.h"
#include "testbank/cTestBank.h"
#include "testbank/cTestBankUser.h"
#include "testbank/cTestHttps.h"
#include "views/bank/cApprovalWait.h"
#include "views/bank/cBankDirectory.h"
#include "views/bank/cBankFetch.h"
#include "views/bank/cBankListModel.h"
#include "views/bank/cBankLogView.h"
#include "views/bank/cBankSetup.h"
#include "views/bank/cTanEntry.h"
#include "views/book/cBackupSettings.h"
#include "views/book/cBookCheck.h"
#include "views/book/cNationalSettings.h"
#include "views/book/cPasswordFlow.h"
#include "views/budget/cBudgetModel.h"
#include "views/chart/cChartMaker.h"
#include "views/entry/cEntryEditor.h"
#include "views/entry/cSeriesChange.h"
#include "views/help/cErrorLogView.h"
#include "views/help/cManualBrowser.h"
#include "views/help/cUpdateCheck.h"
#include "views/ledger/cStatementListModel.h"
#include "views/list/cSearchModel.h"
#include "views/main/cMainModel.h"
#include "views/overview/cOverviewModel.h"
#include "views/rule/cRuleEditor.h"
#include "views/sheet/cManyChange.h"
#include "views/statement/cAssignListModel.h"
#include "views/statement/cImportAssistant.h"
#include "views/statement/cImportReview.h"
#include "views/statement/cStatementDesk.h"
#include "views/statement/cStatementFiles.h"
#include "views/statistics/cStatisticsModel.h"
#include "views/template/cTemplateManager.h"
#include "windows/bank/frmAbruf.h"
#include "windows/bank/frmBankAssistent.h"
#include "windows/bank/frmBankzugaenge.h"
#include "windows/bank/frmPin.h"
#include "windows/bank/frmProtokoll.h"
#include "windows/bank/frmTan.h"
#include "windows/book/frmLaender.h"
#include "windows/book/frmPasswort.h"
#include "windows/book/frmPruefung.h"
#include "windows/book/frmSicherungen.h"
#include "windows/budget/frmBudget.h"
#include "windows/chart/cChartBox.h"
#include "windows/entry/frmBuchung.h"
#include "windows/entry/frmKorrektur.h"
#include "windows/help/frmFehlerprotokoll.h"
#include "windows/help/frmHandbuch.h"
#include "windows/help/frmUpdate.h"
#include "windows/main/frmMain.h"
#include "windows/main/frmMehrere.h"
#include "windows/main/frmSuche.h"
#include "windows/overview/frmUebersicht.h"
#include "windows/statement/frmImport.h"
#include "windows/statement/frmImportAssistent.h"
#include "windows/statement/frmImportReview.h"
#include "windows/statement/frmKontoauszug.h"
#include "windows/statement/frmRegeln.h"
#include "windows/statement/frmUmsatzKategorie.h"
#include "windows/statement/frmZuordnung.h"
#include "windows/statistics/frmStatistik.h"
#include "windows/template/frmKategorie.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTranslator>
#include <QTreeWidget>

#include <algorithm>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize smallScreen(784, 552); // 800 x 600 without what frame and bar take
const QString bankWords =
    u"Stecken Sie Ihre Karte in den TAN-Generator und drücken Sie \"F\". Halten Sie den Generator "
    "vor die animierte Grafik."_s;

// A book with what the windows can show: a series with a correction, a purchase in parts, a row from the bank.
struct cScene
{
    cScene()
    {
        Series = Book.Add({.Text = u"Miete"_s, .Interval = u"Monatlich"_s});
        cEntryItemFixMod fixMod;
        fixMod.EntryRelation = Series.ID;
        fixMod.EntryModType = modWord::Betrag;
        fixMod.EntryStartDate = QDate(2026, 4, 1);
        fixMod.EntryEndDate = QDate(2026, 4, 30);
        QVERIFY(Book.Data.AddNewEntryMod(fixMod));
        Part = Book.Add([](cEntryItem& entry) { entry.EntryValue = 500; });
        Part.EntryFlags = u"split=%1"_s.arg(Part.ID);
        QVERIFY(Book.Data.ChangeEntry(Part));
        (void)Book.Add([this](cEntryItem& entry) { entry.EntryFlags = Part.EntryFlags; });
        (void)Book.Add([](cEntryItem& entry) { entry.EntryValue = 12345678; });
        cImportEntry row;
        row.ImportAccount = u"1234567"_s;
        row.ImportDate = QDate(2026, 3, 12);
        row.ImportPurpose = u"Einkauf"_s;
        row.ImportValue = -1250;
        Book.Settings->Set(modSettingKey::BankNumber.Of(u"1234567"_s), u"Girokonto"_s);
        QVERIFY(Book.Data.AddNewImportEntry(row));
        Row = row.ID;
    }

    cTestBook Book;
    cEntryItem Series;
    cEntryItem Part;
    int Row = 0;
    cFakeNavigator Navigator;
    cMainModel Model{Book.Tools, {Book.Configuration, Book.Shell, Navigator, Book.Path()}};
    cImportReview Review{Book.Tools};
    cStatisticsModel Statistics{Book.Tools, {Book.Shell, Navigator, Model}};
    cOutlook Outlook{Book.Tools};
    cOverviewModel Overview{Book.Tools, {Navigator, Model, Outlook}};
    cTestBook EmptyBook;
    cMainModel EmptyMain{EmptyBook.Tools, {EmptyBook.Configuration, EmptyBook.Shell, Navigator, EmptyBook.Path()}};
    cOutlook EmptyOutlook{EmptyBook.Tools};
    cOverviewModel EmptyOverview{EmptyBook.Tools, {Navigator, EmptyMain, EmptyOutlook}};
    cEntryEditor Editor{Book.Tools};
    std::optional<cManyChange> Many;
    cSeriesChange Change{Book.Tools};
    cTemplateManager Manager{Book.Tools};
    cSearchModel SearchModel{Book.Tools};
    cPasswordFlow Password{Book.Data, Book.Configuration, Book.User};
    cBook File{Book.User};
    cBackupSettings Backups{{File, Book.Configuration, Book.User, Book.Shell, Book.Clock}};
    std::unique_ptr<cAssignListModel> Candidates;
    cReceiptScene Receipts;
    std::unique_ptr<cImportReview> OneImport;
    std::unique_ptr<cImportAssistant> Assistant;
    std::unique_ptr<cStatementListModel> Statement;
    std::unique_ptr<cTanEntry> Tan;
    cApprovalWait Approval{Book.Clock};
    cBankLogView Log{u"HNHBK:1:3+000000000123+300+0+1'"_s, {}, {Book.User, Book.Shell, Book.Clock}};
    cRuleEditor Rules{Book.Tools};
    cBookCheck Check{Book.Data, Book.Format, Book.Clock.Today()};
    cNationalSettings National{Book.Tools, Book.Configuration, Book.Format};
    cTestBank Bank{BankProfile()};
    cTestHttps Https{Bank};
    cTestBankUser Customer{Bank};
    cBankDirectory Directory{Book.Shell};
    cBankSetup Setup{{Book.Tools, Directory, Https, Customer, QStringLiteral("1.0.0")}};
    cFakeHttps Maker;
    cUpdateCheck Update{
        Book.Tools, Book.Configuration, Maker, {u"https://updates.kontorelle.example/versionen.xml"_s, u"0.1.0"_s}};
    std::unique_ptr<cBankListModel> Banks;
    std::optional<cBudgetModel> Budget;
    std::unique_ptr<cBankFetch> Fetch;
    std::unique_ptr<cManualBrowser> Manual;
    cErrorLog Failures{{Book.Shell.StateFolder(), u"kontorelle"_s, u"0.1.0"_s}, Book.Clock};
    std::unique_ptr<cErrorLogView> FailureView;

    // Several procedures and media, an account without statements, and long names.
    static cBankProfile BankProfile()
    {
        cBankProfile profile;
        profile.Methods = {{.Function = "912", .Name = "chipTAN optisch (Flickercode am Bildschirm)"},
                           {.Function = "913", .Name = "SMS", .MediumRequired = "2"}};
        profile.Media = {"Mobiltelefon", "Tablet"};
        profile.Accounts = {
            {.Number = "111", .Iban = "DE02100200300001234567", .Product = "Privatgiro Komfort & Co"},
            {.Number = "222", .Iban = "DE03100200300001234568", .Product = "Depot A", .Orders = "HKSAL:1"},
            {.Number = "333", .Product = "Tagesgeld"}};
        return profile;
    }

    void SetUpTo(cBankSetup::ePage page)
    {
        Setup.ChooseCode(QStringLiteral("12345678"));
        Setup.SetUrl(Https.Url);
        Setup.SetUserId(QStringLiteral("testuser"));
        Setup.SetProductId(QStringLiteral("PRODUKTID0123456789012345"));
        while (Setup.Page() != page) {
            QVERIFY(Setup.Next());
        }
    }
};

using fnMake = std::function<std::unique_ptr<QWidget>(cScene&)>;

std::unique_ptr<QWidget> MakeEditor(cScene& scene, const std::optional<cEntryFields>& fields)
{
    return fields ? std::make_unique<frmBuchung>(scene.Editor, *fields) : nullptr;
}

std::unique_ptr<QWidget> MakeBankAssistant(cScene& scene, cBankSetup::ePage page)
{
    scene.SetUpTo(page);
    return std::make_unique<frmBankAssistent>(scene.Setup, scene.Book.Clock.Today());
}

std::unique_ptr<QWidget> MakeAssistant(cScene& scene, const QString& file)
{
    scene.Assistant = scene.Review.Files().StartAssistant(QStringLiteral(TEST_DATA "/") + file);
    return scene.Assistant ? std::make_unique<frmImportAssistent>(*scene.Assistant) : nullptr;
}

std::unique_ptr<QWidget> MakeTan(cScene& scene, eTanDisplay display)
{
    cTanQuestion question = TanQuestion(display);
    question.Challenge = u"Umsatzabfrage\r\n"_s + bankWords;
    scene.Book.Settings->Set(modSettingKey::FlickerWidth, u"90"_s);
    scene.Tan = std::make_unique<cTanEntry>(question, *scene.Book.Settings);
    return std::make_unique<frmTan>(*scene.Tan);
}

// What stays as it is in every language: what the book holds and its file's name, the files that are read and the names
// of their layouts, what banks say, the names of languages and of the program, and the months of the toolkit.
QStringList Untranslatable(cScene& scene)
{
    QStringList texts = u"Kontorelle|Deutsch|English|Miete|Einkauf|Volksbank Raiffeisenbank Ahornstadt-Hohenfels eG|"
                        "Sparkasse Ahornstadt|chipTAN optisch (Flickercode am Bildschirm)|SMS|TAN-Eingabe:|"
                        "Smart-TAN plus optisch, Karte 1234567890|Anmeldename|Umsatzabfrage"_s.split(u'|');
    texts << bankWords << scene.Book.Path() << QFileInfo(scene.Book.Path()).completeBaseName();
    const cBankProfile profile = cScene::BankProfile();
    for (const cOfferedAccount& account : profile.Accounts) {
        texts << QString::fromUtf8(account.Product).replace(u'&', u"&&"_s);
    }
    for (const QByteArray& medium : profile.Media) {
        texts << QString::fromUtf8(medium);
    }
    texts += {u"dkb.csv"_s, u"giro.sta"_s, u"Testbank"_s, u"testuser"_s, u"kunde1"_s};
    texts += cReceiptScene::Names() + cReceiptScene::Papers()
        << QFileInfo(scene.Book.Path()).absolutePath() + u"/Belege"_s;
    texts += {u"Daten exportieren"_s, u"Die Datei ist schreibgeschützt."_s}; // as they were taken down
    texts += cStatementDesk::LayoutNames();
    if (scene.Manual) { // which is German
        for (const auto& section : scene.Manual->Manual().Sections()) {
            texts << section.Title;
        }
    }
    texts += {u"UTF"_s, u"Windows"_s, u"CP850 (DOS)"_s, u"BE"_s};
    if (scene.Assistant) { // the headlines of its table
        QFile table(QStringLiteral(TEST_DATA "/csv/dkb.csv"));
        texts += table.open(QIODevice::ReadOnly)
            ? QString::fromUtf8(table.readAll()).split(QRegularExpression(u"[;,\"\n]+"_s), Qt::SkipEmptyParts)
            : QStringList();
    }
    for (const cTemplateItem& item : scene.Book.Data.GetTemplates()) {
        texts << item.TemplateCategory << item.TemplateName;
    }
    for (int month = 1; month <= 12; ++month) {
        texts << QLocale().standaloneMonthName(month) << QLocale().standaloneMonthName(month, QLocale::ShortFormat);
    }
    texts.removeAll(QString());
    std::sort(texts.begin(), texts.end(), [](const QString& a, const QString& b) { return a.size() > b.size(); });
    return texts;
}

QStringList FaultsOfAllPages(QWidget& window,
                             const std::function<QStringList(const QWidget&)>& find = modWindowFaults::All)
{
    QStringList faults;
    modWindowHands::ForEachPage(window, [&] {
        RunQueued();
        faults += find(window);
    });
    faults.removeDuplicates();
    return faults;
}

const std::vector<std::pair<const char*, fnMake>> everyWindow{
    {"main window",
     [](cScene& scene) {
         modPeopleWindows::Fill(scene.Book.Tools); // who asks for the payer
         auto window = std::make_unique<frmMain>(scene.Model);
         window->ShowFailureMark(true);
         window->StatementsPage().layout()->addWidget(new frmImport(scene.Review, &window->StatementsPage()));
         scene.Model.RestoreView(false);
         scene.Statistics.Restore();
         window->StatisticsPage().layout()->addWidget(new frmStatistik(scene.Statistics, &window->StatisticsPage()));
         window->OverviewPage().layout()->addWidget(new frmUebersicht(scene.Overview, &window->OverviewPage()));
         scene.Overview.Read();
         return window;
     }},
    {"overview of an empty book",
     [](cScene& scene) {
         scene.EmptyOverview.Read();
         auto window = std::make_unique<frmUebersicht>(scene.EmptyOverview);
         scene.EmptyOverview.Read();
         return window;
     }},
    {"new entry", [](cScene& scene) { return MakeEditor(scene, scene.Editor.Start({})); }},
    {"series", [](cScene& scene) { return MakeEditor(scene, scene.Editor.Load(scene.Series.ID)); }},
    {"split entry", [](cScene& scene) { return MakeEditor(scene, scene.Editor.Load(scene.Part.ID)); }},
    {"start balance", [](cScene& scene) { return MakeEditor(scene, scene.Editor.StartBalance({})); }},
    {"correction",
     [](cScene& scene) {
         const auto fields = scene.Change.StartPeriod(scene.Series.ID, QDate(2026, 4, 10));
         return fields ? std::make_unique<frmKorrektur>(scene.Change, *fields) : nullptr;
     }},
    {"several entries",
     [](cScene& scene) {
         scene.Many.emplace(scene.Book.Tools, QList<cEntryListModel::cKey>{{scene.Series.ID, {}}, {scene.Part.ID, {}}});
         return std::make_unique<frmMehrere>(*scene.Many);
     }},
    {"manual",
     [](cScene& scene) {
         QFile::link(QStringLiteral(MANUAL), scene.Book.Shell.InstalledFile(u"handbuch"_s));
         scene.Manual = std::make_unique<cManualBrowser>(scene.Book.Shell, scene.Book.User);
         scene.Manual->Open(u"02-kontoauszug.html"_s);
         return std::make_unique<frmHandbuch>(*scene.Manual);
     }},
    {"categories", [](cScene& scene) { return std::make_unique<frmKategorie>(scene.Manager); }},
    {"search",
     [](cScene& scene) {
         modPeopleWindows::Fill(scene.Book.Tools);
         return std::make_unique<frmSuche>(scene.SearchModel, scene.Model.Cells());
     }},
    {"assignment",
     [](cScene& scene) {
         scene.Candidates = scene.Review.StartAssign({scene.Row});
         return std::make_unique<frmZuordnung>(*scene.Candidates);
     }},
    {"import assistant with a table", [](cScene& scene) { return MakeAssistant(scene, u"csv/dkb.csv"_s); }},
    {"import assistant with a statement", [](cScene& scene) { return MakeAssistant(scene, u"mt940/giro.sta"_s); }},
    {"account statement",
     [](cScene& scene) {
         scene.Book.Settings->Set(modSettingKey::BankBalances.Of(u"1234567"_s), u"2026-03-01=10000;2026-03-31=5000"_s);
         scene.Statement = std::make_unique<cStatementListModel>(scene.Book.Tools);
         return std::make_unique<frmKontoauszug>(*scene.Statement);
     }},
    {"one import",
     [](cScene& scene) {
         scene.Book.Settings->Set(modSettingKey::ImportRuns, u"%1-%1"_s.arg(scene.Row));
         scene.OneImport = scene.Review.StartImportReview();
         return std::make_unique<frmImportReview>(*scene.OneImport);
     }},
    {"category of transactions",
     [](cScene& scene) { return std::make_unique<frmUmsatzKategorie>(scene.Review, QList<int>{scene.Row}); }},
    {"chart",
     [](cScene& scene) {
         auto box = std::make_unique<cChartBox>();
         cChartMaker maker(scene.Book.Data, scene.Book.Format, scene.Book.Clock.Today());
         const cChartWish wish{.Kind = eChartKind::ExpensePie, .Group = u"Haushalt"_s};
         box->SetData(maker.Make(wish)); // with the way back to all categories
         return box;
     }},
    {"password", [](cScene& scene) { return std::make_unique<frmPasswort>(scene.Password); }},
    {"password prompt",
     [](cScene& scene) {
         return std::make_unique<frmPasswort>(scene.Password.Tries(), [](const QString&) { return false; });
     }},
    {"receipts of an entry", [](cScene& scene) { return scene.Receipts.Make(scene.Book, scene.Part); }},
    {"statements of an account as PDF",
     [](cScene& scene) { return scene.Receipts.MakePapers(scene.Book, u"1234567"_s); }},
    {"budget", [](cScene& scene) { return std::make_unique<frmBudget>(scene.Budget.emplace(scene.Book.Tools)); }},
    {"automatic backups", [](cScene& scene) { return std::make_unique<frmSicherungen>(scene.Backups); }},
    {"rules",
     [](cScene& scene) {
         cOwnRule rule;
         rule.Text = u"einkauf"_s;
         rule.Category = u"Haushalt; Lebensmittel"_s;
         scene.Rules.SetDraft(rule);
         return scene.Rules.Save() ? std::make_unique<frmRegeln>(scene.Rules) : nullptr;
     }},
    {"people", [](cScene& scene) { return modPeopleWindows::People(scene.Book.Tools); }},
    {"settlement", [](cScene& scene) { return modPeopleWindows::Settlement(scene.Book.Tools); }},
    {"check of the book",
     [](cScene& scene) {
         scene.Book.Database.Execute("UPDATE data SET EntryDate = '31.02.2026'");
         scene.Check.Reload();
         return std::make_unique<frmPruefung>(scene.Check);
     }},
    {"bank assistant, bank",
     [](cScene& scene) {
         auto window = MakeBankAssistant(scene, cBankSetup::ePage::Bank);
         window->findChild<QCheckBox*>()->setChecked(true); // all that there is
         return window;
     }},
    {"bank assistant, login", [](cScene& scene) { return MakeBankAssistant(scene, cBankSetup::ePage::Login); }},
    {"bank assistant, login that is changed",
     [](cScene& scene) {
         scene.SetUpTo(cBankSetup::ePage::Done);
         scene.Setup.Load(cBankState(scene.Setup.State()));
         return std::make_unique<frmBankAssistent>(scene.Setup, scene.Book.Clock.Today());
     }},
    {"bank assistant, procedure",
     [](cScene& scene) {
         scene.SetUpTo(cBankSetup::ePage::Method);
         scene.Setup.ChooseMethod(1);
         (void)scene.Setup.Next(); // the bank wants a medium
         return std::make_unique<frmBankAssistent>(scene.Setup, scene.Book.Clock.Today());
     }},
    {"bank assistant, accounts", [](cScene& scene) { return MakeBankAssistant(scene, cBankSetup::ePage::Accounts); }},
    {"bank logins",
     [](cScene& scene) {
         scene.SetUpTo(cBankSetup::ePage::Done);
         scene.Banks = std::make_unique<cBankListModel>(scene.Book.Tools);
         return std::make_unique<frmBankzugaenge>(*scene.Banks);
     }},
    {"TAN with bars", [](cScene& scene) { return MakeTan(scene, eTanDisplay::Flicker); }},
    {"TAN with a picture", [](cScene& scene) { return MakeTan(scene, eTanDisplay::Picture); }},
    {"approval",
     [](cScene& scene) {
         cApproval approval;
         approval.Bank = u"Sparkasse Ahornstadt"_s;
         approval.IsAutomatic = false;
         approval.ValidUntil = scene.Book.Clock.Now().addSecs(300);
         scene.Approval.Start(approval);
         return std::make_unique<frmTan>(scene.Approval);
     }},
    {"PIN",
     [](cScene&) {
         return std::make_unique<frmPin>(
             cPinQuestion{u"Sparkasse Ahornstadt"_s, u"12345678"_s, u"kunde1"_s, u"Anmeldename"_s});
     }},
    {"bank log", [](cScene& scene) { return std::make_unique<frmProtokoll>(scene.Log); }},
    {"update that was found",
     [](cScene& scene) {
         const QByteArray releases =
             modUpdateAnswer::Release("0.2.0", "<notes>- Neues</notes>" + modUpdateAnswer::File());
         scene.Maker.Answers.push_back({eHttpsFault::None, modUpdateAnswer::All(releases), {}});
         scene.Update.Look();
         return std::make_unique<frmUpdate>(scene.Update);
     }},
    {"update without a connection", [](cScene& scene) { return std::make_unique<frmUpdate>(scene.Update); }},
    {"error log",
     [](cScene& scene) {
         scene.Failures.Record(QStringLiteral("Daten exportieren"), QStringLiteral("Die Datei ist schreibgeschützt."));
         scene.FailureView = std::make_unique<cErrorLogView>(cErrorLogView::cParts{
             scene.Failures, scene.Book.User, scene.Book.Shell, scene.Book.Clock, QStringLiteral("Diagnose")});
         return std::make_unique<frmFehlerprotokoll>(*scene.FailureView);
     }},
    {"national settings", [](cScene& scene) { return std::make_unique<frmLaender>(scene.National); }},
    {"fetch",
     [](cScene& scene) {
         scene.SetUpTo(cBankSetup::ePage::Done);
         scene.Fetch = std::make_unique<cBankFetch>(scene.Book.Tools, scene.Review.Files(),
                                                    cBankFetch::cPorts{scene.Https, scene.Customer, u"1.0.0"_s});
         return std::make_unique<frmAbruf>(*scene.Fetch);
     }},
};

} // namespace

Q_DECLARE_METATYPE(fnMake)

// Nobody needs a mouse, a screen reader finds a name for everything, and no text is cut off, also in large type.
class testEveryWindow final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What the others look for is found in a window that has it.
    void FaultsAreFound()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* first = new QPushButton(u"&Speichern"_s);
        auto* second = new QPushButton(u"&Suchen"_s);
        auto* nameless = new QLineEdit;
        auto* label = new QLabel(u"Ein Text, der nicht hineinpasst"_s);
        label->setFixedWidth(20);
        auto* day = new QTreeWidget;
        day->setAccessibleName(u"Tage"_s);
        day->setHeaderLabels({u"Tag"_s, u"Bis"_s});
        day->addTopLevelItem(new QTreeWidgetItem({u"01.01.2026"_s, u"31.01.2026"_s}));
        day->setColumnWidth(0, 30);
        for (QWidget* widget : QWidgetList{first, second, nameless, label, day, new QCheckBox(u"b&is"_s)}) {
            layout->addWidget(widget);
        }
        window.show();
        QCOMPARE(modWindowFaults::DoubleMnemonics(window).size(), 1);
        QCOMPARE(modWindowFaults::Nameless(window).size(), 1);
        QCOMPARE(modWindowFaults::Clipped(window).size(), 1);
        QCOMPARE(modWindowFaults::MisreadMnemonics(window).size(), 1);
        QCOMPARE(modWindowFaults::CutValues(window).size(), 1);
        window.setMinimumWidth(smallScreen.width() + 1);
        QCOMPARE(modWindowFaults::TooLarge(window, smallScreen).size(), 1);
        const QString pseudo = cPseudoLanguage::Of(u"{0} &Einträge von <b>Konten</b>"_s);
        QVERIFY2(pseudo.contains(u"{0}"_s) && pseudo.contains(u"<b>"_s) && pseudo.size() > 39, qPrintable(pseudo));
        QVERIFY(!modWindowTexts::IsUntranslated(u"1.234,50 € "_s + pseudo + u" (Ctrl+N)"_s, {}));
        QVERIFY(!modWindowTexts::IsUntranslated(u"Miete: [Sáldóó]"_s, {u"Miete"_s}));
        QVERIFY(modWindowTexts::IsUntranslated(pseudo + u" Saldo"_s, {u"Miete"_s}));
    }

    void CanBeReadAndOperated_data()
    {
        QTest::addColumn<fnMake>("Make");
        QTest::addColumn<int>("Points");
        for (const auto& [name, make] : everyWindow) {
            for (const int points : {9, 12, 16}) {
                QTest::addRow("%s, %d points", name, points) << make << points;
            }
        }
    }

    void CanBeReadAndOperated()
    {
        QFETCH(fnMake, Make);
        QFETCH(int, Points);
        const QFont font = QApplication::font();
        QFont scaled = font;
        scaled.setPointSize(Points);
        QApplication::setFont(scaled);
        cScene scene;
        const std::unique_ptr<QWidget> window = Make(scene);
        QApplication::setFont(font);
        QVERIFY(window);
        window->show();
        QStringList faults = FaultsOfAllPages(*window);
        window->resize(smallScreen);
        faults += modWindowFaults::TooLarge(*window, smallScreen) + FaultsOfAllPages(*window);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    void IsTranslatedWhole_data()
    {
        QTest::addColumn<fnMake>("Make");
        for (const auto& [name, make] : everyWindow) {
            QTest::addRow("%s", name) << make;
        }
    }

    // In a language with long words nothing is left in German and nothing is cut.
    void IsTranslatedWhole()
    {
        QFETCH(fnMake, Make);
        cPseudoLanguage language;
        QCoreApplication::installTranslator(&language); // taken away by its destructor
        cScene scene;
        const std::unique_ptr<QWidget> window = Make(scene);
        QVERIFY(window);
        const QStringList allowed = Untranslatable(scene);
        window->show();
        QStringList faults = FaultsOfAllPages(*window, [&allowed](const QWidget& shown) {
            QStringList found = modWindowFaults::Clipped(shown);
            for (const modWindowTexts::cShown& text : modWindowTexts::Of(shown)) {
                if (modWindowTexts::IsUntranslated(text.Text, allowed)) {
                    found.append(u"not translated: '%1' (%2)"_s.arg(text.Text, text.Where));
                }
            }
            return found;
        });
        for (const QString& fault : faults) {
            qWarning("%s", qPrintable(fault)); // a message of the test itself would be cut
        }
        QVERIFY(faults.isEmpty());
    }

    void EnglishLettersAreSingle_data() { IsTranslatedWhole_data(); }
    void EnglishLettersAreSingle()
    {
        QFETCH(fnMake, Make);
        QTranslator english;
        QVERIFY(english.load(QStringLiteral(ENGLISH)));
        QCoreApplication::installTranslator(&english); // taken away by its destructor
        cScene scene;
        const std::unique_ptr<QWidget> window = Make(scene);
        window->show();
        const QStringList faults = FaultsOfAllPages(*window, modWindowFaults::Letters);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

std::vector<cWindowMaker> EveryWindow()
{
    std::vector<cWindowMaker> makers;
    makers.reserve(everyWindow.size());
    for (const auto& [name, make] : everyWindow) {
        makers.push_back({name, [make = make] {
                              const auto scene = std::make_shared<cScene>();
                              return cOpenWindow{scene, make(*scene)};
                          }});
    }
    return makers;
}

TEST_CLASS(testEveryWindow, QApplication)
#include "testEveryWindow.moc"
