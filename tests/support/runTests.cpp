#include "support/cTestClass.h"
#include "support/fakes.h"

#include <cstdio>
#include <cstring>

namespace {

cTestClass* first = nullptr;

void FailForAnswers(const QStringList& asked)
{
    // A scene that stays until the next one is made tells it there, the last one after the last test.
    const QByteArray text = "An answer is left over, here or in the test before. Asked: " + asked.join(u" | ").toUtf8();
    if (QTest::currentTestFunction() == nullptr) {
        qFatal("%s", text.constData());
    }
    if (!QTest::currentTestFailed()) {
        QTest::qFail(text.constData(), __FILE__, __LINE__);
    }
}

} // namespace

cTestClass::cTestClass(const char* name, Function run) : m_name(name), m_run(run), m_next(first)
{
    first = this;
}

int cTestClass::Run(int argc, char** argv)
{
    for (const cTestClass* test = first; test != nullptr && argc > 1; test = test->m_next) {
        if (std::strcmp(test->m_name, argv[1]) == 0) {
            argv[1] = argv[0]; // the name of the class is no option of QTest
            return test->m_run(argc - 1, argv + 1);
        }
    }
    std::fputs("Name one of these classes:\n", stderr);
    for (const cTestClass* test = first; test != nullptr; test = test->m_next) {
        std::fprintf(stderr, "  %s\n", test->m_name);
    }
    return 1;
}

int main(int argc, char** argv)
{
    cFakeUser::s_leftOver = FailForAnswers;
    return cTestClass::Run(argc, argv);
}
