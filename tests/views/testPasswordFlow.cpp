#include "core/modPassword.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/book/cPasswordFlow.h"

using namespace Qt::Literals::StringLiterals;

using eResult = cPasswordFlow::eResult;

class testPasswordFlow final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SetChangeRemove() const
    {
        cTestBook book;
        cPasswordFlow flow(book.Data, book.Configuration, book.User);
        QVERIFY(!flow.HasPassword());
        QCOMPARE(flow.Set({}, u"eins"_s, u"eins"_s), eResult::Done);
        QVERIFY(flow.HasPassword());
        QCOMPARE(book.Settings->Get(modSettingKey::Password), modPassword::ToStored(u"eins"_s));
        QCOMPARE(flow.Set(u"eins"_s, u"zwei"_s, u"zwei"_s), eResult::Done);
        QCOMPARE(flow.Remove(u"eins"_s), eResult::WrongPassword);
        QVERIFY(flow.HasPassword());
        QCOMPARE(flow.Remove(u"zwei"_s), eResult::Done);
        QVERIFY(!flow.HasPassword());
        QCOMPARE(book.User.Shown.size(), 3);
    }

    void Objections_data() const
    {
        const cTestRows<QString, QString, QString, eResult, QString> row("old", "password", "repeated", "result",
                                                                         "message");
        row("nothing typed", u"alt"_s, {}, {}, eResult::Refused, u"Bitte geben Sie ein neues Passwort ein."_s);
        row("mistyped", u"alt"_s, u"neu"_s, u"nue"_s, eResult::Refused,
            u"Die beiden neuen Passwörter stimmen nicht überein."_s);
        row("the old one is wrong", u"Alt"_s, u"neu"_s, u"neu"_s, eResult::WrongPassword, {});
    }

    void Objections() const
    {
        QFETCH(const QString, old);
        QFETCH(const QString, password);
        QFETCH(const QString, repeated);
        QFETCH(const eResult, result);
        QFETCH(const QString, message);
        cTestBook book;
        QVERIFY(modPassword::Set(book.Configuration, u"alt"_s));
        cPasswordFlow flow(book.Data, book.Configuration, book.User);
        QCOMPARE(flow.Set(old, password, repeated), result);
        QCOMPARE(book.User.Shown, message.isEmpty() ? QStringList() : QStringList(message));
        QCOMPARE(flow.Tries().Left() > 0, result == eResult::WrongPassword);
        QVERIFY(modPassword::Matches(u"alt"_s, book.Settings->Get(modSettingKey::Password)));
    }

    // A change that would live until the program ends only must not look like a protected book.
    void ReadOnlyBookRefuses() const
    {
        cTestBook book;
        const QString path = book.Path();
        book.Database.Open(path, eOpenMode::ReadOnly);
        cPasswordFlow flow(book.Data, book.Configuration, book.User);
        QCOMPARE(flow.Set({}, u"eins"_s, u"eins"_s), eResult::Refused);
        QVERIFY(!flow.HasPassword());
        QCOMPARE(book.User.Shown, QStringList(u"Das Passwort konnte nicht gespeichert werden."_s));
    }

    void EveryMistakeWaitsLonger() const
    {
        cPasswordTries tries;
        QList<int> waits;
        for (int i = 0; i < 8; ++i) {
            tries.NoteWrong();
            waits.append(tries.Left());
            tries.SecondPassed();
            QCOMPARE(tries.Left(), waits.constLast() - 1);
        }
        QCOMPARE(waits, QList<int>({1, 2, 4, 8, 16, 32, 60, 60}));
        tries.NoteRight();
        tries.SecondPassed();
        QCOMPARE(tries.Left(), 0);
        tries.NoteWrong();
        QCOMPARE(tries.Left(), 1);
    }
};

TEST_CLASS(testPasswordFlow, QCoreApplication)
#include "testPasswordFlow.moc"
