#include "tests/support/TestMain.h"

#include <QApplication>

#include <atomic>
#include <cstdio>

namespace {

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

} // namespace

int Test::Run(QObject& test, int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    previousHandler = qInstallMessageHandler(CountComplaints);
    const int failures = QTest::qExec(&test, argc, argv);
    qInstallMessageHandler(previousHandler);
    return failures + complaints;
}
