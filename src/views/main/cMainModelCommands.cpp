#include "base/cClock.h"
#include "base/cShell.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "views/entry/cSeriesChange.h"
#include "views/main/cMainModel.h"
#include "views/main/cNavigator.h"
#include "views/main/cSavedViews.h"
#include "views/main/modAppearance.h"
#include "views/main/modCommand.h"

using namespace Qt::Literals::StringLiterals;

// The part of the main model that carries out commands.

namespace {

QString HiddenText()
{
    return cText::Tr("Die Auswahl über der Liste blendet das gerade aus.");
}

} // namespace

// A line for each command. NOLINTNEXTLINE(readability-function-size)
bool cMainModel::Execute(int command)
{
    const modCommand::cCommand* known = modCommand::Find(command);
    if (known == nullptr) {
        return false;
    }
    if (!IsEnabled(command)) {
        return true;
    }
    switch (known->Id) {
    case modCommand::NewEntry: m_parts.Navigator.OpenNewEntry(); break;
    case modCommand::EditEntry: m_parts.Navigator.OpenEntry(First().ID, First().Day); break;
    case modCommand::DeleteEntry: Delete(m_selection); break;
    case modCommand::CorrectPeriod:
        m_parts.Navigator.OpenCorrection(First().ID, First().Day, cNavigator::eCorrected::Amount);
        break;
    case modCommand::SkipPeriod: SkipPeriod(); break;
    case modCommand::Undo: StepThrough(&cJournal::Undo, cText::Tr("Zurückgenommen: {0}.", {StepName(command)})); break;
    case modCommand::Redo:
        StepThrough(&cJournal::Redo, cText::Tr("Wieder ausgeführt: {0}.", {StepName(command)}));
        break;
    case modCommand::EditTemplates: m_parts.Navigator.OpenTemplates({}); break;
    case modCommand::Quit: m_parts.Navigator.EndProgram(); break;
    case modCommand::ResetView: AskResetView(); break;
    case modCommand::Calculator: StartCalculator(); break;
    case modCommand::ViewSingle:
    case modCommand::ViewFix:
    case modCommand::ViewFuture:
    case modCommand::ViewStart:
    case modCommand::ViewAccountValues: ToggleView(*known->Setting); break;
    case modCommand::AppearanceSystem:
    case modCommand::AppearanceLight:
    case modCommand::AppearanceDark: ChooseAppearance(*modAppearance::OfCommand(known->Id)); break;
    case modCommand::Reminders: SwitchReminders(); break;
    case modCommand::ImportStatement:
    case modCommand::Export:
    case modCommand::Print:
    case modCommand::PrintPreview:
    case modCommand::ChooseColumns:
    case modCommand::Password:
    case modCommand::MakeBackup:
    case modCommand::RestoreBackup:
    case modCommand::SwitchDatabase:
    case modCommand::NewDatabase:
    case modCommand::Search:
    case modCommand::StartBalance:
    case modCommand::AccountStatement:
    case modCommand::CheckUpdates:
    case modCommand::Homepage:
    case modCommand::Questions:
    case modCommand::Manual:
    case modCommand::About:
    case modCommand::ErrorLog:
    case modCommand::Feedback:
    case modCommand::CheckBook:
    case modCommand::CheckSeries:
    case modCommand::BackupSettings:
    case modCommand::Rules:
    case modCommand::BankLogins:
    case modCommand::FetchTransactions:
    case modCommand::AddReceipt:
    case modCommand::ShowReceipts:
    case modCommand::CopyRows:
    case modCommand::ChangeMany:
    case modCommand::SaveView:
    case modCommand::SavedViews:
    case modCommand::GoToDay:
    case modCommand::Budget:
    case modCommand::People:
    case modCommand::Settlement:
    case modCommand::National: m_parts.Navigator.Open(known->Id); break;
    case modCommand::DuplicateToday: Duplicate(m_selection, cEntryDuplicate::eDay::Today); break;
    case modCommand::DuplicateNextMonth: Duplicate(m_selection, cEntryDuplicate::eDay::NextMonth); break;
    }
    return true;
}

bool cMainModel::IsEnabled(int command) const
{
    const modCommand::cCommand* known = modCommand::Find(command);
    if (known == nullptr || (modCommand::Has(*known, modCommand::Writes) && IsReadOnly())) {
        return false;
    }
    if (known->Id == modCommand::Undo || known->Id == modCommand::Redo) {
        return !StepName(known->Id).isEmpty();
    }
    if (modCommand::Has(*known, modCommand::NeedsOccurrence)) {
        return m_selection.size() == 1 && m_isSeriesSelected;
    }
    return !modCommand::Has(*known, modCommand::NeedsEntry) || !m_selection.isEmpty();
}

bool cMainModel::IsChecked(const modCommand::cCommand& command) const
{
    const std::optional<eAppearance> appearance = modAppearance::OfCommand(command.Id);
    return appearance ? *appearance == modAppearance::Chosen(m_parts.Configuration)
                      : command.Setting != nullptr && IsChecked(*command.Setting);
}

void cMainModel::SwitchReminders()
{
    m_tools.Settings.SetBool(modSettingKey::RemindByDesktop, !m_tools.Settings.GetBool(modSettingKey::RemindByDesktop));
    Q_EMIT ViewChanged(); // the check mark
}

