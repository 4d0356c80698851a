import QtQuick
import QtQuick.Templates as T
import Tamble

// A button with a sign alone; `text` is its name for screen readers and its hint.
T.Button {
    id: root

    property string sign
    property bool framed: false
    property int signSize: 18
    property color signColor: Theme.ink2

    implicitWidth: Theme.control
    implicitHeight: Theme.control
    opacity: enabled ? 1 : 0.4
    hoverEnabled: true
    Accessible.name: text
    Accessible.role: Accessible.Button
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        Sign {
            anchors.centerIn: parent
            name: root.sign
            size: root.signSize
            color: root.hovered ? Theme.ink : root.signColor
        }
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: root.hovered || root.down ? Theme.hover : root.framed ? Theme.surface : "transparent"
        border { width: root.framed ? 1 : 0; color: Theme.line }

        FocusRing { of: root; around: parent.radius }
    }

    Hint { of: root; text: root.text }
    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
