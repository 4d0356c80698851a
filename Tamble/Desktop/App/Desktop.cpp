#include <Tamble/Desktop/App/App.h>
#include <Tamble/Desktop/App/Desktop.h>
#include <Tamble/Desktop/App/SingleInstance.h>
#include <Tamble/Desktop/Support/Texts.h>

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QIcon>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTranslator>
#include <iostream>

/// The window's QML types are in a static library, which the linker would leave out without this.
void qml_register_types_Tamble();

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

void translate(QGuiApplication& application, QTranslator& english, QTranslator& own) {
    // English as well: its plurals.
    if (english.load(QStringLiteral(":/i18n/tamble_en.qm"))) QCoreApplication::installTranslator(&english);
    if (own.load(QLocale(), QStringLiteral("tamble"), QStringLiteral("_"), QStringLiteral(":/i18n")))
        QCoreApplication::installTranslator(&own);
    QGuiApplication::setLayoutDirection(QLocale().textDirection());
    Q_UNUSED(application)
}

}  // namespace

int runDesktop(int argumentCount, char** arguments) {
    QGuiApplication application(argumentCount, arguments);
    QGuiApplication::setApplicationName(QStringLiteral("Tamble"));
    QGuiApplication::setApplicationVersion(QStringLiteral(TAMBLE_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("io.github.tamble.Tamble"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/qt/qml/Tamble/icon.svg")));

    QTranslator english, own;
    translate(application, english, own);
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

    qml_register_types_Tamble();
    App app(nullptr);
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    app.prepare(engine);
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Tamble/Main.qml")));
    if (engine.rootObjects().isEmpty()) return 1;
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
