import QtQuick
import Tamble

Rectangle {
    id: root

    property real value: 0

    implicitHeight: 10
    radius: 5
    color: Theme.sunken
    border { width: 1; color: Theme.line }
    Accessible.role: Accessible.ProgressBar
    Accessible.name: Math.round(value * 100) + " %"

    Rectangle {
        anchors.left: parent.left
        width: Math.max(parent.height, parent.width * root.value)
        height: parent.height
        radius: 5
        color: Theme.brand
        visible: root.value > 0

        Behavior on width { NumberAnimation { duration: Theme.quick } }
    }
}
