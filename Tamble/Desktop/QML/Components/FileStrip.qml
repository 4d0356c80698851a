import QtQuick
import QtQuick.Templates as T
import Tamble

// The files of a tool: a line of thumbnails below an editor, or a list of its own.
Item {
    id: root

    property bool grid: false

    readonly property FileListModel files: App.tool.files

    function removeAt(row) {
        files.remove([row])
    }

    ListView {
        id: strip

        anchors.fill: parent
        visible: !root.grid
        orientation: ListView.Horizontal
        model: root.grid ? null : root.files
        spacing: 10
        clip: true
        reuseItems: true
        leftMargin: 3
        currentIndex: App.comparison.row
        highlightMoveDuration: Theme.calm
        activeFocusOnTab: true
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Files")
        Keys.onLeftPressed: step(LayoutMirroring.enabled ? 1 : -1)
        Keys.onRightPressed: step(LayoutMirroring.enabled ? -1 : 1)
        Keys.onDeletePressed: root.removeAt(currentIndex)
        WheelHandler { onWheel: event => strip.flick(event.angleDelta.y * 8, 0) }

        function step(by) {
            App.comparison.row = Math.max(0, Math.min(count - 1, currentIndex + by))
        }

        delegate: Item {
            id: cell

            required property int index
            required property string name
            required property string picture
            required property string kind

            width: 74
            height: 62
            Accessible.role: Accessible.ListItem
            Accessible.name: name

            Thumb {
                anchors { fill: parent; topMargin: 3; bottomMargin: 3 }
                picture: cell.picture
                kind: cell.kind
            }
            Rectangle {
                anchors { fill: parent; margins: -2; topMargin: 0; bottomMargin: 0 }
                radius: 11
                color: "transparent"
                border { width: 2.5; color: strip.activeFocus ? Theme.focus : Theme.hue(App.tool.category) }
                visible: App.comparison.row === cell.index
            }
            RemoveMark {
                visible: hover.hovered
                onClicked: root.removeAt(cell.index)
            }
            HoverHandler { id: hover }
            TapHandler { onTapped: App.comparison.row = cell.index }
        }
    }

    Loader {
        anchors.fill: parent
        active: root.grid
        sourceComponent: FileTable {}
    }
}
