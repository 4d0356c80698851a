import QtQuick
import QtQuick.Templates as T
import Tamble

// On or off, with what it means.
T.Switch {
    id: root

    property string description
    property string category
    property bool on: false
    signal switched(bool on)

    // Whoever is asked decides whether it is on: a switch that turned itself would no longer follow.
    checkable: false
    checked: on
    onClicked: switched(!on)

    implicitHeight: Math.max(Theme.control, texts.implicitHeight + 12)
    hoverEnabled: true
    Accessible.name: text
    Accessible.description: description
    Accessible.role: Accessible.CheckBox
    Accessible.checked: on
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    indicator: Rectangle {
        x: root.mirrored ? 0 : root.width - width
        y: (root.height - height) / 2
        width: 40
        height: 24
        radius: 12
        color: root.checked ? (root.category ? Theme.hue(root.category) : Theme.brand) : Theme.line

        Behavior on color { ColorAnimation { duration: Theme.quick } }

        Rectangle {
            x: (root.checked !== root.mirrored) ? parent.width - width - 3 : 3
            y: 3
            width: 18
            height: 18
            radius: 9
            color: "#FFFFFF"

            Behavior on x { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }
        }
        FocusRing { of: root; around: 12 }
    }

    contentItem: Column {
        id: texts

        leftPadding: root.mirrored ? 56 : 0
        topPadding: Math.max(0, (root.height - (name.implicitHeight + (detail.visible ? detail.implicitHeight : 0))) / 2)

        Label {
            id: name

            width: parent.width - 56
            text: root.text
            font.weight: Font.Medium
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        Label {
            id: detail

            width: parent.width - 56
            visible: text
            quiet: true
            text: root.description
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
