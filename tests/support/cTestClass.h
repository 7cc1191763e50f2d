#pragma once

#include "support/cTestRows.h"
#include "support/each.h"

#include <QCoreApplication>
#include <QTest>

// A class of tests, known to its program under its name. The tests of a floor are one program, which is linked once:
// "views_tests testReport" runs one class, with the options of QTest behind it. What every test needs comes along.
class cTestClass
{
public:
    using Function = int (*)(int argc, char** argv);

    cTestClass(const char* name, Function run);

    // Runs the class that the first argument names and gives its number of failures; 1 and a list of the classes for
    // any other.
    static int Run(int argc, char** argv);

private:
    const char* m_name;
    Function m_run;
    cTestClass* m_next;
};

// One class with an application of its own kind around it.
template <class tTest, class tApplication>
int RunTest(int argc, char** argv)
{
    tApplication application(argc, argv);
    tApplication::setAttribute(Qt::AA_Use96Dpi, true);
    tTest test;
    return QTest::qExec(&test, argc, argv);
}

#define TEST_CLASS(Test, Application) static const cTestClass registered##Test(#Test, RunTest<Test, Application>);
