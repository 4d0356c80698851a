import QtQuick
import Tamble

// A tool's symbol on its category's tint.
Rectangle {
    property string symbol
    property string category
    property int size: 40

    width: size
    height: size
    implicitWidth: size
    implicitHeight: size
    radius: size * 0.3
    color: Theme.tint(category)

    Sign {
        anchors.centerIn: parent
        name: parent.symbol
        color: Theme.hue(parent.category)
        size: Math.round(parent.size * 0.55)
    }
}
