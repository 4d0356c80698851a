import QtQuick
import Tamble

// A page of the document in its own shape, as large as fits, and turned.
Item {
    id: root

    property string picture
    property real ratio: 0.707
    property int turn: 0
    property int pixels: Math.round(Math.max(width, height) * Screen.devicePixelRatio)

    readonly property bool lies: turn % 180 !== 0
    readonly property real shownRatio: lies ? 1 / ratio : ratio
    readonly property real sheetWidth: Math.round(Math.min(width, height * shownRatio))
    readonly property real sheetHeight: Math.round(Math.min(height, width / shownRatio))
    readonly property alias sheet: sheet

    Rectangle {
        id: sheet

        anchors.centerIn: parent
        width: root.lies ? root.sheetHeight : root.sheetWidth
        height: root.lies ? root.sheetWidth : root.sheetHeight
        rotation: root.turn
        radius: 3
        color: "#FFFFFF"

        Behavior on rotation { RotationAnimation { duration: Theme.calm; direction: RotationAnimation.Shortest; easing.type: Easing.OutCubic } }

        Image {
            id: image

            anchors.fill: parent
            source: root.picture ? "image://file/" + root.picture : ""
            sourceSize: Qt.size(root.pixels, root.pixels)
            asynchronous: true
            cache: false
            opacity: status === Image.Ready ? 1 : 0

            Behavior on opacity { NumberAnimation { duration: Theme.quick } }
        }
        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: "transparent"
            border { width: 1; color: Theme.dark ? "#33FFFFFF" : "#1F211E2B" }
        }
    }
}
