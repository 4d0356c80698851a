import QtQuick
import QtQuick.Templates as T
import Tamble

T.ScrollBar {
    id: root

    implicitWidth: 12
    minimumSize: 0.06
    padding: 3
    visible: size < 1
    policy: T.ScrollBar.AsNeeded

    contentItem: Rectangle {
        implicitWidth: 6
        radius: 3
        color: Theme.ink2
        opacity: root.pressed ? 0.8 : root.hovered || root.active ? 0.5 : 0.25

        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
    }
}
