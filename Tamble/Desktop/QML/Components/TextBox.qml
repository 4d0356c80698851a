import QtQuick
import QtQuick.Templates as T
import Tamble

T.TextField {
    id: root

    property bool secret: false
    readonly property bool visualFocus: activeFocus

    implicitHeight: Theme.control
    implicitWidth: 200
    leftPadding: secret && LayoutMirroring.enabled ? 40 : 12
    rightPadding: secret && !LayoutMirroring.enabled ? 40 : 12
    horizontalAlignment: TextInput.AlignLeft
    color: Theme.ink
    placeholderTextColor: Theme.ink2
    selectionColor: Theme.focus
    selectedTextColor: "#FFFFFF"
    selectByMouse: true
    verticalAlignment: TextInput.AlignVCenter
    echoMode: secret && !eye.checked ? TextInput.Password : TextInput.Normal
    font { family: Theme.family; pixelSize: Theme.bodySize }
    Accessible.role: Accessible.EditableText
    Accessible.passwordEdit: secret

    Text {
        x: root.leftPadding
        width: root.width - root.leftPadding - root.rightPadding
        height: root.height
        visible: !root.length && !root.preeditText
        text: root.placeholderText
        color: root.placeholderTextColor
        font: root.font
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: Theme.surface
        border { width: root.activeFocus ? 2 : 1; color: root.activeFocus ? Theme.focus : Theme.line }
    }

    T.Button {
        id: eye

        visible: root.secret
        anchors { right: parent.right; rightMargin: 4; verticalCenter: parent.verticalCenter }
        width: 28
        height: 28
        checkable: true
        Accessible.name: checked ? qsTr("Hide the password") : qsTr("Show the password")
        contentItem: Item {
            Sign {
                anchors.centerIn: parent
                name: eye.checked ? "ui.eye.off" : "ui.eye"
                size: 18
            }
        }
        background: Item {
            FocusRing { of: eye; anchors.margins: -1; around: 7 }
        }
    }
}
