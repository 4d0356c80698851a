import QtQuick
import Tamble

// The pages of one PDF, one at a time, and the signatures on them.
Rectangle {
    id: root

    readonly property bool ready: App.document.state === DocumentModel.Ready
    readonly property int pages: App.document.pageCount

    radius: 18
    color: Theme.sunken

    Component.onCompleted: App.document.isActive = true
    Component.onDestruction: App.document.isActive = false

    DocumentTrouble { anchors.fill: parent }

    Loader {
        anchors.fill: parent
        active: App.tool.files.count > 1
        sourceComponent: OneDocument {}
    }

    Item {
        id: bar

        visible: root.ready
        width: parent.width
        height: 48

        Row {
            id: turner

            anchors { left: parent.left; leftMargin: Theme.space2; verticalCenter: parent.verticalCenter }
            spacing: Theme.space1

            IconButton { sign: "ui.back"; text: qsTr("Previous page"); enabled: App.signature.page > 0; onClicked: App.signature.page-- }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Page %1 of %2").arg(App.signature.page + 1).arg(root.pages)
            }
            IconButton { sign: "ui.forward"; text: qsTr("Next page"); enabled: App.signature.page < root.pages - 1; onClicked: App.signature.page++ }
        }
        Label {
            anchors { left: turner.right; leftMargin: Theme.space2; right: parent.right; rightMargin: Theme.space4; verticalCenter: parent.verticalCenter }
            visible: App.signature.count > 0
            quiet: true
            text: App.signature.summary
            horizontalAlignment: Text.AlignRight
            elide: Text.ElideRight
        }
    }

    SignaturePage {
        id: page

        anchors { left: parent.left; right: parent.right; top: bar.bottom; bottom: strip.top; margins: Theme.space4; topMargin: 2; bottomMargin: Theme.space2 }
        visible: root.ready
    }

    ListView {
        id: strip

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Theme.space3; rightMargin: Theme.space3 }
        height: visible ? 84 : 0
        visible: root.ready && root.pages > 1 && root.height > 380
        orientation: ListView.Horizontal
        model: visible ? root.pages : 0
        spacing: Theme.space1
        clip: true
        reuseItems: true
        currentIndex: App.signature.page
        highlightMoveDuration: Theme.calm
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Pages")
        Keys.onLeftPressed: App.signature.page += root.LayoutMirroring.enabled ? 1 : -1
        Keys.onRightPressed: App.signature.page += root.LayoutMirroring.enabled ? -1 : 1
        WheelHandler { onWheel: event => strip.flick(event.angleDelta.y * 8, 0) }

        delegate: Item {
            id: cell

            required property int index

            readonly property bool shown: App.signature.page === index

            width: 58
            height: 78
            Accessible.role: Accessible.ListItem
            Accessible.name: qsTr("Page %1").arg(index + 1)
            Accessible.onPressAction: App.signature.page = index

            Rectangle {
                anchors.fill: parent
                radius: 9
                color: cell.shown ? Theme.tint("pdf") : hover.hovered ? Theme.hover : "transparent"
                border { width: cell.shown ? 2 : 0; color: strip.activeFocus ? Theme.focus : Theme.hue("pdf") }
            }
            PageSheet {
                id: sheet

                anchors { fill: parent; margins: 6; bottomMargin: 18 }
                picture: App.document.picture(cell.index)
                ratio: App.document.ratio(cell.index)
                pixels: Math.round(72 * Screen.devicePixelRatio)
            }
            Rectangle {
                anchors { right: parent.right; top: parent.top; margins: 3 }
                width: 18
                height: 18
                radius: 9
                color: Theme.hue("pdf")
                visible: App.signature.count > 0 && App.signature.isSigned(cell.index)

                Sign { anchors.centerIn: parent; name: "ui.pen"; size: 11; color: Theme.surface }
            }
            Label {
                anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: 3 }
                kind: "caption"
                font.pixelSize: 11
                quiet: !cell.shown
                text: cell.index + 1
                Accessible.ignored: true
            }
            HoverHandler { id: hover }
            TapHandler { onTapped: App.signature.page = cell.index }
        }
    }
}
