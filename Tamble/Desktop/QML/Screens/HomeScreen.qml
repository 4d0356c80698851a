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
        spacing: Theme.space5

        DropInvitation { width: parent.width; height: implicitHeight; lowest: root.height < 620 ? 220 : 286 }

        Column {
            width: parent.width
            spacing: Theme.space3

            Item {
                width: parent.width
                height: popular.height

                Label { id: popular; anchors.left: parent.left; kind: "heading"; text: qsTr("Popular") }
                TextLink {
                    anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                    text: qsTr("All %n tool(s)", "", App.toolCount)
                    onClicked: App.navigator.open(Navigator.Category, "")
                }
            }
            ToolGrid { width: parent.width; model: App.popular }
        }
        Column {
            width: parent.width
            spacing: Theme.space3
            visible: App.activity.count > 0

            Item {
                width: parent.width
                height: recent.height

                Label { id: recent; anchors.left: parent.left; kind: "heading"; text: qsTr("Recent") }
                TextLink {
                    anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                    visible: App.activity.count > 3
                    text: qsTr("All activity")
                    onClicked: App.navigator.open(Navigator.Activity)
                }
            }
            RecentJobs { width: parent.width }
        }
    }
}
