import QtQuick
import Tamble

Rectangle {
    property alias text: label.text

    implicitHeight: Math.max(26, label.implicitHeight + 10)
    implicitWidth: label.implicitWidth + 22
    radius: 13
    color: Theme.surface
    border { width: 1; color: Theme.line }

    Label {
        id: label

        anchors { fill: parent; leftMargin: 11; rightMargin: 11 }
        quiet: true
        font.weight: Font.Medium
        elide: Text.ElideRight
    }
}
