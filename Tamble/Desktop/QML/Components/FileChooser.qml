pragma Singleton

import QtQuick

// The system's dialogs for files and folders, loaded when first needed.
QtObject {
    id: root

    property var pending: null
    property Component dialogs: null
    property var shown: null

    function files() { show("files", urls => App.take(urls)) }
    function folder() { show("folder", urls => App.take(urls)) }
    function aFolder(start: url, take) { show("folder", urls => take(urls[0]), start) }
    function aFile(take) { show("file", urls => take(urls[0])) }

    function show(kind, take, start) {
        if (!dialogs)
            dialogs = Qt.createComponent("FileDialogs.qml")
        if (dialogs.status === Component.Error) {
            console.warn(dialogs.errorString())
            return
        }
        if (shown)
            shown.destroy()
        shown = dialogs.createObject(null, { "kind": kind, "take": take, "start": start ?? "" })
        shown.open()
    }
}
