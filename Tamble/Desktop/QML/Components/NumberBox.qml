import QtQuick
import QtQuick.Templates as T
import Tamble

T.SpinBox {
    id: root

    implicitHeight: Theme.control
    implicitWidth: 140
    editable: true
    stepSize: 1
    leftPadding: 40
    rightPadding: 40
    font { family: Theme.family; pixelSize: Theme.bodySize }
    validator: IntValidator { bottom: root.from; top: root.to }
    textFromValue: (value, locale) => value.toString()
    valueFromText: (text, locale) => parseInt(text) || root.from
    Accessible.role: Accessible.SpinBox

    contentItem: TextInput {
        text: root.displayText
        font: root.font
        color: Theme.ink
        selectionColor: Theme.focus
        selectedTextColor: "#FFFFFF"
        horizontalAlignment: Qt.AlignHCenter
        verticalAlignment: Qt.AlignVCenter
        validator: root.validator
        inputMethodHints: Qt.ImhDigitsOnly
        selectByMouse: true
    }

    component Step: Item {
        property string sign
        property bool held

        implicitWidth: Theme.control
        implicitHeight: Theme.control

        Rectangle {
            anchors { fill: parent; margins: 4 }
            radius: 7
            color: parent.held ? Theme.line : hover.hovered ? Theme.hover : "transparent"
        }
        Sign {
            anchors.centerIn: parent
            name: parent.sign
            size: 16
        }
        HoverHandler { id: hover }
    }

    up.indicator: Step {
        x: root.mirrored ? 0 : root.width - width
        sign: "ui.plus"
        held: root.up.pressed
    }
    down.indicator: Step {
        x: root.mirrored ? root.width - width : 0
        sign: "ui.minus"
        held: root.down.pressed
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: Theme.surface
        border { width: root.activeFocus ? 2 : 1; color: root.activeFocus ? Theme.focus : Theme.line }
    }
}
