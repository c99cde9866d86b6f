#pragma once

#include <QObject>
#include <QTest>

#include <memory>

namespace Test {

using MakeTest = std::unique_ptr<QObject> (*)();

/**
 * Adds the test object of a source to its program, which runs it by the source's name: `test_sets via` runs that of
 * `tst_via.cpp`, with what follows as arguments of the toolkit's test library; `test_sets` runs all in turn. They run
 * on the offscreen platform where no display is set, and every failed connect and every other complaint of the
 * toolkit's object system is a failure of the test that caused it.
 */
class TRegistration
{
public:
    TRegistration(const char* sourceFile, MakeTest make);
};

} // namespace Test

#define PROPERTIES_TEST(TestClass)                                                                                     \
    static const Test::TRegistration registrationOf##TestClass(                                                        \
        __FILE__, [] { return std::unique_ptr<QObject>(std::make_unique<TestClass>()); });
