#include "model/modSettingKey.h"

// Renders the program's windows with the example household into PNG files, without a screen:
//   kontorelle-screenshots FOLDER light|dark|pseudo|english [POINTS [WIDTH HEIGHT]]
// "pseudo" is the light palette in a language of long words (cPseudoLanguage), "english" the light palette in English.
// POINTS is the type size, WIDTH and HEIGHT are the largest that a window may be. The pictures are named after window
// and palette. The scale comes from QT_SCALE_FACTOR, as for every program;
// SCENES names those wanted, all without it.

#include "app/cMainProgram.h"
#include "app/cNavigation.h"
#include "app/cStatementWindows.h"
#include "app/machine/cLanguage.h"
#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtRescue.h"
#include "app/machine/cQtShell.h"
#include "app/machine/cQtUser.h"
#include "app/machine/modLocale.h"
#include "base/cClock.h"
#include "base/cProgress.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "core/modDemo.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "tests/support/cPseudoLanguage.h"
#include "tools/screenshots/cCamera.h"
#include "tools/screenshots/cDemoBook.h"
#include "tools/screenshots/takeAssistant.h"
#include "tools/screenshots/takeBank.h"
#include "tools/screenshots/takeBankSetup.h"
#include "tools/screenshots/takeBudget.h"
#include "tools/screenshots/takeCharts.h"
#include "tools/screenshots/takeHelp.h"
#include "tools/screenshots/takeLooks.h"
#include "tools/screenshots/takePeople.h"
#include "tools/screenshots/takeReceipts.h"
#include "tools/screenshots/takeReview.h"
#include "tools/screenshots/takeSheet.h"
#include "tools/screenshots/takeUpdate.h"
#include "views/chart/cChartMaker.h"
#include "views/chart/cForecast.h"
#include "views/entry/cEntryEditor.h"
#include "views/entry/cSeriesChange.h"
#include "views/ledger/cStatementListModel.h"
#include "views/main/cMainModel.h"
#include "views/main/modAppearance.h"
#include "views/rule/cRuleEditor.h"
#include "views/statement/cAssignListModel.h"
#include "views/statement/cImportReview.h"
#include "views/statistics/cStatisticsModel.h"
#include "views/template/cTemplateManager.h"
#include "windows/book/frmPasswort.h"
#include "windows/chart/cChartBox.h"
#include "windows/chart/cChartPrinter.h"
#include "windows/entry/frmBuchung.h"
#include "windows/entry/frmKorrektur.h"
#include "windows/look/cFlatStyle.h"
#include "windows/look/cStyle.h"
#include "windows/look/modPalette.h"
#include "windows/look/modTone.h"
#include "windows/main/cAccountPanel.h"
#include "windows/main/frmMain.h"
#include "windows/main/frmSuche.h"
#include "windows/print/cListPrinter.h"
#include "windows/report/cReportPane.h"
#include "windows/report/cReportPrinter.h"
#include "windows/statement/frmKontoauszug.h"
#include "windows/statement/frmRegeln.h"
#include "windows/statement/frmZuordnung.h"
#include "windows/statistics/frmStatistik.h"
#include "windows/template/frmKategorie.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

// One program on a book of its own in a temporary profile.
class cStage
{
public:
    enum class eBook { Demo, Empty };

    explicit cStage(eBook kind)
    {
        const QString path = m_folder.filePath(u"Haushalt.db"_s);
        QFile::copy(m_shell.InstalledFile(u"template.dat"_s), path);
        if (kind == eBook::Demo) {
            cBook book(m_user);
            m_isReady = book.Open(path) && modDemo::Write(book.Data(), {.Today = sceneDay});
        }
        m_isReady = m_isToned && m_program.Start({.Book = path});
        m_program.Window().resize(1280, 800);
        Settle();
    }

    [[nodiscard]] bool IsReady() const { return m_isReady; }
    [[nodiscard]] cMainProgram& Program() { return m_program; }

private:
    QTemporaryDir m_folder;
    cQtShell m_shell{m_folder.path()};
    cQtRegistry m_registry{m_folder.path()};
    cConfiguration m_configuration{m_registry};
    // The program sets the palette by this: that of the pictures would not last.
    bool m_isToned = modAppearance::Choose(
        modTone::IsDark(QApplication::palette()) ? eAppearance::Dark : eAppearance::Light, m_configuration);
    cQtUser m_user{m_registry};
    cQtRescue m_rescue;
    cFixedClock m_clock;
    cMainProgram m_program{{m_shell, m_registry, m_user, m_rescue, m_clock}, QStringLiteral(APP_VERSION)};
    bool m_isReady = false;
};

