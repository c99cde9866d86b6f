#include "tests/support/TestProgram.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QPalette>

#include <atomic>
#include <cstdio>
#include <map>
#include <vector>

namespace {

std::map<QString, Test::MakeTest>& Tests()
{
    static std::map<QString, Test::MakeTest> tests;
    return tests;
}

std::atomic<int> complaints{0};
QtMessageHandler previousHandler = nullptr;

void CountComplaints(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const bool isComplaint =
        message.startsWith(QLatin1String("QObject::")) || message.startsWith(QLatin1String("QMetaObject::"));
    if (isComplaint && (type == QtWarningMsg || type == QtCriticalMsg)) {
        ++complaints;
        std::fprintf(stderr, "complaint of the toolkit: %s\n", qPrintable(message));
    }
    if (previousHandler) {
        previousHandler(type, context, message);
    }
}

/** What a desktop with a dark theme gives every application. */
QPalette DarkPalette()
{
    QPalette palette(QColor(0x2d, 0x2d, 0x2d), QColor(0x20, 0x20, 0x20));
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x6e, 0xa8));
    return palette;
}

int Run(Test::MakeTest make, std::vector<char*> arguments)
{
    arguments.push_back(nullptr);
    return QTest::qExec(make().get(), int(arguments.size()) - 1, arguments.data());
}

/** The number of failures. */
int RunTests(int argc, char** argv)
{
    std::vector<char*> arguments(argv, argv + argc);
    if (argc < 2 || arguments[1][0] == '-') {
        int failures = 0;
        for (const auto& test : Tests()) {
            failures += Run(test.second, arguments);
        }
        return failures;
    }
    const auto named = Tests().find(QString::fromLocal8Bit(arguments[1]));
    if (named == Tests().end()) {
        std::fprintf(stderr, "There is no test \"%s\". There are:\n", arguments[1]);
        for (const auto& test : Tests()) {
            std::fprintf(stderr, "  %s\n", qPrintable(test.first));
        }
        return 1;
    }
    arguments.erase(arguments.begin() + 1);
    return Run(named->second, arguments);
}

} // namespace

Test::TRegistration::TRegistration(const char* sourceFile, MakeTest make)
{
    const QString prefix = QStringLiteral("tst_");
    const QString name = QFileInfo(QString::fromLocal8Bit(sourceFile)).completeBaseName();
    Q_ASSERT(name.startsWith(prefix));
    Tests().emplace(name.mid(prefix.size()), make);
}

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale::c()); // Panels show numbers as the user's locale does; tests expect a point.
    if (qEnvironmentVariable("PROPERTIES_TEST_PALETTE") == QLatin1String("dark")) {
        QApplication::setPalette(DarkPalette());
    }
    previousHandler = qInstallMessageHandler(CountComplaints);
    const int failures = RunTests(argc, argv);
    qInstallMessageHandler(previousHandler);
    return failures + complaints;
}
