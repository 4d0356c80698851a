import QtQuick
import Tamble

// What stands where nothing is yet.
Column {
    id: root

    property string mood: "waiting"
    property string heading
    property string text
    property int size: 128

    spacing: Theme.space2

    Mascot {
        anchors.horizontalCenter: parent.horizontalCenter
        expression: root.mood
        size: root.size
        moving: Theme.moves
    }
    Item { width: 1; height: 4 }
    Label {
        width: parent.width
        kind: "heading"
        text: root.heading
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
    Label {
        width: parent.width
        visible: text
        quiet: true
        text: root.text
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
}
