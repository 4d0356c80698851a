import QtQuick
import QtQuick.Templates as T
import Tamble

// A tool to be picked.
T.AbstractButton {
    id: root

    required property string toolID
    required property string title
    required property string subtitle
    required property string symbol
    required property string category
    required property string files
    required property bool available
    property bool large: false

    implicitHeight: large ? 92 : 72
    padding: large ? 20 : 16
    hoverEnabled: true
    text: title
    opacity: available ? 1 : 0.6
    Accessible.name: files ? title + ", " + files : title
    Accessible.description: available ? subtitle : notYet.text
    Accessible.role: Accessible.Button
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    onClicked: App.openTool(toolID)

    contentItem: Item {
        Tile {
            id: tile

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            symbol: root.symbol
            category: root.category
            size: root.large ? 52 : 40
        }
        Column {
            anchors {
                left: tile.right; leftMargin: 14
                right: count.left; rightMargin: count.text ? Theme.space3 : 0
                verticalCenter: parent.verticalCenter
            }

            Label {
                id: name

                width: parent.width
                kind: "strong"
                text: root.title
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
                Accessible.ignored: true
            }
            Label {
                width: parent.width
                visible: name.lineCount === 1 || root.large
                quiet: true
                text: root.subtitle
                elide: Text.ElideRight
                maximumLineCount: 1
                Accessible.ignored: true
            }
        }
        Label {
            id: count

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            kind: "caption"
            quiet: true
            text: !root.available ? notYet.text : root.large ? root.files : ""
            Accessible.ignored: true
        }
    }

    QtObject {
        id: notYet

        readonly property string text: qsTr("Not yet")
    }

    background: Rectangle {
        radius: Theme.cardRadius
        color: Theme.surface

        Shadow { lifted: root.hovered && root.available }
        FocusRing { of: root; around: Theme.cardRadius }
    }

    transform: Translate {
        y: root.down ? 0 : root.hovered && root.available ? -2 : 0

        Behavior on y { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
