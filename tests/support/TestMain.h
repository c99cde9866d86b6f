#pragma once

#include <QObject>
#include <QTest>

namespace Test {

/**
 * Runs a test object as a program of its own: on the offscreen platform where no display is set, and with every
 * failed connect and every other complaint of the toolkit's object system as a failure of the test that caused it.
 */
int Run(QObject& test, int argc, char** argv);

} // namespace Test

#define PROPERTIES_TEST_MAIN(TestClass)                                                                                \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        QTEST_SET_MAIN_SOURCE_PATH                                                                                     \
        TestClass test;                                                                                                \
        return Test::Run(test, argc, argv);                                                                            \
    }
