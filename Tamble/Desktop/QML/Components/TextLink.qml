import QtQuick
import QtQuick.Templates as T
import Tamble

// A quiet word that leads somewhere.
T.AbstractButton {
    id: root

    implicitWidth: label.implicitWidth
    implicitHeight: label.implicitHeight
    hoverEnabled: true
    Accessible.name: text
    Accessible.role: Accessible.Link
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Label {
        id: label

        text: root.text
        quiet: !root.hovered
        font { weight: Font.Medium; underline: root.hovered }
        Accessible.ignored: true
    }
    background: Item { FocusRing { of: root; around: 2 } }

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