// The entries that an open bank transaction may belong to, and the list without any.
void TakeAssignment(cCamera& camera, cImportReview& review)
{
    const QList<int> ids = review.Rows().OpenIds();
    bool hasFull = false;
    bool hasEmpty = false;
    for (const int id : ids) {
        const std::unique_ptr<cAssignListModel> list = review.StartAssign({id});
        bool& isTaken = list->rowCount() > 0 ? hasFull : hasEmpty;
        if (!isTaken) {
            isTaken = true;
            frmZuordnung window(*list);
            window.show();
            camera.Take(window, list->rowCount() > 0 ? u"zuordnung"_s : u"zuordnung-leer"_s);
        }
    }
}

// A menu with those below it, each open by itself.
void TakeMenu(cCamera& camera, QMenu& menu)
{
    static int number = 0;
    menu.popup({});
    camera.Take(menu, u"menue-%1"_s.arg(++number));
    menu.hide();
    const QList<QAction*> actions = menu.actions();
    for (const QAction* action : actions) {
        if (action->menu() != nullptr) {
            TakeMenu(camera, *action->menu());
        }
    }
}

bool TakeDemo(cCamera& camera)
{
    cStage stage(cStage::eBook::Demo);
    if (!stage.IsReady()) {
        return false;
    }
    cMainProgram& program = stage.Program();
    frmMain& window = program.Window();
    cMainModel& model = program.Model();
    model.ChoosePeriod(u"Aktueller Monat"_s); // what most look at; a new book begins with everything
    window.ShowPage(frmMain::ePage::Overview);
    camera.Take(window, u"uebersicht"_s);
    window.ShowPage(frmMain::ePage::Entries);
    camera.Take(window, u"hauptfenster"_s);
    const QList<QAction*> menus = window.menuBar()->actions();
    for (const QAction* action : menus) {
        TakeMenu(camera, *action->menu());
    }
    model.ChooseAccount(u"Girokonto"_s);
    model.ChooseGrouping(u"Nach Monat"_s);
    camera.Take(window, u"hauptfenster-gruppen"_s);
    model.ChooseAccount({});
    model.ChooseGrouping(modWord::KeineGruppierung);
    model.ChoosePeriod(modWord::AlleBuchungen);
    camera.Take(window, u"hauptfenster-alle"_s);
    program.Navigation().Statements().Show();
    camera.Take(window, u"kontoauszuege"_s);
    TakeAssignment(camera, program.Review());
    cNoProgress progress;
    program.Review().Match({}, progress);
    camera.Take(window, u"kontoauszuege-abgeglichen"_s);
    camera.TakeDialog(u"eintrag-neu"_s, [&] { program.Navigation().OpenNewEntry(); });
    camera.TakeDialog(u"eintrag"_s, [&] { program.Navigation().OpenEntry(15, sceneDay); });
    return true;
}

bool TakeEmpty(cCamera& camera)
{
    cStage stage(cStage::eBook::Empty);
    if (!stage.IsReady()) {
        return false;
    }
    camera.Take(stage.Program().Window(), u"hauptfenster-leer"_s);
    stage.Program().Navigation().Statements().Show();
    camera.Take(stage.Program().Window(), u"kontoauszuege-leer"_s);
    return true;
}

// Categories and accounts of a book that has one of everything: limits, a hidden one, old paths.
bool TakeCategories(cCamera& camera)
{
    cDemoBook scene;
    if (!scene.IsReady()
        || !scene.Book.Data().ChangeEntryCategory(u"Haushalt; Wochenmarkt"_s, u"Haushalt; Getränke"_s)) {
        return false;
    }
    cTemplateManager manager(scene.Tools());
    frmKategorie window(manager);
    window.show();
    (void)window.Select(u"Haushalt; Lebensmittel"_s);
    camera.Take(window, u"kategorien"_s);
    (void)window.Select(u"Haushalt; Wochenmarkt"_s);
    camera.Take(window, u"kategorien-nicht-angelegt"_s);
    (void)window.Select(u"Haushalt"_s);
    camera.Take(window, u"kategorien-haupt"_s);
    (void)window.Select(u"Girokonto"_s);
    camera.Take(window, u"konten"_s);
    return true;
}

