#include "support/cTestClass.h"

#include <cstdio>
#include <cstring>

namespace {

cTestClass* first = nullptr;

}

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
    return cTestClass::Run(argc, argv);
}
