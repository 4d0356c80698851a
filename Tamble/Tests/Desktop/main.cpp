#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    // No screen, no graphics card, and no desktop that could answer.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    const QGuiApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
