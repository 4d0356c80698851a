import QtQuick
import QtQuick.Templates as T
import Tamble

// Finds a tool while people type; Enter opens it with what was dropped.
T.Popup {
    id: root

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? Math.min(110, parent.height / 8) : 0
    width: parent ? Math.min(600, parent.width - 48) : 600
    padding: 10
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    modal: true
    focus: true
    onAboutToShow: {
        field.text = ""
        App.search.query = ""
        list.pointer = Qt.point(-1, -1)
        field.forceActiveFocus()
    }

    T.Overlay.modal: Rectangle { color: Theme.scrim }

    function start(index) {
        const id = App.search.tools.toolAt(index)
        if (!id)
            return
        close()
        App.openTool(id)
    }

    contentItem: Column {
        spacing: Theme.space2

        TextBox {
            id: field

            width: parent.width
            implicitHeight: 48
            leftPadding: LayoutMirroring.enabled ? 12 : 44
            rightPadding: LayoutMirroring.enabled ? 44 : 12
            font.pixelSize: Theme.strongSize
            placeholderText: qsTr("What would you like to do?")
            Accessible.name: placeholderText
            onTextEdited: {
                App.search.query = text
                list.currentIndex = 0
            }
            Keys.onDownPressed: list.incrementCurrentIndex()
            Keys.onUpPressed: list.decrementCurrentIndex()
            onAccepted: root.start(list.currentIndex)
            background: Item {}

            Sign { anchors { left: parent.left; leftMargin: 14; verticalCenter: parent.verticalCenter } name: "ui.search"; size: 20 }
        }
        Divider { width: parent.width }
        ListView {
            id: list

            width: parent.width
            height: Math.min(contentHeight, Math.max(120, (root.parent?.height ?? 800) - root.y - 160))
            model: App.search.tools
            clip: true
            T.ScrollBar.vertical: ScrollLine {}

            // Rows that come under a pointer at rest are not meant.
            property point pointer: Qt.point(-1, -1)

            delegate: T.ItemDelegate {
                id: row

                required property int index
                required property string title
                required property string subtitle
                required property string symbol
                required property string category
                required property bool available

                width: list.width
                height: 52
                hoverEnabled: true
                highlighted: list.currentIndex === index
                opacity: available ? 1 : 0.6
                text: title
                Accessible.name: title
                Accessible.description: subtitle
                onClicked: root.start(index)

                HoverHandler {
                    onPointChanged: {
                        const at = point.scenePosition
                        const moved = list.pointer.x >= 0 && (at.x !== list.pointer.x || at.y !== list.pointer.y)
                        if (hovered && moved)
                            list.currentIndex = row.index
                        list.pointer = at
                    }
                }

                contentItem: Item {
                    Tile { id: tile; anchors { left: parent.left; leftMargin: 8; verticalCenter: parent.verticalCenter } size: 36; symbol: row.symbol; category: row.category }
                    Column {
                        anchors { left: tile.right; leftMargin: 12; right: hint.left; rightMargin: 8; verticalCenter: parent.verticalCenter }

                        Label { width: parent.width; text: row.title; font.weight: Font.DemiBold; elide: Text.ElideRight; Accessible.ignored: true }
                        Label { width: parent.width; quiet: true; text: row.subtitle; elide: Text.ElideRight; Accessible.ignored: true }
                    }
                    Label {
                        id: hint

                        anchors { right: parent.right; rightMargin: 12; verticalCenter: parent.verticalCenter }
                        kind: "caption"
                        quiet: true
                        text: row.available ? (row.highlighted ? qsTr("Enter ↵") : "") : qsTr("Not yet")
                        Accessible.ignored: true
                    }
                }
                background: Rectangle { radius: 12; color: row.highlighted ? Theme.hover : "transparent" }
            }
        }
        Label {
            width: parent.width
            visible: list.count === 0
            padding: Theme.space5
            quiet: true
            text: qsTr("No tool does that. Try another word, like “shrink” or “rotate”.")
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
    }

    background: Surface {
        radius: 20
        border { width: 1; color: Theme.line }
    }

    enter: Transition { NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.quick } }
}
