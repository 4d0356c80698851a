import QtQuick
import Tamble

// A dashed line with round corners.
Image {
    property real radius: 20

    readonly property real scaling: Screen.devicePixelRatio

    opacity: 0.45
    sourceSize: Qt.size(Math.round(width * scaling), Math.round(height * scaling))
    source: width > 0 && height > 0
            ? "image://dashes/" + radius * scaling + "/" + 2 * scaling + "/" + Theme.brand.toString().slice(-6) : ""
    cache: false
    Accessible.ignored: true
}