cEntryFields SplitFields(cEntryEditor& editor)
{
    cEntryFields fields = editor.Start(u"Girokonto"_s);
    fields.Face = eEntryFace::Split;
    fields.Amount = u"50,00"_s;
    fields.Type = modWord::Ausgabe;
    fields.Parts = {{.Category = u"Haushalt; Lebensmittel"_s, .Description = u"Wocheneinkauf"_s, .Amount = u"31,50"_s},
                    {.Category = u"Haushalt; Putz- und Waschmittel"_s, .Description = {}, .Amount = u"9,99"_s},
                    {.Category = u"Haushalt; Getränke"_s, .Description = u"Pfand zurück"_s, .Amount = u"-3,25"_s}};
    return fields;
}

// The ID of a monthly entry with a corrected period; 0 when it could not be stored.
int AddCorrectedSeries(cEntryEditor& editor, cSeriesChange& change)
{
    cEntryFields fields = editor.Start(u"Girokonto"_s);
    fields.Amount = u"29,90"_s;
    fields.Category = u"Freizeit; Sport"_s;
    fields.Description = u"Beitrag Kletterhalle"_s;
    fields.Type = modWord::Ausgabe;
    fields.Date = QDate(2026, 1, 5);
    fields.Interval = u"Monatlich"_s;
    const bool isStored = editor.Save(fields) == cEntryEditor::eSaved::Saved;
    const int id = editor.SavedId();
    return isStored && change.CorrectPeriod(id, QDate(2026, 8, 5), 1500, u"Halle im Umbau"_s)
            && change.SkipPeriod(id, QDate(2026, 12, 5))
        ? id
        : 0;
}

void TakeForm(cCamera& camera, cEntryEditor& editor, const cEntryFields& fields, const QString& name)
{
    frmBuchung form(editor, fields);
    form.show();
    camera.Take(form, name);
    auto& pages = *form.findChild<QTabWidget*>();
    if (pages.isTabVisible(1)) {
        pages.setCurrentIndex(1);
        camera.Take(form, name + u"-korrekturen"_s);
    }
}

// Every face of the entry editor, and the small form for one occurrence.
bool TakeEditor(cCamera& camera)
{
    cDemoBook scene;
    if (!scene.IsReady()) {
        return false;
    }
    cEntryEditor editor(scene.Tools());
    cSeriesChange change(scene.Tools());
    const int series = AddCorrectedSeries(editor, change);
    const std::optional<cEntryFields> fields = editor.Load(series);
    const auto period = change.StartPeriod(series, QDate(2026, 8, 5));
    if (!fields || !period) {
        return false;
    }
    TakeForm(camera, editor, *fields, u"eintrag-serie"_s);
    TakeForm(camera, editor, SplitFields(editor), u"eintrag-aufgeteilt"_s);
    TakeForm(camera, editor, editor.StartBalance(u"Sparkonto"_s), u"eintrag-startguthaben"_s);
    frmKorrektur correction(change, *period);
    correction.show();
    camera.Take(correction, u"korrektur"_s);
    return true;
}

// The search before anything was typed, and with results.
bool TakeSearch(cCamera& camera)
{
    cStage stage(cStage::eBook::Demo);
    if (!stage.IsReady()) {
        return false;
    }
    stage.Program().Navigation().Open(modCommand::Search);
    auto* window = stage.Program().Window().findChild<frmSuche*>();
    if (window == nullptr) {
        return false;
    }
    camera.Take(*window, u"suchen-leer"_s);
    window->findChild<QLineEdit*>()->setText(u"bäcker"_s);
    QEventLoop typing; // the search waits for a pause
    QTimer::singleShot(500, &typing, &QEventLoop::quit);
    typing.exec();
    camera.Take(*window, u"suchen"_s);
    return true;
}

// A list as it is printed.
void TakePages(cCamera& camera, cPrintable& printer, const QString& name)
{
    constexpr QSize paper(794, 1123); // A4 at 96 dots per inch
    constexpr int margin = 57;
    int count = 1;
    for (int page = 0; page < count; ++page) {
        QImage image(paper, QImage::Format_RGB32);
        image.fill(Qt::white);
        count = printer.LayOut(image, QRectF(image.rect()).adjusted(margin, margin, -margin, -margin));
        QPainter painter(&image);
        printer.PaintPage(painter, page);
        painter.end();
        QLabel sheet;
        sheet.setFixedSize(paper); // by itself it stays smaller than the screen
        sheet.setPixmap(QPixmap::fromImage(image));
        camera.Take(sheet, name + u"-%1"_s.arg(page + 1));
    }
}

