import QtQuick
import Tamble

// Where a signature is drawn, read from a picture, or taken again.
Column {
    id: root

    spacing: Theme.space3
    visible: App.document.state === DocumentModel.Ready

    Component.onCompleted: App.savedSignatures.reload()

    Rectangle {
        id: pad

        width: parent.width
        height: Math.round(width * 0.5)
        radius: 12
        color: "#FFFFFF"
        border { width: 1; color: Theme.line }

        Rectangle {
            x: 20
            y: Math.round(parent.height * 0.74)
            width: parent.width - 40
            height: 1
            color: "#33211E2B"
        }
        Label {
            anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: 12 }
            width: parent.width - 40
            visible: App.ink.isEmpty
            color: "#625D70"
            text: App.ink.isBusy ? qsTr("Reading the picture…") : qsTr("Draw here")
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
        }
        InkPad {
            anchors { fill: parent; margins: 1 }
            ink: App.ink
            Accessible.role: Accessible.Canvas
            Accessible.name: qsTr("Drawing area for your signature")

            MouseArea {
                anchors.fill: parent
                preventStealing: true
                cursorShape: Qt.CrossCursor
                onPressed: mouse => App.ink.begin(mouse.x / width, mouse.y / width)
                onPositionChanged: mouse => App.ink.extend(inside(mouse.x, width) / width, inside(mouse.y, height) / width)
                onReleased: mouse => App.ink.end(inside(mouse.x, width) / width, inside(mouse.y, height) / width)

                function inside(at, side) {
                    return Math.max(2, Math.min(side - 2, at))
                }
            }
        }
        Row {
            anchors { right: parent.right; top: parent.top; margins: 2 }
            visible: !App.ink.isEmpty

            IconButton { sign: "ui.undo"; text: qsTr("Undo the last stroke"); signColor: "#625D70"; onClicked: App.ink.undo() }
            IconButton { sign: "ui.close"; text: qsTr("Clear"); signColor: "#625D70"; onClicked: App.ink.clear() }
        }
    }

    Segments {
        width: parent.width
        options: [{ "label": qsTr("Black ink") }, { "label": qsTr("Blue ink") }]
        current: App.ink.isBlue ? 1 : 0
        onPicked: index => App.ink.isBlue = index === 1
    }

    Flow {
        width: parent.width
        spacing: Theme.space2

        PushButton {
            text: qsTr("Put it on the page")
            sign: "ui.check"
            enabled: !App.ink.isEmpty
            onClicked: App.ink.use()
        }
        PushButton {
            text: qsTr("From a picture…")
            sign: "ui.picture"
            enabled: !App.ink.isBusy
            onClicked: App.choose("file", "", urls => App.ink.read(urls[0]))
        }
    }
    Toggle {
        width: parent.width
        text: qsTr("Keep for next time")
        description: qsTr("Stays on this computer.")
        category: "pdf"
        on: App.ink.keeps
        onSwitched: on => App.ink.keeps = on
    }

    Label { width: parent.width; visible: App.savedSignatures.count > 0; kind: "strong"; text: qsTr("Your signatures"); topPadding: Theme.space1 }
    Flow {
        width: parent.width
        spacing: Theme.space2
        visible: App.savedSignatures.count > 0

        Repeater {
            model: App.savedSignatures

            PushButton {
                id: saved

                required property int index
                required property string picture

                width: Math.floor((root.width - Theme.space2) / 2)
                height: 68
                text: qsTr("Signature %1").arg(index + 1)
                Accessible.description: qsTr("Puts it on the page. Delete forgets it.")
                onClicked: App.savedSignatures.choose(index)
                Keys.onDeletePressed: forget.ask(index)

                contentItem: Image {
                    source: saved.picture
                    fillMode: Image.PreserveAspectFit
                    mipmap: true
                }
                background: Rectangle {
                    radius: Theme.controlRadius
                    color: "#FFFFFF"
                    border { width: saved.hovered ? 2 : 1; color: saved.hovered ? Theme.hue("pdf") : Theme.line }

                    FocusRing { of: saved; around: parent.radius }
                }
                RemoveMark {
                    visible: saved.hovered || saved.visualFocus
                    anchors.margins: 3
                    Accessible.name: qsTr("Delete this signature")
                    onClicked: forget.ask(saved.index)
                }
            }
        }
    }

    Question {
        id: forget

        property int row: -1

        heading: qsTr("Delete this signature?")
        explanation: qsTr("It is gone for good. PDFs that are signed with it stay as they are.")
        yes: qsTr("Delete it")
        no: qsTr("Keep it")
        onAgreed: App.savedSignatures.remove(row)

        function ask(which) {
            row = which
            open()
        }
    }
}
