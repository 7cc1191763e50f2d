#include "core/cBackupPlan.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "model/modSettingKey.h"
#include "support/cFakeMachine.h"
#include "support/cTestClass.h"
#include "support/windowHands.h"
#include "views/book/cBackupSettings.h"
#include "windows/book/frmSicherungen.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QSpinBox>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cMachine : cFakeMachine
{
    cMachine()
    {
        QVERIFY(Book.Open(File.Make("INSERT INTO data (EntryDate) VALUES ('2026-01-31')")));
        Configuration.SetDatabase(&Book.Settings());
        Plan.RunIfDue();
    }

    cConfiguration Configuration{Registry};
    cBook Book{User};
    cBackupPlan Plan{{Shell, User, Clock}, Book, Configuration};
    cBackupSettings Settings{{Book, Configuration, User, Shell, Clock}};
};

} // namespace

class testFrmSicherungen final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FolderAndNumber()
    {
        cMachine machine;
        frmSicherungen window(machine.Settings);
        window.show();
        auto* count = window.findChild<QSpinBox*>();
        auto* copies = window.findChild<QListWidget*>();
        QCOMPARE(count->value(), 10);
        QCOMPARE(copies->count(), 1);
        QVERIFY(copies->item(0)->text().startsWith(u"15.03.2026, "_s));
        machine.User.Folder = machine.File.Path(u"neu"_s);
        modWindowHands::Button(window, u"Wählen…"_s).click();
        count->setValue(3);
        QTest::keyClick(&window, Qt::Key_Return);
        QVERIFY(!window.isVisible());
        QCOMPARE(machine.Plan.Count(), 3);
        QCOMPARE(machine.Plan.Folder(), machine.File.Path(u"neu"_s));
        QVERIFY(QDir(machine.Plan.Folder()).exists());
    }

    void SizesFollowTheBook()
    {
        cMachine machine;
        const auto isWrittenWith = [&](QChar sign) {
            const QString size = machine.Settings.Copies().constFirst().section(u", "_s, 1);
            return QRegularExpression(u"^\\d+%1\\d [kM]B$"_s.arg(QRegularExpression::escape(sign)))
                .match(size)
                .hasMatch();
        };
        QVERIFY(isWrittenWith(u','));
        machine.Configuration.SaveSetting(modSettingKey::LanguageCurrency, u"en-GB"_s, eSettingPlace::Database);
        QVERIFY(isWrittenWith(u'.'));
    }

    void UnusableFolderIsRefused()
    {
        cMachine machine;
        frmSicherungen window(machine.Settings);
        window.show();
        for (const QString& folder : {u"relativ"_s, machine.File.Path(u"data.db/unter"_s)}) {
            const QList<QLineEdit*> fields = window.findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly);
            fields.constFirst()->setText(folder);
            QTest::keyClick(&window, Qt::Key_Return);
            QVERIFY(window.isVisible());
            QCOMPARE(machine.User.Shown.constLast(),
                     u"In den Ordner '%1' kann nicht geschrieben werden."_s.arg(folder));
        }
        machine.User.Answers = {eAnswer::Yes, eAnswer::No};
        window.reject();
        QVERIFY(window.isVisible()); // as refused as before
        window.reject();
        QVERIFY(!window.isVisible());
        QCOMPARE(machine.Plan.Folder(), machine.Plan.DefaultFolder());
    }
};

TEST_CLASS(testFrmSicherungen, QApplication)
#include "testFrmSicherungen.moc"
