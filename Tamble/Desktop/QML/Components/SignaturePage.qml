import QtQuick
import Tamble

// One page, as large as it fits, with its signatures to be moved and sized.
Item {
    id: root

    readonly property Item paper: sheet.sheet

    PageSheet {
        id: sheet

        anchors.fill: parent
        picture: App.document.pageCount > 0 ? App.document.picture(App.signature.page) : ""
        ratio: App.document.pageCount > 0 ? App.document.ratio(App.signature.page) : 1
        pixels: Math.max(256, Math.ceil(Math.max(width, height) * Screen.devicePixelRatio / 256) * 256)
    }
    TapHandler { onTapped: App.signature.current = -1 }

    Item {
        id: keyboard

        readonly property bool visualFocus: activeFocus && shows
        property bool shows: false

        x: root.paper.x + sheet.x
        y: root.paper.y + sheet.y
        width: root.paper.width
        height: root.paper.height
        activeFocusOnTab: true
        Accessible.role: Accessible.Canvas
        Accessible.name: qsTr("Page %1 of %2").arg(App.signature.page + 1).arg(App.document.pageCount)
        Accessible.description: qsTr("Arrows move the signature, plus and minus size it, Delete removes it.")
        onActiveFocusChanged: shows = activeFocus
        Keys.onPressed: event => {
            shows = true
            event.accepted = take(event)
        }

        function take(event) {
            const step = event.modifiers & Qt.ShiftModifier ? 0.05 : 0.005
            const way = ({ [Qt.Key_Left]: [-step, 0], [Qt.Key_Right]: [step, 0], [Qt.Key_Up]: [0, -step], [Qt.Key_Down]: [0, step] })[event.key]
            if (event.key === Qt.Key_PageUp)
                App.signature.page--
            else if (event.key === Qt.Key_PageDown)
                App.signature.page++
            else if (App.signature.current < 0)
                return false
            else if (way)
                App.signature.nudge(way[0], way[1])
            else if (event.key === Qt.Key_Plus || event.key === Qt.Key_Equal)
                App.signature.scale(1.1)
            else if (event.key === Qt.Key_Minus)
                App.signature.scale(1 / 1.1)
            else if (event.key === Qt.Key_Delete || event.key === Qt.Key_Backspace)
                App.signature.remove()
            else if (event.key === Qt.Key_Escape)
                App.signature.current = -1
            else
                return false
            return true
        }

        FocusRing { of: keyboard; around: 3 }

        Repeater {
            model: App.signature

            Item {
                id: placed

                required property int index
                required property int page
                required property real leftShare
                required property real topShare
                required property real across
                required property real down
                required property string picture

                readonly property bool chosen: App.signature.current === index

                visible: page === App.signature.page
                x: leftShare * keyboard.width
                y: topShare * keyboard.height
                width: across * keyboard.width
                height: down * keyboard.height
                Accessible.role: Accessible.Graphic
                Accessible.name: qsTr("Signature")

                Image {
                    anchors.fill: parent
                    source: placed.picture
                    fillMode: Image.PreserveAspectFit
                    smooth: true
                    mipmap: true
                }
                Rectangle {
                    anchors { fill: parent; margins: -5 }
                    radius: 6
                    color: "transparent"
                    border { width: placed.chosen ? 2 : 1; color: placed.chosen ? "#2B6BE4" : "#662B6BE4" }
                    visible: placed.chosen || area.containsMouse
                }
                MouseArea {
                    id: area

                    property point grip

                    anchors { fill: parent; margins: -5 }
                    hoverEnabled: true
                    preventStealing: true
                    cursorShape: pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor
                    onPressed: mouse => {
                        keyboard.forceActiveFocus(Qt.MouseFocusReason)
                        keyboard.shows = false
                        App.signature.current = placed.index
                        const at = mapToItem(keyboard, mouse.x, mouse.y)
                        grip = Qt.point(at.x - placed.x, at.y - placed.y)
                    }
                    onPositionChanged: mouse => {
                        if (!pressed)
                            return
                        const at = mapToItem(keyboard, mouse.x, mouse.y)
                        App.signature.moveTo(placed.index, (at.x - grip.x) / keyboard.width, (at.y - grip.y) / keyboard.height)
                    }
                    onReleased: App.signature.settle()
                    onCanceled: App.signature.settle()
                }
                Rectangle {
                    visible: placed.chosen
                    x: parent.width + 5 - width / 2
                    y: parent.height + 5 - height / 2
                    width: 16
                    height: 16
                    radius: 8
                    color: "#FFFFFF"
                    border { width: 2; color: "#2B6BE4" }

                    MouseArea {
                        anchors { fill: parent; margins: -6 }
                        preventStealing: true
                        cursorShape: Qt.SizeFDiagCursor
                        onPositionChanged: mouse => {
                            const at = mapToItem(keyboard, mouse.x, mouse.y)
                            const share = Math.max((at.x - placed.x - 5) / placed.width, (at.y - placed.y - 5) / placed.height)
                            App.signature.widen(placed.index, share * placed.across)
                        }
                        onReleased: App.signature.settle()
                        onCanceled: App.signature.settle()
                    }
                }
                Rectangle {
                    visible: placed.chosen
                    x: parent.width + 5 - width / 2
                    y: -5 - height / 2
                    width: 22
                    height: 22
                    radius: 11
                    color: "#D91B1922"
                    Accessible.role: Accessible.Button
                    Accessible.name: qsTr("Remove the signature")

                    Sign { anchors.centerIn: parent; name: "ui.close"; size: 12; color: "#FFFFFF" }
                    MouseArea {
                        anchors.fill: parent
                        cursorShape: Qt.PointingHandCursor
                        onClicked: App.signature.remove()
                    }
                }
            }
        }
    }
}
