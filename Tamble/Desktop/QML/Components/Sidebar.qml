import QtQuick
import QtQuick.Templates as T
import Tamble

// Where people can go. Narrow, it shows signs alone.
Item {
    id: root

    property bool narrow: false
    signal searchRequested()

    readonly property bool atWork: App.job.isRunning

    implicitWidth: narrow ? 64 : 216

    component Entry: T.AbstractButton {
        id: entry

        property string sign
        property color hue: Theme.ink2
        property bool current: false
        property int badge: 0

        width: parent.width
        implicitHeight: Theme.control
        hoverEnabled: true
        enabled: !root.atWork
        opacity: enabled || current ? 1 : 0.5
        Accessible.name: text
        Accessible.role: Accessible.Button
        Accessible.selected: current
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()

        contentItem: Item {
            Sign {
                id: mark

                x: root.narrow ? (parent.width - width) / 2 : entry.mirrored ? parent.width - width - 10 : 10
                anchors.verticalCenter: parent.verticalCenter
                name: entry.sign
                color: entry.hue
                size: 18
            }
            Label {
                anchors { left: parent.left; leftMargin: 38; right: number.left; rightMargin: 6; verticalCenter: parent.verticalCenter }
                visible: !root.narrow
                text: entry.text
                quiet: !entry.current
                font.weight: Font.Medium
                elide: Text.ElideRight
                Accessible.ignored: true
            }
            Label {
                id: number

                anchors { right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
                visible: !root.narrow && entry.badge > 0
                kind: "caption"
                quiet: true
                text: entry.badge
            }
        }
        background: Rectangle {
            radius: Theme.controlRadius
            color: entry.current ? Theme.surface : entry.hovered ? Theme.hover : "transparent"

            Shadow { radius: Theme.controlRadius; visible: entry.current }
            FocusRing { of: entry }
        }

        Hint { of: entry; beside: true; text: root.narrow ? entry.text : "" }
        HoverHandler { cursorShape: Qt.PointingHandCursor }
    }

    Rectangle {
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        width: 1
        color: Theme.line
    }

    Column {
        anchors { fill: parent; margins: root.narrow ? 10 : 12; topMargin: 18; bottomMargin: 14 }
        spacing: 2

        Item {
            width: parent.width
            height: 46

            Image {
                id: face

                x: root.narrow ? (parent.width - width) / 2 : LayoutMirroring.enabled ? parent.width - width - 8 : 8
                width: 30
                height: 30
                source: "icon.svg"
                sourceSize: Qt.size(30 * Screen.devicePixelRatio, 30 * Screen.devicePixelRatio)
            }
            Label {
                anchors { left: face.right; leftMargin: 10; verticalCenter: face.verticalCenter }
                visible: !root.narrow
                text: "Tamble"
                font { pixelSize: 18; weight: Font.Bold; letterSpacing: -0.4 }
            }
        }

        T.AbstractButton {
            id: find

            width: parent.width
            implicitHeight: Theme.control
            hoverEnabled: true
            enabled: !root.atWork
            opacity: enabled ? 1 : 0.5
            text: qsTr("Find a tool")
            Accessible.name: text
            Accessible.role: Accessible.Button
            onClicked: root.searchRequested()
            Keys.onReturnPressed: clicked()
            Keys.onEnterPressed: clicked()

            contentItem: Item {
                Sign {
                    x: root.narrow ? (parent.width - width) / 2 : find.mirrored ? parent.width - width - 10 : 10
                    anchors.verticalCenter: parent.verticalCenter
                    name: "ui.search"
                    size: 18
                }
                Label {
                    anchors { left: parent.left; leftMargin: 36; right: keys.left; rightMargin: 4; verticalCenter: parent.verticalCenter }
                    visible: !root.narrow
                    quiet: true
                    text: find.text
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }
                Rectangle {
                    id: keys

                    anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
                    visible: !root.narrow
                    width: visible ? keyText.implicitWidth + 10 : 0
                    height: 20
                    radius: 5
                    color: "transparent"
                    border { width: 1; color: Theme.line }

                    Label {
                        id: keyText

                        anchors.centerIn: parent
                        quiet: true
                        text: qsTr("Ctrl K")
                        font { pixelSize: 11; weight: Font.Medium }
                        Accessible.ignored: true
                    }
                }
            }
            background: Rectangle {
                radius: Theme.controlRadius
                color: find.hovered ? Theme.hover : Theme.surface
                border { width: 1; color: Theme.line }

                FocusRing { of: find }
            }
            Hint { of: find; beside: true; text: root.narrow ? find.text : "" }
        }

        Item { width: 1; height: 10 }

        Entry {
            text: qsTr("Home")
            sign: "ui.home"
            current: App.navigator.screen === Navigator.Home || App.navigator.screen === Navigator.Drop
            onClicked: App.intake.isEmpty ? App.navigator.open(Navigator.Home) : App.navigator.open(Navigator.Drop)
        }

        Item { width: 1; height: 8 }

        Repeater {
            model: [
                { "category": "video", "text": qsTr("Video") },
                { "category": "audio", "text": qsTr("Sound") },
                { "category": "images", "text": qsTr("Photos") },
                { "category": "pdf", "text": qsTr("PDF") },
                { "category": "smart", "text": qsTr("Smart") },
                { "category": "files", "text": qsTr("Files") }
            ]

            Entry {
                required property var modelData

                text: modelData.text
                sign: "category." + modelData.category
                hue: Theme.hue(modelData.category)
                current: App.navigator.screen === Navigator.Category ? App.navigator.category === modelData.category
                         : (App.navigator.screen === Navigator.Tool || App.navigator.screen === Navigator.Work || App.navigator.screen === Navigator.Done)
                           && App.tool.category === modelData.category
                onClicked: App.navigator.open(Navigator.Category, modelData.category)
            }
        }
    }

    Column {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: root.narrow ? 10 : 12; bottomMargin: 14 }
        spacing: 2

        Entry {
            text: qsTr("Activity")
            sign: "ui.activity"
            badge: App.activity.count
            current: App.navigator.screen === Navigator.Activity
            onClicked: App.navigator.open(Navigator.Activity)
        }
        Entry {
            text: qsTr("Settings")
            sign: "ui.settings"
            current: App.navigator.screen === Navigator.Settings
            onClicked: App.navigator.open(Navigator.Settings)
        }
    }
}
