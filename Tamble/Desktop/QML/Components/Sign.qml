import QtQuick
import Tamble

// A symbol in one colour.
Image {
    property string name
    property color color: Theme.ink2
    property int size: 20

    mirror: LayoutMirroring.enabled && (name === "ui.back" || name === "ui.forward" || name === "ui.chevron.right")
    width: size
    height: size
    sourceSize: Qt.size(size * Screen.devicePixelRatio, size * Screen.devicePixelRatio)
    source: name ? "image://symbol/" + name + "/" + color.toString().slice(-6) : ""
    Accessible.ignored: true
}
