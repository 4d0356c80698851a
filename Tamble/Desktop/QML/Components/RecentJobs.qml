import QtQuick
import Tamble

// The last jobs of the log, each with its way back.
Surface {
    id: root

    property int most: 3
    readonly property int rowHeight: 56

    height: Math.min(most, App.activity.count) * rowHeight
    visible: App.activity.count > 0

    // A list makes only the rows that are seen, of a thousand.
    ListView {
        id: list

        anchors.fill: parent
        model: App.activity
        interactive: false
        clip: true

        delegate: ActivityRow {
            width: list.width
            height: root.rowHeight
            compact: true
        }
    }
}
