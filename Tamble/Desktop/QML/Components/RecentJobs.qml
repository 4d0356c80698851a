import QtQuick
import Tamble

// The last jobs of the log, each with its way back.
Surface {
    id: root

    property int most: 3

    height: column.height
    visible: App.activity.count > 0

    Column {
        id: column

        width: parent.width

        Repeater {
            model: App.activity

            ActivityRow {
                width: column.width
                height: visible ? 56 : 0
                visible: index < root.most
                compact: true
            }
        }
    }
}
