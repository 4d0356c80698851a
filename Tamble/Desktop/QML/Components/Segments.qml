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
    implicitWidth: row.implicitWidth + 6
    radius: 11
    color: Theme.sunken
    Accessible.role: Accessible.RadioButton

    Row {
        id: row

        anchors { fill: parent; margins: 3 }
        spacing: 2

        Repeater {
            model: root.options

            T.RadioButton {
                id: segment

                required property int index
                required property var modelData

                readonly property real share: (row.width - (root.options.length - 1) * row.spacing) / root.options.length

                width: root.stretch ? share : implicitWidth
                implicitWidth: word.implicitWidth + 26
                height: row.height
                checked: index === root.current
                autoExclusive: false
                hoverEnabled: true
                text: modelData.label
                Accessible.name: text
                onClicked: root.picked(index)
                Keys.onLeftPressed: root.picked(Math.max(0, root.current - 1))
                Keys.onRightPressed: root.picked(Math.min(root.options.length - 1, root.current + 1))

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
