#include "support/cFakeNavigator.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/main/cMainModel.h"
#include "views/overview/cOverviewModel.h"
#include "windows/overview/cCardLine.h"
#include "windows/overview/cFirstStepsView.h"
#include "windows/overview/cOverviewCardView.h"
#include "windows/overview/frmUebersicht.h"

#include <QApplication>

using namespace Qt::Literals::StringLiterals;

class testFrmUebersicht final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EmptyBookBeginsWithTheFirstSteps()
    {
        cTestBook book;
        cFakeNavigator navigator;
        cMainModel main{book.Tools, {book.Configuration, book.Shell, navigator, book.Path()}};
        cOverviewModel model{book.Tools, {navigator, main}};
        frmUebersicht page(model);
        page.show();
        page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        model.Read();
        const auto& steps = *page.findChild<cFirstStepsView*>();
        QVERIFY(steps.isAncestorOf(page.focusWidget()));
        const QWidget* first = page.findChild<cOverviewCardView*>();
        const QWidget* widget = page.focusWidget();
        while (steps.isAncestorOf(widget)) {
            widget = widget->nextInFocusChain();
        }
        while (widget->focusPolicy() == Qt::NoFocus) {
            widget = widget->nextInFocusChain();
        }
        QVERIFY(first->isAncestorOf(widget));
    }

    // One figure that has no room beside its text puts all of them below.
    void LimitsOfACardLookAlike()
    {
        const QList<cOverviewLine> card{{u"Benzin"_s, u"5,00"_s, eOverviewTone::Plain, {}, 10},
                                        {u"Bücher und Zeitschriften"_s, u"30,00"_s, eOverviewTone::Plain, {}, 20},
                                        {u"Summe"_s, u"35,00"_s}};
        const cCardLine petrol(card.at(0), card);
        const cCardLine books(card.at(1), card);
        const cCardLine sum(card.at(2), card);
        const int narrow = petrol.fontMetrics().horizontalAdvance(card.at(1).Text + u"30"_s);
        QCOMPARE(petrol.heightForWidth(narrow), books.heightForWidth(narrow));
        QVERIFY(petrol.heightForWidth(narrow) > petrol.heightForWidth(2 * narrow));
        QCOMPARE(sum.heightForWidth(narrow), sum.heightForWidth(2 * narrow));
    }
};

TEST_CLASS(testFrmUebersicht, QApplication)
#include "testFrmUebersicht.moc"
