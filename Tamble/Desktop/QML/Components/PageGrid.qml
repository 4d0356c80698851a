import QtQuick
import QtQuick.Templates as T
import Tamble

// All pages, to be selected, dragged and walked through by keyboard.
Item {
    id: root

    property int side: 132 // of a cell without its margins

    readonly property int columns: Math.max(1, Math.floor((width - 14) / (side + 24)))

    GridView {
        id: grid

        readonly property int pixels: Math.round(root.side * 1.25 * Screen.devicePixelRatio)
        property bool showsFocus: false

        anchors { fill: parent; leftMargin: 4 }
        model: App.pages
        cellWidth: Math.floor((width - 12) / root.columns)
        cellHeight: Math.round(root.side * 1.25) + 46
        cacheBuffer: cellHeight
        reuseItems: true
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        activeFocusOnTab: true
        topMargin: 6
        bottomMargin: 6
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Pages")
        T.ScrollBar.vertical: ScrollLine {}

        move: Transition { NumberAnimation { properties: "x,y"; duration: Theme.calm; easing.type: Easing.OutCubic } }
        moveDisplaced: Transition { NumberAnimation { properties: "x,y"; duration: Theme.calm; easing.type: Easing.OutCubic } }

        delegate: PageCell {
            view: grid
            band: pointer.band
            carried: pointer.carries && isSelected
        }

        onActiveFocusChanged: showsFocus = activeFocus && !pointer.pressed
        Keys.onShortcutOverride: event => event.accepted = (event.modifiers & Qt.AltModifier && [Qt.Key_Left, Qt.Key_Right].includes(event.key))
        Keys.onPressed: event => {
            showsFocus = true
            event.accepted = keys.take(event)
        }

        function reveal(row) {
            grid.positionViewAtIndex(row, GridView.Contain)
        }
    }

    QtObject {
        id: keys

        readonly property int forward: root.LayoutMirroring.enabled ? -1 : 1

        function take(event) {
            const steps = ({ [Qt.Key_Left]: -forward, [Qt.Key_Right]: forward, [Qt.Key_Up]: -root.columns, [Qt.Key_Down]: root.columns,
                             [Qt.Key_PageUp]: -root.columns * Math.max(1, Math.floor(grid.height / grid.cellHeight)),
                             [Qt.Key_PageDown]: root.columns * Math.max(1, Math.floor(grid.height / grid.cellHeight)),
                             [Qt.Key_Home]: -App.pages.count, [Qt.Key_End]: App.pages.count })[event.key]
            if (steps !== undefined && event.modifiers & Qt.AltModifier) {
                if (App.pages.isOrdering)
                    App.pages.moveBy(steps)
            } else if (steps !== undefined) {
                App.pages.walk(App.pages.current + steps, event.modifiers)
            } else if (event.key === Qt.Key_Space || event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
                App.pages.toggle(App.pages.current)
            } else if (event.matches(StandardKey.SelectAll)) {
                App.pages.selectAll(true)
            } else if (event.key === Qt.Key_Escape && App.pages.selectedCount > 0) {
                App.pages.selectAll(false)
            } else if (event.key === Qt.Key_Delete || event.key === Qt.Key_Backspace) {
                if (App.pages.isOrdering)
                    App.pages.leaveOut()
                else
                    App.pages.toggle(App.pages.current)
            } else if (event.key === Qt.Key_R && !(event.modifiers & Qt.ControlModifier) && App.pages.isOrdering) {
                App.pages.turnSelected(event.modifiers & Qt.ShiftModifier ? -90 : 90)
            } else {
                return false
            }
            if (steps !== undefined)
                grid.reveal(App.pages.current)
            return true
        }
    }

    // The pointer selects and drags; the wheel and the bar scroll.
    MouseArea {
        id: pointer

        property point start // in the view's content
        property int startRow: -1
        property bool carries: false
        property bool frames: false
        property int target: -1
        readonly property rect band: frames ? Qt.rect(Math.min(start.x, mouseX), Math.min(start.y, mouseY + grid.contentY),
                                                      Math.abs(mouseX - start.x), Math.abs(mouseY + grid.contentY - start.y)) : Qt.rect(0, 0, 0, 0)

        anchors { fill: grid; rightMargin: 14 }
        preventStealing: true
        onPressed: mouse => {
            grid.forceActiveFocus(Qt.MouseFocusReason)
            grid.showsFocus = false
            start = Qt.point(mouse.x, mouse.y + grid.contentY)
            startRow = rowAt(mouse.x, mouse.y)
        }
        onPositionChanged: mouse => {
            if (!carries && !frames && Math.hypot(mouse.x - start.x, mouse.y + grid.contentY - start.y) > 8) {
                carries = App.pages.isOrdering && startRow >= 0
                frames = !carries
                if (carries && !App.pages.isRowSelected(startRow))
                    App.pages.press(startRow, Qt.NoModifier)
            }
            aim()
        }
        onReleased: mouse => {
            if (carries)
                App.pages.moveBefore(target)
            else if (frames)
                App.pages.select(rowsIn(band), mouse.modifiers)
            else if (startRow >= 0)
                App.pages.press(startRow, mouse.modifiers)
            else if (App.pages.isOrdering)
                App.pages.selectAll(false)
            carries = frames = false
        }
        onCanceled: carries = frames = false

        function mirror(x) {
            return root.LayoutMirroring.enabled ? root.columns * grid.cellWidth - x : x
        }
        function rowAt(x, y) {
            const column = Math.floor(mirror(x) / grid.cellWidth)
            const row = Math.floor((y + grid.contentY) / grid.cellHeight) * root.columns + column
            return column >= 0 && column < root.columns && row >= 0 && row < App.pages.count ? row : -1
        }
        function aim() {
            const column = Math.max(0, Math.min(root.columns, Math.round(mirror(mouseX) / grid.cellWidth)))
            const line = Math.max(0, Math.floor((mouseY + grid.contentY) / grid.cellHeight))
            target = Math.min(App.pages.count, line * root.columns + column)
            mark.line = Math.floor((target - (column === root.columns || target === App.pages.count ? 1 : 0)) / root.columns)
            mark.column = target - mark.line * root.columns
        }
        function rowsIn(frame) {
            const rows = []
            for (let row = 0; row < App.pages.count; ++row) {
                const x = row % root.columns * grid.cellWidth
                const left = root.LayoutMirroring.enabled ? mirror(x) - grid.cellWidth : x
                const top = Math.floor(row / root.columns) * grid.cellHeight
                if (frame.x < left + grid.cellWidth - 12 && frame.x + frame.width > left + 12
                        && frame.y < top + grid.cellHeight - 12 && frame.y + frame.height > top + 12)
                    rows.push(row)
            }
            return rows
        }
    }

    // At the edges the view goes along.
    Timer {
        readonly property int speed: pointer.mouseY < 40 ? pointer.mouseY - 40 : pointer.mouseY > grid.height - 40 ? pointer.mouseY - grid.height + 40 : 0

        interval: 16
        repeat: true
        running: (pointer.carries || pointer.frames) && speed !== 0
        onTriggered: {
            grid.contentY = Math.max(-grid.topMargin, Math.min(grid.contentHeight + grid.bottomMargin - grid.height, grid.contentY + Math.max(-36, Math.min(36, speed))))
            pointer.aim()
        }
    }

    Rectangle {
        id: mark

        property int line: 0
        property int column: 0

        visible: pointer.carries
        x: grid.x + (root.LayoutMirroring.enabled ? pointer.mirror(column * grid.cellWidth) : column * grid.cellWidth) - width / 2
        y: line * grid.cellHeight - grid.contentY + 6
        width: 4
        height: grid.cellHeight - 12
        radius: 2
        color: Theme.brand
    }
    Rectangle {
        visible: pointer.frames
        x: grid.x + pointer.band.x
        y: pointer.band.y - grid.contentY
        width: pointer.band.width
        height: pointer.band.height
        radius: 3
        color: Theme.dark ? "#337FAAFF" : "#222B6BE4"
        border { width: 1; color: Theme.focus }
    }
    Rectangle {
        visible: pointer.carries
        x: Math.max(0, Math.min(root.width - width - 4, pointer.mouseX + 16))
        y: Math.max(0, Math.min(root.height - height - 4, pointer.mouseY + 12))
        width: carried.implicitWidth + 24
        height: 32
        radius: 16
        color: Theme.ink

        Label {
            id: carried

            anchors.centerIn: parent
            color: Theme.paper
            font.weight: Font.DemiBold
            text: qsTr("%n page(s)", "", App.pages.selectedCount)
        }
    }
}
