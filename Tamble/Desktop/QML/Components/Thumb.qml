import QtQuick
import Tamble

// A small picture of a file, or the sign of its kind.
Item {
    id: root

    property string picture
    property string kind: "ui.file"
    property real radius: 9

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: Theme.sunken
        visible: !image.isThere

        Sign {
            anchors.centerIn: parent
            name: root.kind
            size: Math.min(22, root.height * 0.6)
        }
    }
    Image {
        id: image

        // What cannot be shown comes as a single pixel.
        readonly property bool isThere: status === Image.Ready && implicitWidth > 1

        anchors.fill: parent
        source: root.picture ? "image://file/thumb/" + Math.round(root.radius * Screen.devicePixelRatio) + "/" + root.picture : ""
        sourceSize: Qt.size(Math.round(root.width * Screen.devicePixelRatio), Math.round(root.height * Screen.devicePixelRatio))
        asynchronous: true
        cache: false
        opacity: isThere ? 1 : 0

        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
    }
    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: "transparent"
        border { width: 1; color: Theme.dark ? "#22FFFFFF" : "#14000000" }
    }
}
