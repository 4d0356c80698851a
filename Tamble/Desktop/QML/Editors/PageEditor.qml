import QtQuick
import Tamble

// The pages of one PDF, to be put in order or picked.
Rectangle {
    id: root

    property bool large: false

    readonly property bool ready: App.document.state === DocumentModel.Ready

    radius: 18
    color: Theme.sunken

    Component.onCompleted: App.document.isActive = true
    Component.onDestruction: App.document.isActive = false

    DocumentTrouble { anchors.fill: parent }

    Item {
        id: bar

        visible: root.ready
        width: parent.width
        height: 48

        Label {
            anchors { left: parent.left; leftMargin: Theme.space4; right: zoom.left; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
            quiet: true
            text: App.pages.summary
            elide: Text.ElideRight
        }
        Row {
            id: zoom

            anchors { right: parent.right; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }

            IconButton { sign: "ui.minus"; text: qsTr("Smaller pages"); enabled: root.large; onClicked: root.large = false }
            IconButton { sign: "ui.plus"; text: qsTr("Larger pages"); enabled: !root.large; onClicked: root.large = true }
        }
    }
    PageGrid {
        anchors { left: parent.left; right: parent.right; top: bar.bottom; bottom: parent.bottom; leftMargin: 6; rightMargin: 4; bottomMargin: 4 }
        visible: root.ready
        side: root.large ? 232 : root.height < 300 ? 76 : 116
    }

    Shortcut { sequences: [StandardKey.Undo]; enabled: root.ready && App.pages.canUndo; onActivated: App.pages.undo() }
}
