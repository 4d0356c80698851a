import QtQuick
import Tamble

// Stands where a tool's files will be.
Rectangle {
    id: root

    radius: Theme.dropRadius
    color: Theme.brandSoft

    DashedFrame { anchors { fill: parent; margins: 10 } }

    Column {
        anchors.centerIn: parent
        width: parent.width - 64
        spacing: Theme.space3

        Mascot {
            anchors.horizontalCenter: parent.horizontalCenter
            size: Math.min(170, root.height * 0.4)
            expression: App.intake.isBusy ? "working" : "waiting"
            moving: Theme.moves
        }
        Label { width: parent.width; kind: "heading"; text: App.tool.notice || App.tool.invitation || qsTr("Drop files here"); horizontalAlignment: Text.AlignHCenter; wrapMode: Text.Wrap }
        Label { width: parent.width; quiet: true; text: App.tool.subtitle; horizontalAlignment: Text.AlignHCenter; wrapMode: Text.Wrap }
        Grid {
            anchors.horizontalCenter: parent.horizontalCenter
            columns: root.width < 380 ? 1 : 2
            spacing: Theme.space3
            horizontalItemAlignment: Grid.AlignHCenter

            PushButton { kind: "main"; big: true; text: qsTr("Add files…"); onClicked: App.choose("files", "", urls => App.take(urls)) }
            PushButton { big: true; text: qsTr("Add folder…"); onClicked: App.choose("folder", "", urls => App.take(urls)) }
        }
    }
}
