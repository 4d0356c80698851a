#include <Tamble/Desktop/App/AppWindow.h>

#include <QQuickWindow>

/// The window's QML types are in a static library, which the linker would leave out without this.
void qml_register_types_Tamble();

namespace tamble {

AppWindow::AppWindow() {
    static const bool areTypesKnown = (qml_register_types_Tamble(), true);
    Q_UNUSED(areTypesKnown)
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    app_.prepare(engine_);
    engine_.load(QUrl(QStringLiteral("qrc:/qt/qml/Tamble/Main.qml")));
}

QQuickWindow* AppWindow::window() const {
    const auto roots = engine_.rootObjects();
    return roots.isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(roots.first());
}

}  // namespace tamble
