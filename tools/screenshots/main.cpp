// Renders the program's windows with the example household into PNG files, without a screen:
//   kontorelle-screenshots FOLDER light|dark
// The pictures are named after window and palette. The scale comes from QT_SCALE_FACTOR, as for every program.

#include "app/cMainProgram.h"
#include "app/cQtRegistry.h"
#include "app/cQtRescue.h"
#include "app/cQtShell.h"
#include "app/cQtUser.h"
#include "base/cClock.h"
#include "core/modDemo.h"
#include "model/modWord.h"
#include "views/cMainModel.h"
#include "windows/frmBuchung.h"
#include "windows/frmMain.h"
#include "windows/frmPasswort.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 21);

class cFixedClock final : public cClock
{
public:
    [[nodiscard]] QDate Today() const override { return today; }
};

QPalette DarkPalette()
{
    QPalette palette(QColor(45, 47, 51));
    palette.setColor(QPalette::Base, QColor(30, 32, 35));
    palette.setColor(QPalette::AlternateBase, QColor(38, 40, 44));
    palette.setColor(QPalette::Highlight, QColor(45, 110, 160));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(110, 180, 240));
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(role, QColor(230, 232, 235));
        palette.setColor(QPalette::Disabled, role, QColor(130, 133, 138));
    }
    return palette;
}

void Settle()
{
    for (int i = 0; i < 20; ++i) {
        QApplication::processEvents(QEventLoop::AllEvents, 10);
    }
}

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
            m_isReady = book.Open(path) && modDemo::Write(book.Data(), {.Today = today});
        }
        m_isReady = m_program.Start(path);
        m_program.Window().resize(1280, 800);
        Settle();
    }

    [[nodiscard]] bool IsReady() const { return m_isReady; }
    [[nodiscard]] cMainProgram& Program() { return m_program; }

private:
    QTemporaryDir m_folder;
    cQtShell m_shell{m_folder.path()};
    cQtRegistry m_registry{m_folder.path()};
    cQtUser m_user;
    cQtRescue m_rescue;
    cFixedClock m_clock;
    cMainProgram m_program{{m_shell, m_registry, m_user, m_rescue, m_clock}, QStringLiteral(APP_VERSION)};
    bool m_isReady = false;
};

class cCamera
{
public:
    cCamera(const QString& folder, const QString& palette) : m_folder(folder), m_palette(palette) {}

    void Take(QWidget& widget, const QString& name)
    {
        Settle();
        const QString path = QDir(m_folder).filePath(u"%1-%2.png"_s.arg(name, m_palette));
        m_isGood = widget.grab().save(path) && m_isGood;
        std::printf("%s\n", qPrintable(path));
    }

    // Opens a dialog through `open`, which blocks, and takes its picture from within.
    template <typename tOpen>
    void TakeDialog(const QString& name, tOpen open)
    {
        QTimer::singleShot(50, qApp, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            m_isGood = dialog != nullptr && m_isGood;
            if (dialog != nullptr) {
                Take(*dialog, name);
                dialog->close();
            }
        });
        open();
    }

    [[nodiscard]] bool IsGood() const { return m_isGood; }

private:
    QString m_folder;
    QString m_palette;
    bool m_isGood = true;
};

bool TakeDemo(cCamera& camera)
{
    cStage stage(cStage::eBook::Demo);
    if (!stage.IsReady()) {
        return false;
    }
    cMainProgram& program = stage.Program();
    frmMain& window = program.Window();
    cMainModel& model = program.Model();
    camera.Take(window, u"hauptfenster"_s);
    model.ChooseAccount(u"Girokonto"_s);
    model.ChooseGrouping(u"Nach Monat"_s);
    camera.Take(window, u"hauptfenster-gruppen"_s);
    model.ChooseAccount({});
    model.ChooseGrouping(modWord::KeineGruppierung);
    model.ChoosePeriod(modWord::AlleBuchungen);
    camera.Take(window, u"hauptfenster-alle"_s);
    program.ShowStatements();
    camera.Take(window, u"kontoauszuege"_s);
    camera.TakeDialog(u"eintrag-neu"_s, [&] { program.OpenEntryEditor(0); });
    camera.TakeDialog(u"eintrag"_s, [&] { program.OpenEntryEditor(15); });
    frmPasswort password([](const QString&) { return false; });
    password.show();
    camera.Take(password, u"passwort"_s);
    return true;
}

bool TakeEmpty(cCamera& camera)
{
    cStage stage(cStage::eBook::Empty);
    if (!stage.IsReady()) {
        return false;
    }
    camera.Take(stage.Program().Window(), u"hauptfenster-leer"_s);
    stage.Program().ShowStatements();
    camera.Take(stage.Program().Window(), u"kontoauszuege-leer"_s);
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3 || !QDir().mkpath(arguments.at(1))) {
        std::fputs("kontorelle-screenshots FOLDER light|dark\n", stderr);
        return 2;
    }
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    if (arguments.at(2) == u"dark") {
        QApplication::setPalette(DarkPalette());
    }
    cCamera camera(arguments.at(1), arguments.at(2));
    return TakeDemo(camera) && TakeEmpty(camera) && camera.IsGood() ? 0 : 1;
}
