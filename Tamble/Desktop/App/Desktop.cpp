#include <Tamble/Desktop/App/AppWindow.h>
#include <Tamble/Desktop/App/Desktop.h>
#include <Tamble/Desktop/App/FirstFrame.h>
#include <Tamble/Desktop/App/Language.h>
#include <Tamble/Desktop/App/SingleInstance.h>
#include <Tamble/Desktop/Support/Texts.h>

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QIcon>

namespace tamble {
namespace {

QList<QUrl> urlsOf(const QStringList& arguments) {
    QList<QUrl> urls;
    for (const QString& argument : arguments) {
        const QUrl url(argument);
        urls << (url.isLocalFile() ? url : urlOf(std::filesystem::absolute(argument.toStdString())));
    }
    return urls;
}

}  // namespace

int runDesktop(int argumentCount, char** arguments) {
    QGuiApplication application(argumentCount, arguments);
    QGuiApplication::setApplicationName(QStringLiteral("Tamble"));
    QGuiApplication::setApplicationVersion(QStringLiteral(TAMBLE_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("io.github.tamble.Tamble"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/qt/qml/Tamble/icon.svg")));

    const Language language{QLocale()};
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::translate("Desktop", "Drop files in, pick what to do, done."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QCoreApplication::translate("Desktop", "Files and folders to open."),
                                 QStringLiteral("[files…]"));
    parser.process(application);
    const QList<QUrl> urls = urlsOf(parser.positionalArguments());

    SingleInstance instance(SingleInstance::defaultName());
    if (instance.handOver(urls)) return 0;
    instance.listen();

    AppWindow window;
    if (window.window() == nullptr) return 1;
    tellFirstFrame(*window.window());
    App& app = window.app();
    QObject::connect(&instance, &SingleInstance::arrived, &app, [&app](const QList<QUrl>& arrived) {
        emit app.raiseRequested();
        if (!arrived.isEmpty()) app.take(arrived);
    });
    QMetaObject::invokeMethod(
        &app,
        [&app, urls] {
            app.begin();
            if (!urls.isEmpty()) app.take(urls);
        },
        Qt::QueuedConnection);
    return QGuiApplication::exec();
}

}  // namespace tamble
