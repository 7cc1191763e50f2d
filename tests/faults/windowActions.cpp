// The window program carries out one action and ends. It is put together as the program itself puts it together, but
// for the user, who agrees to everything.
//   windowActions --profile FOLDER --database FILE ACTION [before]
// With "before" it ends where the action would begin. The exit status is 0 when the action was done.

#include "app/cMainProgram.h"
#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtShell.h"
#include "app/machine/cSystemClock.h"
#include "base/cProgress.h"
#include "base/cRescue.h"
#include "base/cUser.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/entry/cEntryEditor.h"
#include "views/entry/cSeriesChange.h"
#include "views/main/cMainModel.h"
#include "views/main/modCommand.h"
#include "views/statement/cImportReview.h"
#include "views/statement/cStatementFiles.h"
#include "views/template/cTemplateManager.h"
#include "windows/main/frmMain.h"

#include <QApplication>
#include <QDir>

#include <dlfcn.h>

#include <cstdio>
#include <functional>
#include <map>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString backupName = u"alt.backup"_s;

class cAgreeingUser final : public cUser
{
public:
    void Show(eTone tone, const QString& text, const QString& /*title*/) override
    {
        IsWarned = IsWarned || tone != eTone::Information || text.contains(u"konnte nicht"_s);
        std::fprintf(stderr, "%s\n", qUtf8Printable(text));
    }
    [[nodiscard]] eAnswer Ask(const cQuestion& /*question*/) override { return eAnswer::Yes; }
    [[nodiscard]] std::optional<QString> Choose(const cChoice& choice) override
    {
        return choice.Items.value(0, choice.Proposal);
    }
    [[nodiscard]] int Decide(const cDecision& decision) override
    {
        return TakesLast ? static_cast<int>(decision.Options.size()) - 1 : 0;
    }
    [[nodiscard]] std::optional<QList<int>> Tick(const cChecklist& list) override
    {
        QList<int> all(list.Items.size());
        std::iota(all.begin(), all.end(), 0);
        return all;
    }
    [[nodiscard]] QStringList ChooseFiles(const QString& /*title*/, const QString& /*filter*/,
                                          ePurpose /*purpose*/) override
    {
        return {};
    }
    [[nodiscard]] QString ChooseSavePath(const QString& /*title*/, const QString& /*filter*/,
                                         const QString& /*proposal*/, ePurpose /*purpose*/ = ePurpose::Export) override
    {
        return QDir::current().filePath(backupName);
    }
    [[nodiscard]] QString ChooseFolder(const QString& /*title*/, const QString& /*current*/) override { return {}; }

    bool TakesLast = false; // of several ways
    bool IsWarned = false;  // that something went wrong
};

class cAgreeingRescue final : public cRescue
{
public:
    std::optional<QString> ChooseDatabase(const QString& /*current*/) override { return std::nullopt; }
    std::optional<QString> ChooseBackup(const QString& /*folder*/) override
    {
        return QDir::current().filePath(backupName);
    }
    bool AskPassword(const std::function<bool(const QString&)>& /*isRight*/) override { return false; }
};

// The rent of the example household and its next occurrence.
constexpr int rent = 14;

class cActions
{
public:
    cActions(cMainProgram& program, cAgreeingUser& user) : m_program(program), m_user(user) {}

    struct cAction
    {
        std::function<bool()> Do;
        std::function<bool()> Prepare = [] { return true; };
    };

    std::map<QString, cAction> All()
    {
        const auto removes = [this] { return Delete(); };
        const auto adds = [this] { return Save(); };
        cTemplateManager& templates = m_templates;
        return {
            {u"nothing"_s, {[] { return true; }}},
            {u"save"_s, {adds}},
            {u"from-here"_s, {[this] { return ChangeFromHere(); }}},
            {u"split"_s, {[this] { return Split(); }, adds}},
            {u"correct"_s, {[this] { return Correct(); }}},
            {u"delete"_s, {removes, [this] { return Correct(); }}},
            {u"undo"_s, {[this] { return Run(modCommand::Undo); }, removes}},
            {u"redo"_s,
             {[this] { return Run(modCommand::Redo); }, [=, this] { return removes() && Run(modCommand::Undo); }}},
            {u"import"_s, {[this] { return Import(); }}},
            {u"book"_s, {[this] { return Book(); }}},
            {u"match"_s, {[this] { return Match(); }}},
            {u"rename-category"_s,
             {[&] { return templates.RenameCategory(u"Haushalt; Lebensmittel"_s, u"Haushalt;Essen"_s); }}},
            {u"rename-main"_s, {[&] { return templates.RenameCategory(u"Haushalt"_s, u"Haus"_s); }}},
            {u"rename-account"_s, {[&] { return templates.RenameAccount(u"Girokonto"_s, u"Hauptkonto"_s); }}},
            {u"merge"_s,
             {[&] { return templates.MergeCategory(u"Haushalt; Lebensmittel"_s, u"Alltag; Bus und Bahn"_s); }}},
            {u"delete-account"_s, {[&] { return templates.DeleteAccount(u"Sparkonto"_s); }}},
            {u"restore"_s, {[this] { return Restore(); }, [=, this] { return Run(modCommand::MakeBackup) && adds(); }}},
            {u"close"_s, {[this] { return m_program.Window().close(); }, adds}},
        };
    }

private:
    [[nodiscard]] cDataAccess& Data() const { return m_program.Tools().Data; }
    bool Run(modCommand::eId command) { return m_program.Model().Execute(command); }

