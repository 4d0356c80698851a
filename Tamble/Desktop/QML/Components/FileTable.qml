import QtQuick
import QtQuick.Templates as T
import Tamble

// The files of a tool as rows: name, place, size; they can be sorted, removed, and dragged into another order.
Surface {
    id: root

    readonly property FileListModel files: App.tool.files

    Item {
        id: bar

        width: parent.width
        height: 48

        Label {
            anchors { left: parent.left; leftMargin: 16; right: tools.left; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
            kind: "caption"
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            quiet: true
            text: root.files.selectedCount > 0 ? qsTr("%n selected", "", root.files.selectedCount) : App.tool.ordersFiles ? qsTr("Drag into the order you want") : qsTr("%n file(s)", "", list.count)
        }
        Row {
            id: tools

            anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
            spacing: Theme.space2

            PushButton { visible: root.files.selectedCount > 0; implicitHeight: 32; kind: "quiet"; sign: "ui.close"; text: qsTr("Remove"); onClicked: root.files.removeSelected(list.currentIndex) }
            Chooser {
                implicitHeight: 32
                hint: qsTr("Order")
                model: [qsTr("As dropped"), qsTr("By name"), qsTr("By size"), qsTr("By kind")]
                onActivated: index => root.files.sort(index)
            }
        }
        Divider { anchors.bottom: parent.bottom; width: parent.width }
    }

    ListView {
        id: list

        anchors { left: parent.left; right: parent.right; top: bar.bottom; topMargin: 4; bottom: parent.bottom; bottomMargin: 6 }
        model: root.files
        clip: true
        reuseItems: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        keyNavigationEnabled: true
        cacheBuffer: 200
        T.ScrollBar.vertical: ScrollLine {}
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Files")

        Keys.onPressed: event => {
            const step = ({ [Qt.Key_Up]: -1, [Qt.Key_Down]: 1, [Qt.Key_PageUp]: -10, [Qt.Key_PageDown]: 10, [Qt.Key_Home]: -count, [Qt.Key_End]: count })[event.key]
            if (step !== undefined) {
                const next = Math.max(0, Math.min(count - 1, currentIndex + step))
                if (App.tool.ordersFiles && (event.modifiers & Qt.AltModifier)) {
                    root.files.move(currentIndex, next)
                } else if (event.modifiers & Qt.ShiftModifier) {
                    root.files.selectTo(next)
                } else {
                    root.files.select(next)
                }
                currentIndex = next
                event.accepted = true
            } else if (event.key === Qt.Key_Delete || event.key === Qt.Key_Backspace) {
                root.files.removeSelected(list.currentIndex)
                event.accepted = true
            } else if (event.matches(StandardKey.SelectAll)) {
                root.files.selectAll()
                event.accepted = true
            }
        }

        section.property: "branch"
        section.delegate: Item {
            id: branch

            required property string section

            width: list.width
            height: section ? 40 : 0
            visible: section

            Sign { id: mark; x: LayoutMirroring.enabled ? parent.width - width - 16 : 16; anchors.verticalCenter: parent.verticalCenter; name: "ui.folder"; size: 18 }
            Label {
                anchors { left: mark.right; leftMargin: 10; right: total.left; rightMargin: 8; verticalCenter: parent.verticalCenter }
                kind: "caption"
                text: branch.section
                elide: Text.ElideMiddle
            }
            Label { id: total; anchors { right: drop.left; rightMargin: 6; verticalCenter: parent.verticalCenter } kind: "caption"; quiet: true; text: branch.section ? root.files.filesBelow(branch.section) : "" }
            IconButton {
                id: drop

                anchors { right: parent.right; rightMargin: 12; verticalCenter: parent.verticalCenter }
                implicitWidth: 28
                implicitHeight: 28
                sign: "ui.close"
                signSize: 14
                text: qsTr("Remove the folder from the list")
                onClicked: root.files.removeBranch(branch.section)
            }
        }

        delegate: Item {
            id: row

            required property int index
            required property string name
            required property string folder
            required property string size
            required property string picture
            required property string kind
            required property bool selected

            width: list.width
            height: 52
            z: drag.active ? 2 : 0
            Accessible.role: Accessible.ListItem
            Accessible.name: name + ", " + size

            Rectangle {
                anchors { fill: parent; leftMargin: 6; rightMargin: 6; topMargin: 1; bottomMargin: 1 }
                radius: 10
                color: row.selected ? Theme.tint(App.tool.category) : hover.hovered ? Theme.hover : drag.active ? Theme.surface : "transparent"
                border { width: list.activeFocus && list.currentIndex === row.index ? 2 : 0; color: Theme.focus }
            }
            Sign {
                id: grip

                x: LayoutMirroring.enabled ? parent.width - width - 12 : 12
                anchors.verticalCenter: parent.verticalCenter
                visible: App.tool.ordersFiles
                width: visible ? 16 : 0
                name: "ui.drag"
                size: 16
            }
            Thumb {
                id: thumb

                anchors { left: grip.right; leftMargin: 8; verticalCenter: parent.verticalCenter }
                width: 48
                height: 36
                radius: 7
                picture: row.picture
                kind: row.kind
            }
            Column {
                anchors { left: thumb.right; leftMargin: 12; right: amount.left; rightMargin: 12; verticalCenter: parent.verticalCenter }

                Label { width: parent.width; text: row.name; font.weight: Font.Medium; elide: Text.ElideMiddle; Accessible.ignored: true }
                Label { width: parent.width; kind: "caption"; font.weight: Font.Normal; quiet: true; text: row.folder; elide: Text.ElideMiddle; Accessible.ignored: true }
            }
            Label {
                id: amount

                anchors { right: remove.left; rightMargin: 6; verticalCenter: parent.verticalCenter }
                quiet: true
                text: row.size
                Accessible.ignored: true
            }
            IconButton {
                id: remove

                anchors { right: parent.right; rightMargin: 12; verticalCenter: parent.verticalCenter }
                implicitWidth: 28
                implicitHeight: 28
                focusPolicy: Qt.NoFocus
                opacity: hover.hovered ? 1 : 0
                sign: "ui.close"
                signSize: 14
                text: qsTr("Remove from the list")
                onClicked: root.files.remove([row.index])
            }

            HoverHandler { id: hover }
            TapHandler {
                acceptedModifiers: Qt.NoModifier
                onTapped: { list.forceActiveFocus(); list.currentIndex = row.index; root.files.select(row.index) }
            }
            TapHandler {
                acceptedModifiers: Qt.ControlModifier
                onTapped: { list.forceActiveFocus(); list.currentIndex = row.index; root.files.toggle(row.index) }
            }
            TapHandler {
                acceptedModifiers: Qt.ShiftModifier
                onTapped: { list.forceActiveFocus(); list.currentIndex = row.index; root.files.selectTo(row.index) }
            }
            DragHandler {
                id: drag

                enabled: App.tool.ordersFiles
                target: null
                xAxis.enabled: false
                onCentroidChanged: {
                    if (!active)
                        return
                    const at = row.mapToItem(list.contentItem, centroid.position.x, centroid.position.y)
                    const to = Math.max(0, Math.min(list.count - 1, Math.floor(at.y / row.height)))
                    if (to !== row.index)
                        root.files.move(row.index, to)
                }
            }
        }
    }
}
