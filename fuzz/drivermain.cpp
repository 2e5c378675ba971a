// The plain driver's entry point, shared by every fuzz target.

#include "fuzzdriver.h"
#include "fuzztarget.h"

#include <QApplication>
#include <QCoreApplication>

#include <memory>

int main(int argc, char **argv)
{
    std::unique_ptr<FuzzTarget> target(createFuzzTarget());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    std::unique_ptr<QCoreApplication> application(
        target->needsWidgets() ? new QApplication(argc, argv) : new QCoreApplication(argc, argv));
    target->setUp();
    FuzzDriver driver(*target);
    return driver.run(QCoreApplication::arguments());
}
