#include <Tamble/Desktop/App/FirstFrame.h>

#include <QQuickWindow>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <string>

#include <unistd.h>

namespace tamble {
namespace {

constexpr int startField = 22;

/// Since the machine started, in seconds.
double startOfProgram() {
    std::ifstream file("/proc/self/stat");
    std::string skipped;
    // The name of the program stands in parentheses and may hold spaces.
    std::getline(file, skipped, ')');
    for (int field = 3; field < startField; ++field) file >> skipped;
    double ticks = 0;
    file >> ticks;
    return ticks / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

double now() {
    timespec time{};
    ::clock_gettime(CLOCK_BOOTTIME, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

}  // namespace

void tellFirstFrame(QQuickWindow& window) {
    if (!qEnvironmentVariableIsSet("TAMBLE_FIRST_FRAME")) return;
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, &window,
        [] {
            std::printf("%.0f\n", (now() - startOfProgram()) * 1000);
            std::fflush(stdout);
        },
        static_cast<Qt::ConnectionType>(Qt::DirectConnection | Qt::SingleShotConnection));
}

}  // namespace tamble
