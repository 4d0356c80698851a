import QtQuick
import Tamble

// The screen that is shown; a screen is made when it is first needed.
Item {
    id: root

    property int margin: 36

    readonly property var sources: ["HomeScreen.qml", "DropScreen.qml", "CategoryScreen.qml", "ToolScreen.qml",
                                    "WorkScreen.qml", "DoneScreen.qml", "ActivityScreen.qml", "SettingsScreen.qml"]

    Loader {
        id: loader

        anchors.fill: parent
        source: root.sources[App.navigator.screen]
        onLoaded: {
            item.margin = Qt.binding(() => root.margin)
            entrance.restart()
        }
    }

    ParallelAnimation {
        id: entrance

        NumberAnimation { target: loader.item; property: "opacity"; from: Theme.moves ? 0 : 1; to: 1; duration: Theme.screen; easing.type: Easing.OutCubic }
        NumberAnimation { target: loader; property: "anchors.topMargin"; from: Theme.moves ? 8 : 0; to: 0; duration: Theme.screen; easing.type: Easing.OutCubic }
    }
}
