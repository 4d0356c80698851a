import QtQuick
import Tamble

// The system's dialogs for files and folders, loaded when first asked for.
QtObject {
    id: root

    property Component dialogs: null
    property var shown: null

    function show(kind, start, take) {
        if (!dialogs)
            dialogs = Qt.createComponent("FileDialogs.qml")
        if (dialogs.status === Component.Error) {
            console.warn(dialogs.errorString())
            return
        }
        if (shown)
            shown.destroy()
        shown = dialogs.createObject(null, { "kind": kind, "take": take, "start": start })
        shown.open()
    }

    property Connections requests: Connections {
        target: App
        function onChoiceRequested(kind, start, take) { root.show(kind, start, take) }
    }
}