void cMainModel::ChooseAppearance(eAppearance appearance)
{
    if (!modAppearance::Choose(appearance, m_parts.Configuration)) {
        m_tools.User.Show(eTone::Critical, cText::Tr("Die Einstellungen konnten nicht gespeichert werden."));
    }
    Q_EMIT AppearanceChanged();
    Q_EMIT ViewChanged(); // the check marks
}

QString cMainModel::StepName(int command) const
{
    return command == modCommand::Undo ? m_tools.Data.Journal().UndoName() : m_tools.Data.Journal().RedoName();
}

QString cMainModel::MenuText(int command) const
{
    const modCommand::cCommand* known = modCommand::Find(command);
    if (known == nullptr) {
        return {};
    }
    const QString text = modCommand::MenuText(*known);
    const bool isStep = known->Id == modCommand::Undo || known->Id == modCommand::Redo;
    const QString name = isStep ? StepName(known->Id).replace(u'&', u"&&"_s) : QString();
    return name.isEmpty() ? text : cText::Tr("{0}: {1}", {text, name});
}

void cMainModel::StepThrough(bool (cJournal::*step)(), const QString& told)
{
    if ((m_tools.Data.Journal().*step)()) {
        SetSelection({});
        BookChanged();
        Q_EMIT StagedRowsReleased();
        Q_EMIT Told(told);
    }
}

void cMainModel::SkipPeriod()
{
    cSeriesChange change(m_tools);
    if (change.SkipPeriod(First().ID, First().Day)) {
        BookChanged();
    }
}

void cMainModel::AskResetView()
{
    const eAnswer answer =
        m_tools.User.Ask({.Text = cText::Tr("Sollen Zeitraum, Konto, Filter, Gruppierung, Spalten und Fenstergröße auf "
                                            "den Anfang zurückgestellt werden?\nIhre Einträge bleiben, wie sie sind."),
                          .Title = cText::Tr("Einstellungen zurücksetzen"),
                          .Default = eAnswer::No});
    if (answer == eAnswer::Yes) {
        ResetView();
    }
}

void cMainModel::StartCalculator()
{
    if (!m_parts.Shell.StartCalculator()) {
        m_tools.User.Show(
            eTone::Exclamation,
            cText::Tr("Auf diesem System wurde kein Taschenrechner gefunden. Bitte installieren Sie einen, zum "
                      "Beispiel \"gnome-calculator\" oder \"kcalc\"."));
    }
}

void cMainModel::Duplicate(const QList<cEntryListModel::cKey>& keys, cEntryDuplicate::eDay day)
{
    cEntryDuplicate flow(m_tools);
    const QList<cEntryListModel::cKey> made = flow.Duplicate(keys, day);
    if (made.isEmpty()) {
        return;
    }
    BookChanged();
    (void)ReadList();
    Q_EMIT RowsMade(made);
    const bool isShown = m_entries.IndexesOf(made).size() == made.size();
    Q_EMIT Told(isShown ? flow.Text() : flow.Text() + u' ' + HiddenText());
}

void cMainModel::ManyChanged(const QList<cEntryListModel::cKey>& keys, const QList<cEntryListModel::cKey>& stored)
{
    const qsizetype before = m_entries.IndexesOf(keys).size();
    BookChanged();
    if (stored != keys) {
        Q_EMIT RowsMade(stored);
    }
    const QString done = m_tools.Data.Journal().UndoName() + u'.';
    Q_EMIT Told(m_entries.IndexesOf(stored).size() >= before ? done : done + u' ' + HiddenText());
}

void cMainModel::CellWritten()
{
    BookChanged();
    Q_EMIT Told(m_tools.Data.Journal().UndoName() + u'.');
    Q_EMIT StagedRowsReleased(); // rows of the bank may have gone along with the later part of a series
}

void cMainModel::ShowView(const cViewState& view)
{
    (void)m_detour.Leave(m_view);
    SetSwitch(modSettingKey::ViewSingle, view.ShowsSingle ? eSwitch::On : eSwitch::Off);
    SetSwitch(modSettingKey::ViewFix, view.ShowsFix ? eSwitch::On : eSwitch::Off);
    SetSwitch(modSettingKey::ViewFuture, view.ShowsFuture ? eSwitch::On : eSwitch::Off);
    SetSwitch(modSettingKey::ViewStart, view.ShowsStart ? eSwitch::On : eSwitch::Off);
    SetSwitch(modSettingKey::ViewAllBalances, view.BalancesToToday ? eSwitch::On : eSwitch::Off);
    view.Save(m_tools.Settings);
    m_view.Restore(m_tools.Settings, Accounts(), m_tools.Clock.Today());
    RefreshView();
}

void cMainModel::KeepView(const QString& columns)
{
    if (m_detour.IsPicked()) {
        m_tools.User.Show(
            eTone::Objection,
            cText::Tr("Diese Auswahl lässt sich nicht merken, denn sie zeigt nur die Einträge hinter einer "
                      "Zahl der Auswertung. Heben Sie die Auswahl erst auf."));
    } else if (cSavedViews(m_tools).Keep({.View = m_view, .Columns = columns})) {
        Q_EMIT ViewChanged(); // what can be undone
    }
}

std::optional<cSavedView> cMainModel::ManageViews()
{
    std::optional<cSavedView> view = cSavedViews(m_tools).Manage();
    Q_EMIT ViewChanged();
    return view;
}
