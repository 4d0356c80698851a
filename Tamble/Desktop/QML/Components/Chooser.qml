import QtQuick
import QtQuick.Templates as T
import Tamble

// One of a few, behind a button. `options`: texts.
T.ComboBox {
    id: root

    property string hint

    implicitHeight: Theme.control
    implicitWidth: Math.max(120, measure.advanceWidth + 52)
    hoverEnabled: true
    font { family: Theme.family; pixelSize: Theme.bodySize; weight: Font.Medium }
    Accessible.role: Accessible.ComboBox
    Accessible.name: hint ? hint + ": " + displayText : displayText

    TextMetrics {
        id: measure

        font: root.font
        text: root.displayText
    }

    contentItem: Label {
        leftPadding: root.mirrored ? 32 : 12
        rightPadding: root.mirrored ? 12 : 32
        text: root.displayText
        font.weight: Font.Medium
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    indicator: Sign {
        x: root.mirrored ? 10 : root.width - width - 10
        y: (root.height - height) / 2
        name: "ui.chevron.down"
        size: 16
    }
    background: Rectangle {
        radius: Theme.controlRadius
        color: root.hovered ? Theme.hover : Theme.surface
        border { width: 1; color: Theme.line }

        FocusRing { of: root }
    }

    delegate: T.ItemDelegate {
        id: item

        required property int index
        required property var modelData

        width: ListView.view.width
        implicitHeight: Theme.control
        hoverEnabled: true
        highlighted: root.highlightedIndex === index
        text: modelData
        Accessible.name: text
        contentItem: Label {
            leftPadding: root.mirrored ? 28 : 10
            rightPadding: root.mirrored ? 10 : 28
            text: item.text
            elide: Text.ElideRight
            Accessible.ignored: true

            Sign {
                anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
                name: item.index === root.currentIndex ? "ui.check" : ""
                color: Theme.ink
                size: 16
            }
        }
        background: Rectangle {
            radius: 8
            color: item.highlighted || item.hovered ? Theme.hover : "transparent"
        }
    }

    popup: T.Popup {
        x: root.mirrored ? root.width - width : 0
        y: root.height + 4
        width: Math.max(root.width, 200)
        implicitHeight: Math.min(contentItem.implicitHeight + 12, 320)
        padding: 6
        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            model: root.delegateModel
            currentIndex: root.highlightedIndex
        }
        background: Surface {
            radius: 12
            border { width: 1; color: Theme.line }
        }
    }
}
