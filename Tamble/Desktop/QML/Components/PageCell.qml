import QtQuick
import Tamble

// A page among the others, with its number and what becomes of it.
Item {
    id: root

    required property int index
    required property int source
    required property string picture
    required property real ratio
    required property int turn
    required property bool isSelected
    required property bool isLeftOut

    property GridView view
    property rect band // people draw a frame there, in the view's content
    property bool carried: false // is on its way with the pointer

    readonly property bool goes: isLeftOut || (isSelected && App.tool.editor === "pageDeletion")
    readonly property bool inBand: band.width > 0 && band.x < x + width - 12 && band.x + band.width > x + 12
                                   && band.y < y + height - 12 && band.y + band.height > y + 12
    readonly property bool marked: isSelected || inBand
    readonly property color hue: goes ? Theme.bad : App.pages.isOrdering ? Theme.focus : Theme.hue("pdf")

    width: view.cellWidth
    height: view.cellHeight
    opacity: carried ? 0.35 : 1
    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("Page %1").arg(source + 1) + (isLeftOut ? ", " + qsTr("left out") : "")
    Accessible.selectable: true
    Accessible.selected: isSelected
    Accessible.onPressAction: App.pages.press(index, Qt.NoModifier)

    Rectangle {
        anchors { fill: parent; margins: 3 }
        radius: 12
        color: root.marked ? (root.goes ? Theme.tint("pdf") : App.pages.isOrdering ? Theme.tint("smart") : Theme.tint("pdf"))
               : hover.hovered ? Theme.hover : "transparent"
        border { width: root.marked ? 2 : 0; color: root.hue }

        Rectangle {
            anchors { fill: parent; margins: -2 }
            radius: 14
            color: "transparent"
            border { width: 2; color: Theme.focus }
            visible: root.view.activeFocus && root.view.showsFocus && App.pages.current === root.index
        }
    }
    PageSheet {
        id: page

        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: number.top; margins: 12; bottomMargin: 6 }
        picture: root.picture
        ratio: root.ratio
        turn: root.turn
        pixels: root.view.pixels
        opacity: root.goes ? 0.35 : 1
    }
    Rectangle {
        anchors { right: page.right; top: page.top; margins: -5 }
        width: 24
        height: 24
        radius: 12
        visible: root.goes || (root.isSelected && !App.pages.isOrdering)
        color: root.hue

        Sign {
            anchors.centerIn: parent
            name: root.goes ? "ui.trash" : "ui.check"
            size: 15
            color: Theme.surface
        }
    }
    Label {
        id: number

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; bottomMargin: 8 }
        kind: "caption"
        quiet: !root.isSelected
        text: root.isLeftOut && root.width > 130 ? qsTr("%1 · left out").arg(root.source + 1) : root.source + 1
        font.strikeout: root.goes && !root.isLeftOut
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    HoverHandler { id: hover }
}