    [[nodiscard]] bool IsGone(int entry) const { return !Data().LoadEntry(entry) && Data().IsWhole(); }

    bool Save()
    {
        cEntryEditor editor(m_program.Tools());
        cEntryFields fields = editor.Start(u"Girokonto"_s);
        fields.Amount = u"12,34"_s;
        fields.Type = modWord::Ausgabe;
        fields.Interval = modWord::Einmalig;
        fields.Category = u"Haushalt; Lebensmittel"_s;
        fields.Description = u"Markt"_s;
        const bool isSaved = editor.Save(fields) == eEntrySaved::Saved;
        m_saved = editor.SavedId();
        return isSaved;
    }

    [[nodiscard]] QDate NextRent() const
    {
        const std::optional<cEntryItem> entry = Data().LoadEntry(rent);
        QDate day = entry ? entry->EntryDate : QDate();
        while (day.isValid() && day <= m_program.Tools().Clock.Today()) {
            day = modRecurrence::Next(day, entry->EntryInterval);
        }
        return day;
    }

    bool ChangeFromHere()
    {
        cEntryEditor editor(m_program.Tools());
        std::optional<cEntryFields> fields = editor.LoadFrom(rent, NextRent());
        if (!fields) {
            return false;
        }
        fields->Amount = u"777"_s;
        return editor.Save(*fields) == eEntrySaved::Saved;
    }

    // The entry that was just added becomes two.
    bool Split()
    {
        cEntryEditor editor(m_program.Tools());
        std::optional<cEntryFields> fields = editor.Load(m_saved);
        if (!fields) {
            return false;
        }
        editor.UseSplit(*fields);
        fields->Parts = {{m_saved, u"Haushalt; Lebensmittel"_s, u"Brot"_s, u"10"_s},
                         {0, u"Kinder; Taschengeld"_s, u"Heft"_s, u"2,34"_s}};
        return editor.Save(*fields) == eEntrySaved::Saved;
    }

    bool Correct()
    {
        cSeriesChange series(m_program.Tools());
        return series.CorrectPeriod(rent, NextRent(), 99900, u"Nachzahlung"_s);
    }

    // The whole series with its correction.
    bool Delete()
    {
        m_user.TakesLast = true;
        m_program.Model().Delete({{rent, NextRent()}});
        m_user.TakesLast = false;
        return IsGone(rent);
    }

    bool Import()
    {
        const auto before = Data().GetImportEntries().size();
        m_program.Review().Files().ImportFiles({QDir::current().filePath(u"mehr.csv"_s)}, m_progress);
        return Data().GetImportEntries().size() == before + 3;
    }

    [[nodiscard]] qsizetype CountOpen() const { return m_program.Review().Rows().Counts().Open; }

    bool Book()
    {
        m_program.Review().Refresh();
        const QList<int> rows = m_program.Review().Rows().OpenIds();
        m_program.Review().Book(rows, m_progress);
        return !rows.isEmpty() && CountOpen() == 0;
    }

    bool Match()
    {
        m_program.Review().Refresh();
        const qsizetype before = CountOpen();
        m_program.Review().Match({}, m_progress);
        return CountOpen() < before;
    }

    bool Restore() { return Run(modCommand::RestoreBackup) && IsGone(m_saved); }

    cMainProgram& m_program;
    cAgreeingUser& m_user;
    cNoProgress m_progress;
    cTemplateManager m_templates{m_program.Tools()};
    int m_saved = 0;
};

// From here on calls may go wrong.
void BeginFaults()
{
    if (void* begin = dlsym(RTLD_DEFAULT, "BeginFaults")) {
        reinterpret_cast<void (*)()>(begin)(); // NOLINT(cppcoreguidelines-pro-type-reinterpret-cast)
    }
}

int Play(cMainProgram& program, cAgreeingUser& user, const QString& name, bool isBefore)
{
    cActions actions(program, user);
    const auto all = actions.All();
    const auto action = all.find(name);
    if (action == all.end() || !action->second.Prepare()) {
        std::fprintf(stderr, "%s: cannot be prepared\n", qUtf8Printable(name));
        return 2;
    }
    if (isBefore) {
        return 0;
    }
    BeginFaults();
    const bool isDone = action->second.Do();
    QCoreApplication::processEvents();
    return isDone && !user.IsWarned ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QStringList arguments = QApplication::arguments();
    const auto option = [&arguments](const QString& name) {
        const qsizetype place = arguments.indexOf(name);
        const QString value = place < 0 ? QString() : arguments.value(place + 1);
        arguments.remove(qMax(place, qsizetype{0}), place < 0 ? 0 : 2);
        return value;
    };
    const QString profile = option(u"--profile"_s);
    const QString database = option(u"--database"_s);
    cQtShell shell(profile);
    cQtRegistry registry(profile);
    cAgreeingUser user;
    cAgreeingRescue rescue;
    const cSystemClock clock;
    cMainProgram program({shell, registry, user, rescue, clock}, QStringLiteral(APP_VERSION));
    return program.Start({.Book = database})
        ? Play(program, user, arguments.value(1), arguments.value(2) == u"before"_s)
        : 2;
}
