#include "GuiTest.h"
#include "Surroundings.h"

void prepareTestEnvironment()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LANGUAGE", qEnvironmentVariable("GUI_TEST_LANGUAGE", QStringLiteral("en")).toLatin1());
    prepareSurroundings();
}

int runTest(QObject& test, int argc, char** argv)
{
    QApplication::setQuitOnLastWindowClosed(false);
    const int result = QTest::qExec(&test, argc, argv);
    // The threads of Qt Test and of Qt's picture scaler may be said to have ended while they still give back what they
    // have: the leak check would sometimes come between.
    QThreadPool::globalInstance()->waitForDone();
    const QDir threads(QStringLiteral("/proc/self/task"));
    const auto alone = [&threads] { return threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() <= 1; };
    if (hasSanitizer && !QTest::qWaitFor(alone, 1000))
        qWarning("threads are left: the leak check may report what they hold");
    return result;
}
