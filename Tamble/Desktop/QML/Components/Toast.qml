import QtQuick
import Tamble

// A short message at the foot of the window, gone after a while.
Rectangle {
    id: root

    property string actionText
    signal action()

    function say(sentence, actionName) {
        message.text = sentence
        actionText = actionName ?? ""
        shown = true
        away.restart()
    }

    property bool shown: false

    width: Math.min(parent.width - 48, content.implicitWidth + 36)
    height: Math.max(44, content.implicitHeight + 20)
    radius: 14
    color: Theme.ink
    opacity: shown ? 1 : 0
    visible: opacity > 0
    Accessible.role: Accessible.AlertMessage
    Accessible.name: message.text

    Behavior on opacity { NumberAnimation { duration: Theme.calm } }

    Timer {
        id: away

        interval: 3000 + 60 * message.text.length
        onTriggered: hover.hovered ? restart() : root.shown = false
    }
    HoverHandler { id: hover }

    Row {
        id: content

        anchors.centerIn: parent
        spacing: Theme.space4

        Label {
            id: message

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, root.parent.width - 120 - (button.visible ? button.width : 0))
            color: Theme.paper
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        PushButton {
            id: button

            anchors.verticalCenter: parent.verticalCenter
            visible: root.actionText
            text: root.actionText
            onClicked: { root.shown = false; root.action() }
        }
    }
}
