#pragma once

#include "model/cSettingKey.h"
#include "model/modWord.h"

#include <QString>

#include <span>

// Every setting that the program knows. The names are stored in files and registries and stay as they are, whatever
// language they were once made up in. A new key gets its line here and its place in All or Families.
namespace modSettingKey {

using enum eSettingType;
using enum eSettingOwner;
using enum eSettingReset;

// Truth values as they are stored.
inline const QString On = QStringLiteral("Wahr");
inline const QString Off = QStringLiteral("Falsch");

// What has to be known before a book is open
inline const cSettingKey Database{QStringLiteral("Database"), {Text, Program}}; // path; empty: the default one
inline const cSettingKey DatabaseList{QStringLiteral("DatabaseList"), {List, Program}};
inline const cSettingKey LastBackupFolder{QStringLiteral("LastBackupFolder"), {Text, Program}};
inline const cSettingFamily DialogFolder{QStringLiteral("Ordner"), {}, {Text, Program}};       // what is chosen there
inline const cSettingKey Appearance{QStringLiteral("Erscheinungsbild"), {Text, Program}};      // see modAppearance
inline const cSettingKey UpdateWeekly{QStringLiteral("UpdateWoechentlich"), {Truth, Program}}; // empty: not asked yet
inline const cSettingKey LastUpdateInfo{QStringLiteral("LastUpdateInfo"), {Text, Program}}; // the version skipped last

// The book
inline const cSettingKey PasswordActive{QStringLiteral("PasswortAktiv"), {Truth, Book, Kept}};
inline const cSettingKey Password{QStringLiteral("Passwort"), {Text, Book, Kept}}; // its digest
inline const cSettingKey LastVersion{QStringLiteral("LastVersion"), {Text, Book, Kept}};
// The command line notes its version apart: LastVersion is the window's, which resets its view when that one changes.
inline const cSettingKey LastCommandLineVersion{QStringLiteral("LastCommandLineVersion"), {Text, Book}};
inline const cSettingKey FirstInstall{QStringLiteral("FirstInstall"), {Day, Book, Kept}};
inline const cSettingKey Update{QStringLiteral("Update"), {Day, Book, Kept}};
inline const cSettingKey LanguageName{QStringLiteral("LanguageName"), {Text, Book}}; // empty: that of the system
inline const cSettingKey LanguageFormat{QStringLiteral("LanguageFormat"),
                                        {Text, Book, Cleared, QStringLiteral("de-DE")}};
inline const cSettingKey LanguageCurrency{QStringLiteral("LanguageCurrency"), {Text, Book}}; // empty: of the format
inline const cSettingKey BackupCount{QStringLiteral("BackupCount"), {Number, Book, Cleared, QStringLiteral("10")}};
inline const cSettingKey BackupFolder{QStringLiteral("BackupFolder"), {Text, Book}}; // empty: beside the book
inline const cSettingKey BackupLast{QStringLiteral("BackupLast"), {Day, Book}};
inline const cSettingKey BackupFailed{QStringLiteral("BackupFailed"), {Day, Book}};
inline const cSettingKey ReceiptsFailed{QStringLiteral("ReceiptsFailed"), {Day, Book}}; // their copies
inline const cSettingKey OwnRules{QStringLiteral("OwnRules"), {List, Book}};
inline const cSettingKey Corrected{QStringLiteral("GelerntZuletzt"), {List, Book}};          // see modCorrected
inline const cSettingFamily Budget{QStringLiteral("Budget:"), {}, {Text, Book, Kept}};       // category; see modBudget
inline const cSettingFamily CategoryColor{QStringLiteral("Farbe:"), {}, {Text, Book, Kept}}; // main category; "#rrggbb"
inline const cSettingFamily CategoryIcon{
    QStringLiteral("Symbol:"), {}, {Text, Book, Kept}}; // main category; icon's name
inline const cSettingFamily StatementPapers{
    QStringLiteral("Auszüge:"), {}, {List, Book, Kept}};                         // account; its bank's PDFs
inline const cSettingKey People{QStringLiteral("Personen"), {List, Book, Kept}}; // names of the household's members
inline const cSettingFamily AccountShares{QStringLiteral("Anteile:"), {}, {Text, Book, Kept}}; // account; see modPeople
inline const cSettingKey ReceiptsInBackup{QStringLiteral("BelegeSichern"), {Truth, Book, Cleared, Off}};
inline const cSettingKey RemindByDesktop{QStringLiteral("ErinnerungMelden"), {Truth, Book, Cleared, Off}};
inline const cSettingKey RemindedOn{QStringLiteral("ErinnerungGemeldet"), {Day, Book}}; // the day of the last note
inline const cSettingKey SavedViews{QStringLiteral("Ansichten"), {List, Book, Kept}};   // see modSavedView
inline const cSettingKey GameScores{QStringLiteral("SpielBestwerte"), {List, Book, Kept}};
inline const cSettingKey ImportRuns{QStringLiteral("ImportRuns"), {List, Book}};
inline const cSettingKey RowChoices{QStringLiteral("UmsatzWahl"), {List, Book, Kept}}; // see cRowChoices
inline const cSettingFamily BankNumber{QStringLiteral("KTO:"), {}, {Text, Book}};      // number: account of the book
inline const cSettingFamily BankCode{QStringLiteral("KTOBLZ:"), {}, {Text, Book}};     // number: of its bank
inline const cSettingFamily BankBalances{QStringLiteral("SALDO:"), {}, {List, Book}};  // number
inline const cSettingFamily EqualLeftOut{QStringLiteral("GLEICH:"), {}, {List, Book}}; // number
inline const cSettingFamily StartDue{QStringLiteral("ANFANG:"), {}, {Truth, Book}};    // number; see cOpeningBalance
inline const cSettingFamily Reconciled{QStringLiteral("STIMMT:"), {}, {Day, Book}};    // number
inline const cSettingFamily Fetched{QStringLiteral("ABRUF:"), {}, {List, Book}};       // bank code and number
inline const cSettingFamily TableMap{QStringLiteral("MAP:"), {}, {List, Book}};        // digest of a table's header
// Not under "KTO:", where the name of a setting is a number of an account; a digest never begins like this.
inline const cSettingFamily TableAccounts{QStringLiteral("MAP:KTO:"), {}, {List, Book}};
inline const cSettingFamily TableCharset{QStringLiteral("MAP:ZS:"), {}, {Number, Book, Cleared, QStringLiteral("0")}};
inline const cSettingFamily TableSign{QStringLiteral("MAP:VZ:"), {}, {Number, Book}};
inline const cSettingFamily TableBankCode{QStringLiteral("BLZ:"), {}, {Text, Book}};
// Online banking: under the bank code the version of the protocol, under longer names what is kept of a login
inline const cSettingFamily OnlineBank{QStringLiteral("HBCIVBLZ"), {}, {Text, Book, Kept}};
inline const cSettingKey BankProduct{QStringLiteral("HBCIProdukt"), {Text, Book, Kept}}; // registration identifier

// The view of the main window
inline const cSettingKey MainPeriod{QStringLiteral("MainZeitraum"), {Text, View, Cleared, modWord::AktuellesJahr}};
inline const cSettingKey MainPeriodStart{QStringLiteral("MainZeitraumStart"), {Day, View}};
inline const cSettingKey MainPeriodEnd{QStringLiteral("MainZeitraumEnd"), {Day, View}};
inline const cSettingKey MainAccount{QStringLiteral("MainKonto"), {Text, View, Cleared, modWord::AlleKonten}};
inline const cSettingKey MainType{QStringLiteral("MainBuchungsart"), {Text, View, Cleared, modWord::AlleBuchungsarten}};
inline const cSettingKey MainGrouping{QStringLiteral("MainGruppierung"),
                                      {Text, View, Cleared, modWord::KeineGruppierung}};
inline const cSettingKey MainFilter{QStringLiteral("MainFilter"), {Text, View}};
inline const cSettingKey MainPayer{QStringLiteral("MainZahler"), {Text, View}}; // a choice of modPeople
inline const cSettingKey ViewSingle{QStringLiteral("ViewSingleBooking"), {Truth, View, SwitchedOn, On}};
inline const cSettingKey ViewFix{QStringLiteral("ViewFixBooking"), {Truth, View, SwitchedOn, On}};
inline const cSettingKey ViewFuture{QStringLiteral("ViewFutureBooking"), {Truth, View, SwitchedOn, On}};
inline const cSettingKey ViewStart{QStringLiteral("ViewStartBooking"), {Truth, View, SwitchedOn, On}};
inline const cSettingKey ViewAllBalances{QStringLiteral("ViewAccountValueAll"), {Truth, View, SwitchedOn, On}};

// The statements page
inline const cSettingKey HideBooked{QStringLiteral("HideBookedEntries"), {Truth, View, Cleared, On}};
inline const cSettingKey HideOld{QStringLiteral("HideOldImportEntries"), {Truth, View, Cleared, Off}};
inline const cSettingKey HideTitle{QStringLiteral("HideAssignTitle"), {Truth, View, Cleared, Off}};
inline const cSettingKey ImportGrouping{QStringLiteral("ImportGrouping"), {Text, View}};

// The statistics page: the page, and its panes with the report ("") and the two charts ("1", "2"). The account follows
// a rename even while nobody looks at them.
inline const cSettingKey StatisticsAccount{QStringLiteral("StatistikKonto"),
                                           {Text, View, Cleared, modWord::AlleKonten}};
inline const cSettingKey StatisticsReport{QStringLiteral("StatistikBericht"),
                                          {Number, View, Cleared, QStringLiteral("0")}};
inline const cSettingKey StatisticsOrder{QStringLiteral("StatistikOrdnung"),
                                         {Number, View, Cleared, QStringLiteral("0")}};
inline const cSettingKey StatisticsSpending{QStringLiteral("StatistikErstattungen"),
                                            {Number, View, Cleared, QStringLiteral("0")}};
inline const cSettingKey StatisticsPage{QStringLiteral("StatistikSeite"), {Number, View, Cleared, QStringLiteral("0")}};
inline const cSettingKey StatisticsZoom{QStringLiteral("StatistikZoom"),
                                        {Number, View, Cleared, QStringLiteral("100")}};
inline const cSettingFamily PanePeriod{
    QStringLiteral("Statistik"), QStringLiteral("Zeitraum"), {Text, View, Cleared, modWord::AktuellesJahr}};
inline const cSettingFamily PaneFirstMonth{
    QStringLiteral("Statistik"), QStringLiteral("VonMonat"), {Number, View, Cleared, QStringLiteral("1")}};
inline const cSettingFamily PaneLastMonth{
    QStringLiteral("Statistik"), QStringLiteral("BisMonat"), {Number, View, Cleared, QStringLiteral("12")}};
// Else today's
inline const cSettingFamily PaneYear{QStringLiteral("Statistik"), QStringLiteral("Jahr"), {Number, View}};
inline const cSettingFamily PaneChart{QStringLiteral("Statistik"), QStringLiteral("Diagramm"), {Number, View}};
inline const cSettingFamily PaneCompare{QStringLiteral("Statistik"), QStringLiteral("Vergleich"), {Text, View}};
// Months
inline const cSettingFamily PaneForecast{
    QStringLiteral("Statistik"), QStringLiteral("Vorschau"), {Number, View, Cleared, QStringLiteral("3")}};
inline const cSettingFamily PaneAverage{
    QStringLiteral("Statistik"), QStringLiteral("Durchschnitt"), {Truth, View, Cleared, Off}};

// The windows for TANs: width in millimetres, states of the bars in a second
inline const cSettingKey FlickerWidth{QStringLiteral("FlickerBreite"), {Number, View, Cleared, QStringLiteral("65")}};
inline const cSettingKey FlickerSpeed{QStringLiteral("FlickerTempo"), {Number, View, Cleared, QStringLiteral("20")}};
inline const cSettingKey FlickerTurned{QStringLiteral("FlickerGedreht"), {Truth, View, Cleared, Off}};
inline const cSettingKey TanPictureWidth{QStringLiteral("TanBildBreite"),
                                         {Number, View, Cleared, QStringLiteral("60")}};

// Windows and lists
inline const cSettingKey WindowSize{QStringLiteral("WindowSize"), {List, Window, Layout}};
inline const cSettingKey WindowState{QStringLiteral("WindowState"), {Number, Window, Layout, QStringLiteral("0")}};
inline const cSettingKey MainPage{QStringLiteral("MainSeite"), {Number, Window, Cleared, QStringLiteral("0")}};
// Whether the program starts with the overview; else with the page that was left
inline const cSettingKey StartWithOverview{QStringLiteral("StartMitUebersicht"), {Truth, Window, Cleared, On}};
inline const cSettingKey MainList{QStringLiteral("MainList"), {List, Window, Layout}};
inline const cSettingKey ClosedGroups{QStringLiteral("GroupEntries"), {List, Window, Layout}};
inline const cSettingKey SearchList{QStringLiteral("FilterList"), {List, Window, Layout}};
inline const cSettingKey ImportList{QStringLiteral("ImportList"), {List, Window, Layout}};
inline const cSettingKey CategoryList{QStringLiteral("KategorieList"), {List, Window, Layout}};

// All of the above.
[[nodiscard]] std::span<const cSettingKey* const> All();
[[nodiscard]] std::span<const cSettingFamily* const> Families();

// What a reset makes of a stored setting; one that is not known is cleared. Letter case does not count.
[[nodiscard]] eSettingReset ResetOf(const QString& name);

} // namespace modSettingKey
