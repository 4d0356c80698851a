import QtQuick
import QtQuick.Templates as T
import Tamble

T.Button {
    id: root

    property string kind: "plain" // plain, main, quiet, danger
    property bool big: false
    property string sign
    property int elide: Text.ElideRight

    readonly property bool main: kind === "main"
    readonly property color inkColor: main ? Theme.brandInk : kind === "danger" ? Theme.bad : kind === "quiet" ? Theme.ink2 : Theme.ink

    implicitHeight: big ? Theme.mainControl : Theme.control
    implicitWidth: Math.max(implicitHeight, Math.ceil(implicitContentWidth) + leftPadding + rightPadding)
    leftPadding: big ? 24 : 16
    rightPadding: leftPadding
    opacity: enabled ? 1 : 0.45
    hoverEnabled: true
    font { family: Theme.family; pixelSize: big ? Theme.strongSize : Theme.bodySize; weight: Font.DemiBold }
    Accessible.name: text
    Accessible.role: Accessible.Button
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        implicitWidth: (root.sign ? 18 + Theme.space2 : 0) + label.implicitWidth

        Row {
            anchors.centerIn: parent
            spacing: Theme.space2

            Sign {
                anchors.verticalCenter: parent.verticalCenter
                visible: root.sign
                name: root.sign
                color: root.inkColor
                size: 18
            }
            Text {
                id: label

                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(Math.ceil(implicitWidth), root.availableWidth - (root.sign ? 18 + Theme.space2 : 0))
                text: root.text
                font: root.font
                color: root.inkColor
                elide: root.elide
                textFormat: Text.PlainText
                Accessible.ignored: true
            }
        }
    }

    background: Rectangle {
        radius: root.big ? 12 : Theme.controlRadius
        color: root.main ? (root.hovered ? Theme.brandHover : Theme.brand)
               : root.kind === "quiet" ? (root.hovered ? Theme.hover : "transparent")
               : root.hovered ? Theme.hover : Theme.surface
        border { width: root.main || root.kind === "quiet" ? 0 : 1; color: Theme.line }
        scale: root.down ? 0.98 : 1

        Behavior on color { ColorAnimation { duration: Theme.quick } }
        Behavior on scale { NumberAnimation { duration: Theme.quick } }

        FocusRing { of: root; around: parent.radius }
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
