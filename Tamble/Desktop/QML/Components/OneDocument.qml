import QtQuick
import Tamble

// Several PDFs, of which one is signed at a time.
Item {
    id: root

    Column {
        id: words

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.space5 }
        spacing: Theme.space1

        Label { width: parent.width; kind: "heading"; text: qsTr("Which PDF would you like to sign?"); wrapMode: Text.Wrap }
        Label { width: parent.width; quiet: true; text: qsTr("One is signed at a time. The others stay as they are."); wrapMode: Text.Wrap }
    }
    Scroller {
        anchors { left: parent.left; right: parent.right; top: words.bottom; bottom: parent.bottom; margins: Theme.space4 }
        contentHeight: choices.height

        Column {
            id: choices

            width: parent.width - 12
            spacing: Theme.space2
            topPadding: 6
            leftPadding: 6

            Repeater {
                model: App.tool.files

                PushButton {
                    id: choice

                    required property int index
                    required property string name
                    required property string picture

                    width: choices.width - 6
                    height: 64
                    text: name
                    Accessible.name: qsTr("Sign %1").arg(name)
                    onClicked: root.sign(index)

                    contentItem: Item {
                        Thumb { id: thumb; width: 40; height: 48; anchors.verticalCenter: parent.verticalCenter; picture: choice.picture; kind: "ui.pdf"; radius: 6 }
                        Label {
                            anchors { left: thumb.right; leftMargin: Theme.space3; right: parent.right; verticalCenter: parent.verticalCenter }
                            kind: "strong"
                            text: choice.name
                            elide: Text.ElideMiddle
                            Accessible.ignored: true
                        }
                    }
                }
            }
        }
    }

    function sign(row) {
        App.tool.files.remove(Array.from({ length: App.tool.files.count }, (_, other) => other).filter(other => other !== row))
    }
}
