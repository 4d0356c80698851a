import QtQuick
import QtQuick.Templates as T
import Tamble

// One of a few short words. `options`: [{label, chosen}].
Rectangle {
    id: root

    property var options: []
    property int current: options.findIndex(option => option.chosen)
    property bool stretch: true
    signal picked(int index)

    implicitHeight: Theme.control
    implicitWidth: row.words + (options.length - 1) * row.spacing + 6
    radius: 11
    color: Theme.sunken

    // The arrows choose the one beside it, and the keyboard goes along.
    function step(by) {
        const next = Math.max(0, Math.min(options.length - 1, current + by))
        picked(next)
        segments.itemAt(next).forceActiveFocus(Qt.TabFocusReason)
    }

    Row {
        id: row

        // As wide as each other if all words fit so, else each by its word.
        readonly property real room: width - (root.options.length - 1) * spacing
        readonly property real share: room / root.options.length
        readonly property var widths: root.options.map((option, index) => made > index ? segments.itemAt(index)?.implicitWidth ?? 0 : 0)
        readonly property real words: widths.reduce((sum, each) => sum + each, 0)
        readonly property bool even: widths.every(each => each <= share)

        property int made: 0

        anchors { fill: parent; margins: 3 }
        spacing: 2

        Repeater {
            id: segments

            // By number: the words may change while the keyboard is on one of them.
            model: root.options.length
            onItemAdded: ++row.made
            onItemRemoved: --row.made

            T.RadioButton {
                id: segment

                required property int index

                width: Math.max(0, row.even && root.stretch ? row.share : implicitWidth + (row.room - row.words) / root.options.length)
                implicitWidth: word.implicitWidth + 26
                height: row.height
                checked: index === root.current
                checkable: false // whoever is asked decides what is chosen
                hoverEnabled: true
                text: root.options[index]?.label ?? ""
                Accessible.name: text
                Accessible.role: Accessible.RadioButton
                Accessible.checked: checked
                onClicked: root.picked(index)
                Keys.onLeftPressed: root.step(mirrored ? 1 : -1)
                Keys.onRightPressed: root.step(mirrored ? -1 : 1)
                Keys.onReturnPressed: root.picked(index)
                Keys.onEnterPressed: root.picked(index)

                contentItem: Label {
                    id: word

                    text: segment.text
                    quiet: !segment.checked
                    font.weight: Font.Medium
                    horizontalAlignment: Text.AlignHCenter
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }
                indicator: null
                background: Rectangle {
                    radius: 8
                    color: segment.checked ? Theme.raised : segment.hovered ? Theme.hover : "transparent"

                    Shadow { visible: segment.checked; radius: 8 }
                    FocusRing { of: segment; around: 8 }
                }
            }
        }
    }
}
