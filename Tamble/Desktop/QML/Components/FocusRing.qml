import QtQuick
import Tamble

// Shows where the keyboard is: 2 px outside its parent.
Rectangle {
    property Item of: parent
    property real around: Theme.controlRadius

    anchors.fill: parent
    anchors.margins: -4
    radius: around + 4
    color: "transparent"
    border { width: 2; color: Theme.focus }
    visible: of.visualFocus
}
