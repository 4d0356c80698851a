import QtQuick
import QtQuick.Templates as T
import Tamble

// One of several choices, with what it means.
T.RadioButton {
    id: root

    property string description
    property string category
    property bool chosen: false

    implicitHeight: texts.implicitHeight + 11
    leftPadding: 12
    rightPadding: 12
    checked: chosen
    checkable: false // whoever is asked decides what is chosen
    hoverEnabled: true
    Accessible.name: text
    Accessible.role: Accessible.RadioButton
    Accessible.checked: chosen
    Accessible.description: description
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    indicator: Rectangle {
        x: root.mirrored ? root.width - width - 12 : 12
        y: root.description ? 12 : (root.height - height) / 2
        width: 18
        height: 18
        radius: 9
        color: "transparent"
        border { width: root.chosen ? 5.5 : 1.5; color: root.chosen ? Theme.hue(root.category) : Theme.ink2 }
    }

    contentItem: Column {
        id: texts

        topPadding: 11
        leftPadding: root.mirrored ? 0 : 30
        rightPadding: root.mirrored ? 30 : 0

        Label {
            width: parent.width - 30
            kind: "strong"
            text: root.text
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        Label {
            width: parent.width - 30
            visible: text
            quiet: true
            text: root.description
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        radius: 12
        color: root.chosen ? Theme.tint(root.category) : root.hovered ? Theme.hover : "transparent"
        border { width: root.chosen ? 1.5 : 0; color: Theme.hue(root.category) }

        FocusRing { of: root; around: 12 }
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
