import QtQuick
import Tamble

// A photo before and after, with a line between them that can be moved.
Item {
    id: root

    property real share: 0.5

    // Before stays at the left: the line moves where the pointer does.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true

    Component.onCompleted: App.comparison.isActive = true
    Component.onDestruction: App.comparison.isActive = false

    Rectangle {
        id: frame

        anchors.fill: parent
        radius: 18
        color: Theme.sunken
        clip: true

        component Photo: Image {
            property string picture

            source: picture ? "image://file/" + picture : ""
            sourceSize: Qt.size(Math.max(64, Math.round(frame.width * Screen.devicePixelRatio / 64) * 64), Math.max(64, Math.round(frame.height * Screen.devicePixelRatio / 64) * 64))
            fillMode: Image.PreserveAspectFit
            asynchronous: true
            cache: false
            width: frame.width - 24
            height: frame.height - 24
        }

        Photo {
            id: before

            x: 12
            y: 12
            picture: App.comparison.original
        }
        Item {
            id: right

            visible: App.comparison.result && after.status === Image.Ready
            x: root.share * frame.width
            width: frame.width - x
            height: frame.height
            clip: true

            // Hides the original, but not the frame's round corners.
            Rectangle { y: 12; width: parent.width - 12; height: parent.height - 24; color: Theme.sunken }
            Checkers {
                x: 12 + (after.width - after.paintedWidth) / 2 - right.x
                y: 12 + (after.height - after.paintedHeight) / 2
                width: after.paintedWidth
                height: after.paintedHeight
                visible: App.tool.toolID === "image.removeBackground"
            }
            Photo {
                id: after

                x: 12 - right.x
                y: 12
                picture: App.comparison.result
            }
        }
        Rectangle {
            visible: right.visible
            x: right.x - 1.5
            width: 3
            height: parent.height
            color: "#FFFFFF"
        }
        Rectangle {
            id: knob

            readonly property bool visualFocus: activeFocus

            visible: right.visible
            x: right.x - width / 2
            y: (parent.height - height) / 2
            width: 38
            height: 38
            radius: 19
            color: "#FFFFFF"
            activeFocusOnTab: true
            Accessible.role: Accessible.Slider
            Accessible.name: qsTr("Divider between before and after")
            Keys.onLeftPressed: root.share = Math.max(0, root.share - 0.05)
            Keys.onRightPressed: root.share = Math.min(1, root.share + 0.05)

            // Too small for the shadow picture.
            Rectangle { z: -1; x: -2; y: 0; width: 42; height: 42; radius: 21; color: "#30000000" }
            FocusRing { of: knob; around: 19 }
            Row {
                anchors.centerIn: parent
                Sign { name: "ui.chevron.right"; size: 14; color: "#333333"; rotation: 180 }
                Sign { name: "ui.chevron.right"; size: 14; color: "#333333" }
            }
        }
        MouseArea {
            anchors.fill: parent
            enabled: right.visible
            cursorShape: enabled ? Qt.SizeHorCursor : Qt.ArrowCursor
            onPressed: mouse => move(mouse.x)
            onPositionChanged: mouse => move(mouse.x)

            function move(x) {
                root.share = Math.max(0, Math.min(1, x / frame.width))
            }
        }

        component Tag: Rectangle {
            property string text

            visible: text
            width: Math.min(tagText.implicitWidth + 20, frame.width - 28)
            height: tagText.implicitHeight + 10
            radius: 9
            color: "#D91B1922"

            Label {
                id: tagText

                anchors.centerIn: parent
                width: Math.min(implicitWidth, parent.width - 20)
                text: parent.text
                color: "#FFFFFF"
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }
        }

        Tag {
            anchors { left: parent.left; bottom: parent.bottom; margins: 14 }
            visible: text && (!resultTag.visible || x + width + 8 < resultTag.x)
            text: App.comparison.originalText
        }
        Tag {
            id: resultTag

            anchors { right: parent.right; bottom: parent.bottom; margins: 14 }
            color: App.comparison.remark ? "#D98A5A00" : App.comparison.isSmaller ? "#117A57" : "#D91B1922"
            text: App.comparison.remark || App.comparison.resultText
        }
    }
}
