import QtQuick
import QtQuick.Templates as T
import Tamble

// What a sign means, a moment after the pointer came to rest on it.
T.ToolTip {
    id: root

    property Item of

    parent: of
    visible: of.hovered && text
    delay: 600
    margins: 6
    padding: 6
    leftPadding: 10
    rightPadding: 10
    x: (of.width - width) / 2
    y: of.height + 6
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
