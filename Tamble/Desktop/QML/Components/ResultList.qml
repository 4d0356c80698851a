import QtQuick
import Tamble

// A list of files or folders with what became of each; long lists scroll by themselves.
Column {
    id: root

    property string heading
    property string action
    property bool folders: false
    property RowsModel model
    readonly property int rowHeight: folders ? 44 : narrow ? 74 : 60
    readonly property bool narrow: width < 720
    signal acted()

    spacing: Theme.space3

    Item {
        width: parent.width
        height: Math.max(title.height, button.visible ? 30 : 0)

        Label { id: title; anchors { left: parent.left; verticalCenter: parent.verticalCenter } kind: "heading"; text: root.heading }
        PushButton {
            id: button

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            visible: root.action
            implicitHeight: 30
            text: root.action
            onClicked: root.acted()
        }
    }
    Surface {
        width: parent.width
        height: list.height

        ListView {
            id: list

            width: parent.width
            height: Math.min(contentHeight, root.rowHeight * 8)
            model: root.model
            clip: true
            interactive: contentHeight > height
            reuseItems: true

            delegate: Item {
                required property int index
                required property string title
                required property string detail
                required property string place
                required property int depth
                required property string picture
                required property string kind

                width: list.width
                height: root.rowHeight

                Divider { width: parent.width; visible: index > 0 }
                Thumb {
                    id: thumb

                    x: LayoutMirroring.enabled ? parent.width - width - 16 : 16
                    anchors.verticalCenter: parent.verticalCenter
                    visible: !root.folders
                    width: visible ? 44 : 0
                    height: 34
                    radius: 7
                    picture: visible ? parent.picture : ""
                    kind: parent.kind
                }
                Label {
                    id: name

                    anchors { left: thumb.right; leftMargin: root.folders ? 20 * parent.depth : 12; right: root.folders ? amount.left : parent.right; rightMargin: 16 }
                    y: root.folders ? (parent.height - height) / 2 : 9
                    text: root.folders ? parent.title : parent.title + (parent.place ? " · " + parent.place : "")
                    font.weight: Font.DemiBold
                    elide: Text.ElideMiddle
                }
                Label {
                    id: amount

                    anchors { right: parent.right; rightMargin: 16; verticalCenter: parent.verticalCenter }
                    visible: root.folders
                    quiet: true
                    text: root.folders ? parent.detail : ""
                }
                Label {
                    anchors { left: name.left; right: parent.right; rightMargin: 16; top: name.bottom }
                    visible: !root.folders
                    quiet: true
                    text: parent.detail
                    wrapMode: root.narrow ? Text.Wrap : Text.NoWrap
                    maximumLineCount: root.narrow ? 2 : 1
                    elide: Text.ElideRight
                }
            }
        }
    }
}
