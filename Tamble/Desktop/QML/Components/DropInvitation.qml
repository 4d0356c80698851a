import QtQuick
import Tamble

// The large area that asks for files.
Rectangle {
    id: root

    property real lowest: 286
    readonly property bool tight: width < 620

    implicitHeight: Math.max(lowest, words.implicitHeight + 48)

    radius: Theme.dropRadius
    color: Theme.brandSoft

    DashedFrame {
        anchors { fill: parent; margins: 10 }
        radius: 20
    }

    Mascot {
        id: mascot

        anchors { left: parent.left; leftMargin: root.tight ? 24 : 56; verticalCenter: parent.verticalCenter }
        size: Math.min(220, root.lowest - 50, root.width * 0.3)
        expression: App.intake.isBusy ? "working" : "waiting"
        content: "files"
        moving: Theme.moves
    }
    Column {
        id: words

        anchors { left: mascot.right; leftMargin: root.tight ? 20 : 48; right: parent.right; rightMargin: 28; verticalCenter: parent.verticalCenter }
        spacing: Theme.space2

        Label {
            width: parent.width
            kind: "display"
            font.pixelSize: root.tight ? Theme.titleSize : Theme.displaySize
            text: App.intake.isBusy ? qsTr("Looking through it…") : qsTr("Drop anything here")
            wrapMode: Text.Wrap
        }
        Label {
            anchors.left: parent.left
            width: Math.min(parent.width, 430)
            kind: "strong"
            font.weight: Font.Normal
            quiet: true
            text: qsTr("Photos, videos, sound, PDFs, documents. Whole folders too. Everything happens on this computer.")
            wrapMode: Text.Wrap
        }
        Item { width: 1; height: 6 }
        Flow {
            width: parent.width
            spacing: Theme.space3

            PushButton { kind: "main"; big: true; text: qsTr("Add files…"); onClicked: App.choose("files", "", urls => App.take(urls)) }
            PushButton { big: true; text: qsTr("Add folder…"); onClicked: App.choose("folder", "", urls => App.take(urls)) }
        }
    }
}
