import QtQuick
import QtQuick.Templates as T
import Tamble

T.MenuItem {
    id: root

    property string sign

    implicitWidth: 178
    implicitHeight: Theme.control
    Accessible.name: text

    contentItem: Item {
        Sign { id: mark; anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter } name: root.sign; size: 18 }
        Label { anchors { left: mark.right; leftMargin: 10; right: parent.right; verticalCenter: parent.verticalCenter } text: root.text; elide: Text.ElideRight; Accessible.ignored: true }
    }
    background: Rectangle { radius: 8; color: root.highlighted ? Theme.hover : "transparent" }
}
