// A window with nothing in it: what the toolkit alone takes. Usage: bare-window WIDTH HEIGHT
// Prints the milliseconds from its start to its first frame where TAMBLE_FIRST_FRAME is set, as the real one
// does.
#include <Tamble/Desktop/App/FirstFrame.h>

#include <QGuiApplication>
#include <QQuickWindow>
#include <cstdlib>

int main(int argumentCount, char** arguments) {
    QGuiApplication application(argumentCount, arguments);
    QQuickWindow window;
    if (argumentCount == 3) window.resize(std::atoi(arguments[1]), std::atoi(arguments[2]));
    tamble::tellFirstFrame(window);
    window.show();
    return QGuiApplication::exec();
}
