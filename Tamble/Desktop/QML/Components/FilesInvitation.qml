import QtQuick
import Tamble

// Stands where a tool's files will be.
Rectangle {
    id: root

    readonly property bool low: height < 300

    radius: Theme.dropRadius
    color: Theme.brandSoft

    DashedFrame { anchors { fill: parent; margins: 10 } }

    Column {
        anchors.centerIn: parent
        width: parent.width - 48
        spacing: root.low ? Theme.space2 : Theme.space3

        Mascot {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: !root.low
            size: Math.min(170, root.height * 0.4)
            expression: App.intake.isBusy ? "working" : "waiting"
            moving: Theme.moves
        }
        Label { width: parent.width; kind: "heading"; text: App.tool.notice || App.tool.invitation || qsTr("Drop files here"); horizontalAlignment: Text.AlignHCenter; wrapMode: Text.Wrap }
        Label { width: parent.width; quiet: true; text: App.tool.subtitle; horizontalAlignment: Text.AlignHCenter; wrapMode: Text.Wrap }
        Grid {
            anchors.horizontalCenter: parent.horizontalCenter
            columns: files.implicitWidth + folder.implicitWidth + spacing > parent.width ? 1 : 2
            spacing: Theme.space2
            horizontalItemAlignment: Grid.AlignHCenter

            PushButton { id: files; kind: "main"; big: !root.low; text: qsTr("Add files…"); onClicked: App.choose("files", "", urls => App.take(urls)) }
            PushButton { id: folder; big: !root.low; text: qsTr("Add folder…"); onClicked: App.choose("folder", "", urls => App.take(urls)) }
        }
    }
}
