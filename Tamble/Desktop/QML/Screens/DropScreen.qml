import QtQuick
import Tamble

Scroller {
    id: root

    property int margin: 36

    contentHeight: column.height + 2 * margin

    Column {
        id: column

        x: root.margin
        y: Math.min(28, root.margin)
        width: root.width - 2 * root.margin
        spacing: 22

        Item {
            readonly property bool stacked: actions.width > width / 2

            width: parent.width
            height: stacked ? 84 + Theme.space3 + actions.height : 84

            Mascot {
                id: mascot

                anchors.left: parent.left
                size: 84
                expression: App.intake.isBusy ? "working" : "happy"
                content: "files"
                moving: App.intake.isBusy && Theme.moves
            }
            Column {
                anchors { left: mascot.right; leftMargin: 20; right: parent.stacked ? parent.right : actions.left; rightMargin: 16; verticalCenter: mascot.verticalCenter }
                spacing: 2

                Label { width: parent.width; kind: "title"; text: App.intake.title; elide: Text.ElideRight }
                Label { width: parent.width; kind: "strong"; font.weight: Font.Normal; quiet: true; text: App.intake.isBusy ? qsTr("Looking through it…") : App.intake.subtitle; wrapMode: Text.Wrap; maximumLineCount: 2; elide: Text.ElideRight }
            }
            Row {
                id: actions

                anchors.right: parent.right
                y: parent.stacked ? parent.height - height : (parent.height - height) / 2
                spacing: Theme.space2

                AddButton {}
                PushButton { kind: "quiet"; text: qsTr("Start over"); onClicked: App.startOver() }
            }
        }
        Flow {
            width: parent.width
            spacing: Theme.space2
            visible: App.intake.notes.length > 0

            Repeater {
                model: App.intake.notes

                Chip { required property string modelData; text: modelData }
            }
        }
        Column {
            width: parent.width
            spacing: Theme.space3

            Label { width: parent.width; kind: "heading"; text: App.intake.best.count > 0 ? qsTr("What would you like to do?") : qsTr("No tool works with these yet") }
            ToolGrid { width: parent.width; model: App.intake.best; most: 2; large: true }
        }
        Column {
            width: parent.width
            spacing: Theme.space3
            visible: App.intake.others.count > 0

            Item {
                width: parent.width
                height: others.height

                Label { id: others; anchors.left: parent.left; kind: "heading"; text: qsTr("Everything else that fits") }
                TextLink {
                    anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                    text: qsTr("All %n tool(s)", "", App.toolCount)
                    onClicked: App.navigator.open(Navigator.Category, "")
                }
            }
            ToolGrid { width: parent.width; model: App.intake.others }
        }
    }
}
