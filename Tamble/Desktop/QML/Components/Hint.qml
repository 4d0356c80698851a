import QtQuick
import QtQuick.Templates as T
import Tamble

// What a sign means, a moment after the pointer came to rest on it.
T.ToolTip {
    id: root

    property Item of
    property bool beside: false // in place of below

    parent: of
    visible: of.hovered && text
    delay: 600
    margins: 6
    padding: 6
    leftPadding: 10
    rightPadding: 10
    x: beside ? (of.mirrored ? -width - 8 : of.width + 8) : (of.width - width) / 2
    y: beside ? (of.height - height) / 2 : of.height + 6
    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding

    contentItem: Text {
        text: root.text
        color: Theme.dark ? Theme.paper : "#FFFFFF"
        font { family: Theme.family; pixelSize: Theme.captionSize }
        textFormat: Text.PlainText
    }
    background: Rectangle {
        radius: 8
        color: Theme.ink
    }
}