// The statement of a bank account: no row, no balance of the bank, one that agrees, one that differs; and on paper.
bool TakeStatement(cCamera& camera)
{
    cDemoBook scene(cDemoBook::eContent::Nothing);
    if (!scene.IsReady()) {
        return false;
    }
    const auto take = [&](const QString& name) {
        cStatementListModel statement(scene.Tools());
        frmKontoauszug window(statement);
        window.show();
        camera.Take(window, name);
    };
    take(u"kontoauszug-leer"_s);
    if (!modDemo::Write(scene.Book.Data(), {.Today = sceneDay})) {
        return false;
    }
    scene.Book.Settings().Reload(); // the household was written past them
    const cImportEntry newest = scene.Book.Data().GetImportEntries().last();
    const cSettingKey balances = modSettingKey::BankBalances.Of(newest.ImportAccount);
    scene.Book.Settings().Delete(balances);
    take(u"kontoauszug-ohne-saldo"_s);
    scene.Book.Settings().Set(
        balances, u"2026-10-31=150000;2026-11-10=140000;"_s + modDate::ToIso(newest.ImportDate) + u"=123456"_s);
    take(u"kontoauszug"_s);
    cStatementListModel statement(scene.Tools());
    cListPrinter printer(statement);
    TakePages(camera, printer, u"druck-kontoauszug"_s);
    return true;
}

// The user's own rules: none yet, a list of them, and a new one made from a transaction.
bool TakeRules(cCamera& camera)
{
    cDemoBook scene;
    if (!scene.IsReady()) {
        return false;
    }
    const auto take = [&](const QString& name, const cImportEntry* row) {
        cRuleEditor rules(scene.Tools());
        if (row != nullptr) {
            rules.StartFrom(*row, u"Haushalt; Lebensmittel"_s);
        }
        frmRegeln window(rules);
        window.show();
        camera.Take(window, name);
    };
    take(u"regeln-leer"_s, nullptr);
    scene.Book.Settings().Set(modSettingKey::OwnRules,
                              u"1;sign=out;text=bäcker|konditorei;category=Haushalt%3b Lebensmittel\n"
                              "1;counterparty=Hausverwaltung Lindenhof;account=Girokonto;category=Wohnung%3b Miete;"
                              "interval=Monatlich;description=Miete Lindenhof\n"
                              "1;off;text=amazon;category=Haushalt%3b Anschaffungen\n2;weekday=7;category=Haushalt"_s);
    take(u"regeln"_s, nullptr);
    const cImportEntryList rows = scene.Book.Data().GetImportEntries();
    take(u"regeln-aus-umsatz"_s, rows.isEmpty() ? nullptr : &rows.constLast());
    return !rows.isEmpty();
}

// Password, national settings and automatic backups.
bool TakeSettings(cCamera& camera)
{
    cStage stage(cStage::eBook::Demo);
    if (!stage.IsReady()) {
        return false;
    }
    cNavigation& navigation = stage.Program().Navigation();
    cPasswordTries tries;
    tries.NoteWrong();
    frmPasswort prompt(tries, [](const QString&) { return false; });
    prompt.show();
    camera.Take(prompt, u"passwort"_s);
    camera.TakeDialog(u"passwort-setzen"_s, [&] { navigation.Open(modCommand::Password); });
    camera.TakeDialog(u"laender"_s, [&] { navigation.Open(modCommand::National); });
    camera.TakeDialog(u"fehlerprotokoll-leer"_s, [&] { navigation.Open(modCommand::ErrorLog); });
    cErrorLog& log = stage.Program().Log();
    log.Record(
        QStringLiteral("Daten exportieren"),
        u"Die Datei '/tmp/Liste.csv' konnte nicht geschrieben werden: Der Datenträger kann nur gelesen werden.\nWas "
        "dort schon stand, ist unverändert."_s);
    log.Record({}, u"ERROR: AddNewEntry\nDie Datenbank kann nur gelesen werden."_s);
    camera.Take(stage.Program().Window(), u"fehlermarke"_s);
    camera.TakeDialog(u"fehlerprotokoll"_s, [&] { navigation.Open(modCommand::ErrorLog); });
    return true;
}

