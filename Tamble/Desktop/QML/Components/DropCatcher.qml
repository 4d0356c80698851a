import QtQuick
import Tamble

// Takes what is dropped anywhere in the window, and shows so while it is over it.
DropArea {
    id: root

    property string found

    keys: ["text/uri-list"]
    onEntered: drag => {
        overlay.active = true
        found = App.intake.preview(drag.urls)
        drag.accept(Qt.CopyAction)
    }
    onDropped: drop => {
        drop.accept(Qt.CopyAction)
        App.take(drop.urls)
    }

    Loader {
        id: overlay

        anchors.fill: parent
        active: false
        sourceComponent: Rectangle {
            color: Theme.dark ? "#E617151C" : "#EBF6F3EE"
            opacity: root.containsDrag ? 1 : 0
            visible: opacity > 0

            Behavior on opacity { NumberAnimation { duration: Theme.quick } }

            Rectangle {
                anchors { fill: parent; margins: 20 }
                radius: Theme.dropRadius
                color: Theme.brandSoft
                border { width: 2; color: Theme.brand }
            }
            Column {
                anchors.centerIn: parent
                spacing: Theme.space3

                Mascot {
                    anchors.horizontalCenter: parent.horizontalCenter
                    expression: "catching"
                    content: "files"
                    size: Math.min(220, root.height / 3)
                    moving: Theme.moves
                }
                Label {
                    anchors.horizontalCenter: parent.horizontalCenter
                    kind: "title"
                    text: App.job.isRunning ? qsTr("A job is running") : qsTr("Let go to add them")
                }
                Label {
                    anchors.horizontalCenter: parent.horizontalCenter
                    kind: "strong"
                    quiet: true
                    font.weight: Font.Normal
                    text: App.job.isRunning ? qsTr("Drop these once it is done.") : root.found
                }
            }
        }
    }
}
