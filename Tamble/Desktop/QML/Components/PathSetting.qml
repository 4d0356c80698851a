import QtQuick
import Tamble

// A file that stands in for the usual one.
Column {
    id: root

    property string title
    property string path
    property string usual
    property string note
    signal chosen(url file)

    spacing: Theme.space2

    Label { width: parent.width; kind: "strong"; text: root.title; wrapMode: Text.Wrap }
    Flow {
        width: parent.width
        spacing: Theme.space2

        PushButton { width: Math.min(implicitWidth, root.width); elide: Text.ElideMiddle; sign: "ui.file"; text: root.path || root.usual; onClicked: App.choose("file", "", urls => root.chosen(urls[0])) }
        PushButton { visible: root.path; kind: "quiet"; text: qsTr("Use the usual one"); onClicked: root.chosen("") }
    }
    Label { width: parent.width; visible: text; quiet: true; text: root.note; wrapMode: Text.Wrap }
}
