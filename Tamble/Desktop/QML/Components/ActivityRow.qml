import QtQuick
import Tamble

// One job of the log.
Item {
    id: root

    required property int index
    required property string entryID
    required property string title
    required property string subject
    required property string sizes
    required property string time
    required property string symbol
    required property string category
    required property bool isUndone
    required property bool isUndoing
    required property string report
    required property bool canShow
    required property string details
    property bool compact: false

    Divider { width: parent.width; visible: root.index > 0 }

    Tile {
        id: tile

        x: LayoutMirroring.enabled ? parent.width - width - 16 : 16
        anchors.verticalCenter: parent.verticalCenter
        size: root.compact ? 32 : 40
        symbol: root.symbol
        category: root.category
        opacity: root.isUndone ? 0.5 : 1
    }
    Column {
        anchors { left: tile.right; leftMargin: 12; right: end.left; rightMargin: 12; verticalCenter: parent.verticalCenter }

        Item {
            width: parent.width
            height: title.implicitHeight

            Label {
                id: title

                anchors.left: parent.left
                width: Math.min(implicitWidth, parent.width)
                text: root.title
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }
            Label {
                anchors { left: title.right; right: parent.right }
                quiet: true
                text: " · " + root.subject + (root.sizes ? " · " + root.sizes : "")
                elide: Text.ElideRight
            }
        }
        Label {
            width: parent.width
            visible: !root.compact
            quiet: true
            text: root.report || root.details
            elide: Text.ElideRight
        }
    }
    Row {
        id: end

        anchors { right: parent.right; rightMargin: 16; verticalCenter: parent.verticalCenter }
        spacing: Theme.space2

        Label { anchors.verticalCenter: parent.verticalCenter; quiet: true; text: root.time; rightPadding: 4 }
        IconButton {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.canShow && !root.compact
            sign: "ui.folder"
            text: qsTr("Show in folder")
            onClicked: App.activity.showInFolder(root.entryID)
        }
        PushButton {
            anchors.verticalCenter: parent.verticalCenter
            implicitHeight: 30
            enabled: !root.isUndone && !root.isUndoing
            text: root.isUndone ? qsTr("Undone") : root.isUndoing ? qsTr("Undoing…") : qsTr("Undo")
            Accessible.description: qsTr("Remove the new files and put the originals back")
            onClicked: App.activity.undo(root.entryID)
        }
    }
}