// Every report and the charts, and the entries behind a line.
bool TakeStatistics(cCamera& camera)
{
    cStage stage(cStage::eBook::Demo);
    if (!stage.IsReady()) {
        return false;
    }
    frmMain& window = stage.Program().Window();
    cStatisticsModel& model = stage.Program().Navigation().Statistics();
    window.ShowPage(frmMain::ePage::Statistics);
    for (const auto& [type, name] : {std::pair{eReport::Average, u"durchschnitt"_s},
                                     std::pair{eReport::Sum, u"summe"_s}, std::pair{eReport::Limit, u"limit"_s}}) {
        model.ChooseReport(type);
        camera.Take(window, u"bericht-"_s + name);
        cReportPrinter pages(model.PrintHtml(), QApplication::font().family(), sceneDay);
        TakePages(camera, pages, u"druck-"_s + name);
    }
    model.ChooseReport(eReport::Sum);
    auto* report = window.findChild<cReportPane*>();
    report->ShowFind();
    report->findChild<QLineEdit*>()->setText(u"geldanlage"_s);
    camera.Take(window, u"bericht-suchen"_s);
    report->HideFind();
    camera.TakeDialog(u"seitenansicht-bericht"_s, [&] { stage.Program().Navigation().Open(modCommand::PrintPreview); });
    model.ChoosePage(cStatisticsModel::ePage::Charts);
    window.findChild<frmStatistik*>()->findChild<QTabWidget*>()->setCurrentIndex(1);
    camera.Take(window, u"diagramme"_s);
    model.FirstChart().ChooseKind(eChartKind::ExpenseMonths);
    model.SecondChart().ChooseKind(eChartKind::Balances);
    camera.Take(window, u"diagramme-verlauf"_s);
    cChartPrinter charts({model.FirstChart().Data(), model.SecondChart().Data()}, sceneDay);
    TakePages(camera, charts, u"druck-diagramme"_s);
    model.ShowNode({eReportKind::Expense, u"Wohnung"_s});
    camera.Take(window, u"bericht-eintraege"_s);
    return true;
}

// Every chart by itself, with what makes it difficult: one slice, two periods, ten years, a forecast below a limit, the
// table, and nothing to show.
bool TakeCharts(cCamera& camera)
{
    cDemoBook scene;
    if (!scene.IsReady()) {
        return false;
    }
    cTemplateItem account = scene.Book.Data().FindAccount(u"Girokonto"_s).value_or(cTemplateItem{});
    account.TemplateDefaultValue = u"28800.00"_s;
    cChartMaker maker(scene.Book.Data(), scene.Format, sceneDay);
    if (!scene.Book.Data().ChangeTemplate(account)) {
        return false;
    }
    const auto take = [&](const cChartWish& wish, const QString& name) {
        cChartBox box;
        box.SetData(maker.Make(wish));
        box.resize(box.fontMetrics().averageCharWidth() * 120, box.fontMetrics().height() * 26);
        box.show();
        camera.Take(box, u"diagramm-"_s + name);
        if (wish.Kind == eChartKind::Months) {
            box.ShowTable(true);
            camera.Take(box, u"diagramm-tabelle"_s);
        }
    };
    const modPeriod::cRange year = modPeriod::Year(sceneDay, 0);
    const modPeriod::cRange before = cChartWish::YearBefore(year);
    take({.Kind = eChartKind::ExpensePie, .Range = year}, u"ausgaben"_s);
    take({.Kind = eChartKind::ExpensePie, .Range = year, .Group = u"Haushalt"_s}, u"haushalt"_s);
    take({.Kind = eChartKind::ExpensePie, .Range = year, .Second = before}, u"ausgaben-vorjahr"_s);
    take({.Kind = eChartKind::IncomePie, .Range = year}, u"einnahmen"_s);
    take({.Kind = eChartKind::Months, .Range = year}, u"monate"_s);
    take({.Kind = eChartKind::Months, .Range = {sceneDay.addYears(-3), sceneDay}}, u"drei-jahre"_s);
    take({.Kind = eChartKind::Months, .Range = year, .Second = before}, u"monate-vorjahr"_s);
    take({.Kind = eChartKind::ExpenseMonths, .Range = year}, u"kategorien"_s);
    take({.Kind = eChartKind::ExpenseMonths, .Range = year, .Second = before}, u"kategorien-vorjahr"_s);
    take({.Kind = eChartKind::Balances, .Range = year, .ForecastMonths = 6}, u"verlauf"_s);
    take({.Kind = eChartKind::Balances, .Range = year, .Account = u"Girokonto"_s, .ForecastMonths = 12},
         u"girokonto"_s);
    take(
        {.Kind = eChartKind::ExpensePie, .Range = {sceneDay.addYears(30), sceneDay.addYears(31)}, .ShowsFuture = false},
        u"leer"_s);
    cAccountListModel accounts(scene.Format);
    accounts.SetAccounts(scene.Book.Data().GetAccounts(),
                         QHash<QString, qint64>{{u"Girokonto"_s, 312345}, {u"Bargeld"_s, 8000}}, {});
    accounts.SetWarnings(cForecast(scene.Book.Data(), sceneDay).Warnings());
    cAccountPanel panel(accounts);
    panel.SetTitle(u"Kontostände"_s);
    panel.show();
    camera.Take(panel, u"konten-warnung"_s);
    return true;
}

