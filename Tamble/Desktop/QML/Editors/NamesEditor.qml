import QtQuick
import QtQuick.Templates as T
import Tamble

// Old and new names side by side, with what is wrong beside each.
Surface {
    id: root

    Component.onCompleted: App.names.isActive = true
    Component.onDestruction: App.names.isActive = false

    Item {
        id: bar

        width: parent.width
        height: 48

        Label {
            anchors { left: parent.left; leftMargin: 16; right: order.left; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
            kind: "caption"
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            color: App.names.problemCount > 0 ? Theme.warn : Theme.ink2
            text: App.names.summary
        }
        Chooser {
            id: order

            anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
            implicitHeight: 32
            hint: qsTr("Order")
            model: [qsTr("As dropped"), qsTr("By name"), qsTr("By size"), qsTr("By kind")]
            onActivated: index => App.tool.files.sort(index)
        }
        Divider { anchors.bottom: parent.bottom; width: parent.width }
    }

    ListView {
        id: list

        anchors { left: parent.left; right: parent.right; top: bar.bottom; topMargin: 4; bottom: parent.bottom; bottomMargin: 6 }
        model: App.names
        clip: true
        reuseItems: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        keyNavigationEnabled: true
        T.ScrollBar.vertical: ScrollLine {}
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Old and new names")

        delegate: Item {
            id: row

            required property int index
            required property string oldName
            required property string newName
            required property string problem
            required property bool isSame
            required property string folder

            readonly property int half: (width - 32 - 28) / 2

            width: list.width
            height: problem ? 50 : 34
            Accessible.role: Accessible.ListItem
            Accessible.name: qsTr("%1 becomes %2").arg(oldName).arg(newName) + (problem ? ". " + problem : "")

            Rectangle {
                anchors { fill: parent; leftMargin: 6; rightMargin: 6 }
                radius: 8
                color: row.problem ? Theme.tint("files") : hover.hovered ? Theme.hover : "transparent"
                border { width: list.activeFocus && list.currentIndex === row.index ? 2 : 0; color: Theme.focus }
            }
            Label { id: old; anchors { left: parent.left; leftMargin: 16 } y: 8; width: row.half; quiet: true; text: row.oldName; elide: Text.ElideMiddle; Accessible.ignored: true }
            Sign { id: arrow; anchors { left: old.right; leftMargin: 6 } y: 9; size: 16; name: "ui.forward"; visible: !row.isSame }
            Label {
                anchors { left: old.right; leftMargin: 28 }
                y: 8
                width: row.half
                text: row.newName || "—"
                quiet: row.isSame
                font.weight: row.isSame ? Font.Normal : Font.DemiBold
                elide: Text.ElideMiddle
                Accessible.ignored: true
            }
            Label {
                anchors { left: old.right; leftMargin: 28 }
                y: 26
                width: row.half
                visible: text
                kind: "caption"
                font.weight: Font.Normal
                color: Theme.warn
                text: row.problem
                elide: Text.ElideRight
                Accessible.ignored: true
            }
            HoverHandler { id: hover }
        }
    }
}
