import QtQuick
import QtQuick.Templates as T
import Tamble

// Takes a file out of the list, not off the disk.
T.AbstractButton {
    id: root

    anchors { right: parent.right; top: parent.top }
    width: 22
    height: 22
    focusPolicy: Qt.NoFocus
    Accessible.name: qsTr("Remove from the list")
    contentItem: Item { Sign { anchors.centerIn: parent; name: "ui.close"; size: 12; color: "#FFFFFF" } }
    background: Rectangle { radius: 11; color: "#D91B1922" }
}
