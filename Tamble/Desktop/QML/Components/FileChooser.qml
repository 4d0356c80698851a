import QtQuick
import Tamble

// The system's dialogs for files and folders, loaded when first asked for.
Item {
    id: root

    property var take: null

    function show(kind, start, take) {
        root.take = take
        loader.active = true
        if (loader.item)
            loader.item.ask(kind, start)
    }

    Loader {
        id: loader

        active: false
        source: "FileDialogs.qml"
    }
    Connections {
        target: loader.item
        function onChosen(urls) { root.take(urls) }
    }
    Connections {
        target: App
        function onChoiceRequested(kind, start, take) { root.show(kind, start, take) }
    }
}