// The list as it is printed, and its preview.
bool TakePrinted(cCamera& camera)
{
    cStage stage(cStage::eBook::Demo);
    if (!stage.IsReady()) {
        return false;
    }
    cMainModel& model = stage.Program().Model();
    model.ChooseAccount(u"Girokonto"_s);
    model.ChoosePeriod(u"Aktuelles Quartal"_s);
    model.ChooseGrouping(u"Nach Monat"_s);
    camera.TakeDialog(u"seitenansicht"_s, [&] { stage.Program().Navigation().Open(modCommand::PrintPreview); });

    cListPrinter printer(
        model.Entries(), stage.Program().Window().EntryColumns(),
        {u"Buchungen"_s, {u"Konto: Girokonto"_s}, u"Haushalt"_s, {{u"Summe"_s, model.SumTexts().Total}}});
    TakePages(camera, printer, u"druck"_s);
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3 || !QDir().mkpath(arguments.at(1))) {
        std::fputs("kontorelle-screenshots FOLDER light|dark|pseudo|english [POINTS [WIDTH HEIGHT]]\n", stderr);
        return 2;
    }
    const QString& look = arguments.at(2);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QApplication::setStyle(new cStyle(new cFlatStyle));
    QApplication::setPalette(look == u"dark" ? modPalette::Dark() : modPalette::Light());
    cPseudoLanguage pseudo;
    if (look == u"pseudo") {
        QCoreApplication::installTranslator(&pseudo);
    }
    const QTemporaryDir profile;
    cLanguage language;
    if (look == u"english") {
        qputenv("LC_ALL", "en_GB.UTF-8"); // the books of the pictures have no language of their own
        language.Use(modLocale::Messages(), cQtShell(profile.path()));
    }
    if (const int points = arguments.value(3).toInt(); points > 0) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    const QSize screen = arguments.size() > 5 ? QSize(arguments.at(4).toInt(), arguments.at(5).toInt()) : QSize();
    cCamera camera(arguments.at(1), look, screen);
    const std::pair<QString, bool (*)(cCamera&)> scenes[] = {
        {u"update"_s, TakeUpdate},     {u"statement"_s, TakeStatement},
        {u"demo"_s, TakeDemo},         {u"assistant"_s, TakeAssistant},
        {u"bank"_s, TakeBank},         {u"empty"_s, TakeEmpty},
        {u"editor"_s, TakeEditor},     {u"categories"_s, TakeCategories},
        {u"search"_s, TakeSearch},     {u"rules"_s, TakeRules},
        {u"review"_s, TakeReview},     {u"bank-setup"_s, TakeBankSetup},
        {u"settings"_s, TakeSettings}, {u"statistics"_s, TakeStatistics},
        {u"charts"_s, TakeCharts},     {u"printed"_s, TakePrinted},
        {u"help"_s, TakeHelp},         {u"receipts"_s, TakeReceipts},
        {u"budget"_s, TakeBudget},     {u"more-charts"_s, TakeMoreCharts},
        {u"people"_s, TakePeople},     {u"sheet"_s, TakeSheet},
        {u"looks"_s, TakeLooks}};
    const QStringList wanted = qEnvironmentVariable("SCENES").split(u' ', Qt::SkipEmptyParts);
    bool isGood = true;
    for (const auto& [name, take] : scenes) {
        isGood = (!wanted.isEmpty() && !wanted.contains(name)) || (take(camera) && isGood);
    }
    return isGood && camera.IsGood() ? 0 : 1;
}
